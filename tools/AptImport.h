// Turns a Debian system's package history into a history of executions.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/Dates.h"
#include "tools/HistoryWriter.h"

namespace quorvel::tools {

struct AptImportOptions {
  std::filesystem::path logFolder = "/var/log";  // holds apt/history.log and dpkg.log with their older copies
  std::string station;                           // name of the machine
  DateValue now = 0;                             // decides whether the last invocation may still be running
};

struct AptImportResult {
  RowCounts counts;
  std::vector<std::string> messages;  // what the reader should know: files that are missing or damaged, lines skipped
};

// Each apt command line becomes a process, each invocation a run on this station, what it asked for (install, upgrade,
// ...) the tasks, the packages their steps, what dpkg logged for a package the step's commands. Logs that are missing,
// empty or damaged are no error: the history then holds what could be read, down to nothing. Errors as of
// HistoryWriter.
AptImportResult ImportAptHistory(const AptImportOptions& options, const std::filesystem::path& file, Existing existing);

}  // namespace quorvel::tools
