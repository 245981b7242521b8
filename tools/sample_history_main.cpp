// quorvel_sample_history: writes a sample history to a file.
#include <iostream>
#include <limits>
#include <optional>
#include <span>
#include <string>

#include "tools/CommandLine.h"
#include "tools/SampleHistory.h"

namespace {

using quorvel::tools::CommandLine;
using quorvel::tools::Option;
using quorvel::tools::SampleOptions;

constexpr Option kOptions[] = {
    {"output", "FILE", "the history to write (needed)"},
    {"force", "", "replace FILE if it exists"},
    {"stations", "N", "stations, default 60; 0 = runs without a population"},
    {"runs", "N", "runs, default 200"},
    {"days", "N", "days before --now that the runs are spread over, default 30"},
    {"processes", "N", "processes, default: grows with the runs up to 28"},
    {"rows", "N", "fit the runs so that there are N rows of stations in all"},
    {"detail-runs", "N",
     "runs that have tasks, steps and commands for all of their stations: the last\n"
     "run of each process, then the newest runs; default: as many as have 20000\n"
     "rows of stations. In the other runs only failed stations have them"},
    {"communications", "N",
     "connections, default: those that carried commands of the runs, and one for each\n"
     "station and day, up to 20000"},
    {"alarms", "N", "alarms, default: grows with the runs that failed, and with stations and days"},
    {"saves", "N",
     "backups: one a day of the server, the others of stations; default one a week of\n"
     "each station"},
    {"save-files", "N", "files in all backups, default 9 in each, up to 100000"},
    {"imports", "N", "runs of user imports, default 3 a day"},
    {"imported-users", "N", "users in all of them, default up to 24 in each"},
    {"system", "N", "rows of the scheduler's log, default: two for each run, and 10 a day"},
    {"attachments", "FOLDER",
     "where to write files that are attached to the scheduler's log; without it all\n"
     "attachments are files that are gone"},
    {"now", "DATE", "the present, default 2026-11-20T12:00:00"},
    {"seed", "N", "another number gives another history, default 1"},
};

constexpr std::int64_t kMostStations = 10'000'000;
constexpr std::int64_t kMostRows = 100'000'000;

std::int32_t Count(const CommandLine& line, std::string_view name, std::int64_t least, std::int64_t most,
                   std::int32_t otherwise) {
  return static_cast<std::int32_t>(line.Number(name, least, most).value_or(otherwise));
}

std::optional<std::int32_t> OptionalCount(const CommandLine& line, std::string_view name, std::int64_t least,
                                          std::int64_t most) {
  const auto number = line.Number(name, least, most);
  return number ? std::optional(static_cast<std::int32_t>(*number)) : std::nullopt;
}

SampleOptions ReadOptions(const CommandLine& line) {
  SampleOptions options;
  options.stations = Count(line, "stations", 0, kMostStations, options.stations);
  options.runs = Count(line, "runs", 0, kMostStations, options.runs);
  options.days = Count(line, "days", 1, 36500, options.days);
  options.processes = OptionalCount(line, "processes", 1, 100'000);
  options.stationRows = OptionalCount(line, "rows", 0, kMostRows);
  options.detailRuns = OptionalCount(line, "detail-runs", 0, kMostRows);
  options.communications = OptionalCount(line, "communications", 0, kMostRows);
  options.alarms = OptionalCount(line, "alarms", 0, kMostRows);
  options.saves = OptionalCount(line, "saves", 0, kMostRows);
  options.saveFiles = OptionalCount(line, "save-files", 0, kMostRows);
  options.imports = OptionalCount(line, "imports", 0, kMostRows);
  options.importedUsers = OptionalCount(line, "imported-users", 0, kMostRows);
  options.systemRows = OptionalCount(line, "system", 0, kMostRows);
  options.attachments = line.Text("attachments").value_or("");
  options.now = line.Date("now").value_or(options.now);
  const auto seed = line.Number("seed", 0, std::numeric_limits<std::int64_t>::max());
  if (seed) options.seed = static_cast<std::uint64_t>(*seed);
  return options;
}

void Run(const CommandLine& line) {
  using quorvel::tools::Existing;
  const std::string output = line.Required("output");
  const auto counts = quorvel::tools::WriteSampleHistory(ReadOptions(line), output,
                                                         line.Has("force") ? Existing::kReplace : Existing::kKeep);
  std::cout << output << ": " << Describe(counts) << "\n";
}

}  // namespace

int main(int argc, char** argv) {
  return quorvel::tools::RunTool(std::span<const char* const>(argv, static_cast<std::size_t>(argc)),
                                 "quorvel_sample_history --output FILE [options]\n"
                                 "Writes a history that nobody lived: the same for the same options.",
                                 kOptions, Run);
}
