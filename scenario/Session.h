// What a running script has at hand: surroundings, connections, and the viewers that it opened.
#pragma once

#include <cstdint>
#include <filesystem>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "datasource/ErrorLog.h"
#include "scenario/CallRecorder.h"
#include "scenario/DataComponent.h"
#include "scenario/EventRecorder.h"
#include "scenario/Faults.h"
#include "scenario/RecordingSources.h"
#include "scenario/ScenarioPlatform.h"
#include "scenario/ScenarioPort.h"

namespace quorvel::scenario {

// Viewers are numbered from 1. The first one is placed when a command needs it, so that a script can set the clock
// before.
class Session {
 public:
  // `port` must outlive the session.
  explicit Session(ScenarioPort& port) : port_(port) {}

  Faults& faults() { return faults_; }
  CallRecorder& calls() { return calls_; }
  ScenarioPlatform& platform() { return platform_; }
  const ScenarioPort& port() const { return port_; }
  // The error log of all viewers; it need not exist.
  const std::filesystem::path& logFile() const { return logFile_; }

  // Opens a history, for the present viewer and for those that are placed later. Errors are the component's.
  void Open(std::string_view url);
  // Changes the history that was opened last, as another program would. ScriptError when none is open.
  void Execute(std::string_view sql);

  // The viewer that commands go to. ScriptError between its end and the choice of another one.
  ViewerPort& viewer();
  // Makes a viewer the present one, placing it first when there is none of that number.
  void ChooseViewer(std::int32_t number);
  void EndViewer();

  // What the viewers told their host since the last time.
  std::vector<std::string> TakeEvents() { return events_.Take(); }

  // Whether the pointer holds the grip of the splitter, from press to release.
  bool gripHeld() const { return gripHeld_; }
  void SetGripHeld(bool held) { gripHeld_ = held; }

 private:
  static constexpr std::int32_t kNone = 0;

  ScenarioPort& port_;
  Faults faults_;
  CallRecorder calls_{faults_};
  ScenarioPlatform platform_{faults_, port_};
  std::filesystem::path logFile_ = datasource::ErrorLogFile(platform_);
  std::unique_ptr<DataComponent> component_ = port_.MakeDataComponent();
  RecordingFactory factory_{component_->Sources(), calls_};
  EventRecorder events_;
  std::string url_;
  std::int32_t connection_ = -1;
  std::map<std::int32_t, std::unique_ptr<ViewerPort>> viewers_;
  std::int32_t present_ = 1;
  bool gripHeld_ = false;
};

}  // namespace quorvel::scenario
