// What the command line of a console asks for.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>

#include "control/Enumerations.h"

namespace quorvel::console {

// In pixels, as the toolkit counts them.
struct WindowSize {
  int width = 0;
  int height = 0;
  friend bool operator==(const WindowSize&, const WindowSize&) = default;
};

struct ConsoleOptions {
  std::string history;     // URL of a connection, "" = none
  std::string tab;         // caption, "" = the first
  std::string screenshot;  // file to write a picture of the window to, "" = none
  std::string part;        // name of the control to draw of the window, "" = all
  std::string scenario;    // file to run, "" = none
  std::string report;      // keys of the runs to write a report of, "" = none
  std::string output;      // file to write a report to, "" = none
  bool headless = false;
  tlFromType fromType = tlFromType::tlOneProcess;
  std::int32_t processId = -1;
  WindowSize size{1180, 760};
  bool dark = false;
};

// What not every console can do; an option for it is not understood where it cannot.
struct Abilities {
  bool dark = true;
  bool part = true;
  bool pdf = true;
  bool reportOfScenario = true;
};

// What came of reading the arguments: options, or a text to print and the code to end with.
struct CommandLine {
  std::optional<ConsoleOptions> options;
  std::string text;
  int exitCode = 0;
};

// `arguments` begin with the name of the program.
CommandLine ReadCommandLine(std::span<const std::string> arguments, const Abilities& abilities = {});

}  // namespace quorvel::console
