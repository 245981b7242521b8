// The package logs of a machine, plain or compressed: read as far as they go, and matched.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include "fuzz/Check.h"
#include "tests/support/TemporaryFolder.h"
#include "tools/AptRuns.h"
#include "tools/LogFiles.h"

namespace quorvel::fuzz {
namespace {

constexpr DateValue kNow = 46346.5;
// Parts the two logs in an input.
constexpr std::string_view kNextLog = "\n----\n";

std::vector<std::string> Lines(std::string_view text) {
  std::vector<std::string> lines;
  for (const std::string_view line : LinesOf(text)) lines.emplace_back(line);
  return lines;
}

bool InOrder(const tools::DpkgLog& log) {
  return std::ranges::is_sorted(log.records, {}, &tools::DpkgRecord::date);
}

void EveryInvocationIsARun(std::string_view aptLog, std::string_view dpkgLog, bool whole) {
  tools::AptHistory history;
  tools::ParseAptHistory(Lines(aptLog), whole, history);
  tools::DpkgLog log;
  tools::ParseDpkgLog(Lines(dpkgLog), log);
  tools::SortByDate(log);
  Check(InOrder(log), "records are in order");
  const tools::AptRuns matched = tools::MatchAptRuns(history, log, kNow);
  Check(matched.runs.size() == history.invocations.size(), "each invocation is a run");
  std::size_t records = matched.foreignRecords;
  for (const tools::AptRun& run : matched.runs) {
    Check(run.steps.size() >= run.invocation->changes.size() || !run.invocation->changes.empty(),
          "a run has what was asked for");
    for (const auto* const steps : {&run.steps, &run.triggers}) {
      for (const tools::AptStep& step : *steps) records += step.records.size();
    }
  }
  Check(records == log.records.size(), "no record is lost or told twice");
}

// A file that is damaged gives whole lines, and says what is wrong.
void FilesAreReadOrSaidToBeDamaged(std::string_view bytes) {
  static const test::TemporaryFolder folder;
  std::ofstream(folder.path() / "dpkg.log.1.gz", std::ios::binary) << bytes;
  const std::vector<tools::LogFile> files = tools::ReadLogFiles(folder.path(), "dpkg.log");
  Check(files.size() == 1, "one file is read as one");
  for (const std::string& line : files.front().lines) {
    Check(line.find('\n') == std::string::npos, "a line is one line");
  }
}

}  // namespace
}  // namespace quorvel::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvel::fuzz;  // NOLINT(google-build-using-namespace): the target is part of it
  const std::string_view text = TextOf(data, size);
  const std::size_t border = std::min(text.find(kNextLog), text.size());
  const std::string_view rest = text.substr(std::min(border + kNextLog.size(), text.size()));
  EveryInvocationIsARun(text.substr(0, border), rest, true);
  EveryInvocationIsARun(text.substr(0, border), rest, false);
  FilesAreReadOrSaidToBeDamaged(text);
  return 0;
}
