// The journal of what record sources were asked for.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/Dates.h"
#include "scenario/Faults.h"

namespace quorvel::scenario {

// Notes a line for each call, and lets those fail that the script wants to fail.
class CallRecorder {
 public:
  explicit CallRecorder(Faults& faults) : faults_(faults) {}

  // Runs `call` as one use of `name`, unless it is to fail. With `status` it is a query, whose out status can be
  // overridden once it was run. The line names the call, its arguments, and the status or error that came of it.
  void Run(std::string_view name, std::string_view arguments, const std::function<void()>& call,
           std::int32_t* status = nullptr);

  // Scripts count connections from 1 as they are opened, whatever indices the data-access component gives them. Takes
  // such an index and gives the number, and the other way round; a number that no connection has stands for itself.
  std::int32_t AddConnection(std::int32_t index);
  std::int32_t IndexOf(std::int32_t connection) const;

  void Note(std::string line) { lines_.push_back(std::move(line)); }
  // What was noted since the last time.
  std::vector<std::string> Take() { return std::exchange(lines_, {}); }

  Faults& faults() { return faults_; }

 private:
  Faults& faults_;
  std::vector<std::string> lines_;
  std::vector<std::int32_t> indices_;  // of the connections, by number
};

// Arguments as they stand in the journal.
std::string ArgumentText(std::int32_t value);
std::string ArgumentText(DateValue value);
std::string ArgumentText(bool value);
std::string ArgumentText(std::string_view value);
std::string ArgumentText(std::span<const std::int32_t> values);

}  // namespace quorvel::scenario
