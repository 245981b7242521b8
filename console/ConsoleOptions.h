// What the command line of the console asks for.
#pragma once

#include <QSize>
#include <QString>
#include <QStringList>
#include <optional>

#include "control/Enumerations.h"

namespace quorvel::console {

struct ConsoleOptions {
  QString history;     // URL of a connection, "" = none
  QString tab;         // caption, "" = the first
  QString screenshot;  // file to write a picture of the window to, "" = none
  QString part;        // name of the control to draw of the window, "" = all
  QString scenario;    // file to run, "" = none
  QString report;      // keys of the runs to write a report of, "" = none
  QString output;      // file to write a report to, "" = none
  bool headless = false;
  tlFromType fromType = tlFromType::tlOneProcess;
  std::int32_t processId = -1;
  QSize size{1180, 760};
  bool dark = false;
};

// What came of reading the arguments: options, or a text to print and the code to end with.
struct CommandLine {
  std::optional<ConsoleOptions> options;
  QString text;
  int exitCode = 0;
};

// `arguments` begin with the name of the program.
CommandLine ReadCommandLine(const QStringList& arguments);

}  // namespace quorvel::console
