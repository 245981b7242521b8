// The journal of what viewers told their host.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "control/HostEvents.h"

namespace quorvel::scenario {

// Notes a line for each event, with its argument.
class EventRecorder final : public HostEvents {
 public:
  // What was noted since the last time.
  std::vector<std::string> Take() { return std::exchange(lines_, {}); }

  void MajMenu() override { lines_.emplace_back("MajMenu"); }
  void Update() override { lines_.emplace_back("Update"); }
  void PrintReport(const std::string& runs) override { lines_.push_back("PrintReport\t" + runs); }
  void UpdateAlarm() override { lines_.emplace_back("UpdateAlarm"); }
  void lvMouseDown() override { lines_.emplace_back("lvMouseDown"); }
  void GoToLog(const std::string& key) override { lines_.push_back("GoToLog\t" + key); }

 private:
  std::vector<std::string> lines_;
};

}  // namespace quorvel::scenario
