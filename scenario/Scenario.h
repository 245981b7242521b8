// Runs scenarios: scripts that drive the viewer and print what a user sees of it. docs/scenarios.md tells the language.
#pragma once

#include <filesystem>
#include <ostream>
#include <string_view>

#include "scenario/ScenarioPort.h"
#include "scenario/Script.h"
#include "scenario/Session.h"

namespace quorvel::scenario {

// The viewers that a script opened live as long as this object, so that they can be looked at after its end.
class Scenario {
 public:
  // `port` must outlive the scenario.
  explicit Scenario(ScenarioPort& port) : session_(port) {}

  // Opens a history before the script begins, which then needs no `open`. Errors are the component's.
  void Open(std::string_view url) { session_.Open(url); }

  // What the script has at hand, for programs that drive it line by line.
  Session& session() { return session_; }

  // Runs one line. ScriptError for a command that cannot be done; what a command raises itself goes through.
  void Do(std::string_view line, std::ostream& out) { RunCommand(ParseCommand(line), out); }

  // Runs a script to its end, or to the first command that cannot be done. What it prints goes to `out`, each print
  // under its command; what is wrong goes to `problems` as "FILE:LINE: text". True when the whole script was run.
  bool Run(const std::filesystem::path& file, std::ostream& out, std::ostream& problems);

 private:
  void RunCommand(const Command& command, std::ostream& out);

  Session session_;
};

}  // namespace quorvel::scenario
