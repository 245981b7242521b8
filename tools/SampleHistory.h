// Makes a history of any size, realistic in names and proportions, the same on every machine for the same options.
#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>

#include "platform/Dates.h"
#include "tools/HistoryWriter.h"

namespace quorvel::tools {

struct SampleOptions {
  std::int32_t stations = 60;  // 0 = every run is one without a population
  std::int32_t runs = 200;
  std::int32_t days = 30;  // the runs lie within so many days before `now`, from 1
  // Without a value: grows with the runs, up to one of each kind.
  std::optional<std::int32_t> processes{};
  // Runs whose stations all carry tasks, steps and commands: the last run of each process, then the newest ones. In the
  // other runs only failed stations do. Without a value: as many as keep the file small.
  std::optional<std::int32_t> detailRuns{};
  // Fits the populations so that there are exactly so many rows of stations, where the other numbers allow it.
  std::optional<std::int32_t> stationRows{};
  // Rows of what lies beside the runs. Without a value: in proportion to stations, days and runs. Connections that
  // carried commands of the runs are there in any case.
  std::optional<std::int32_t> communications{};
  std::optional<std::int32_t> alarms{};
  std::optional<std::int32_t> saves{};  // backups, and the files in all of them
  std::optional<std::int32_t> saveFiles{};
  std::optional<std::int32_t> imports{};  // runs of imports, and the users in all of them
  std::optional<std::int32_t> importedUsers{};
  std::optional<std::int32_t> systemRows{};
  // The folder for files that are attached to the scheduler's log; it is made. "" = all of them are gone.
  std::filesystem::path attachments{};
  DateValue now = DateFromCivil({2026, 11, 20, 12, 0, 0});
  std::uint64_t seed = 1;
};

// From these sizes on a sample holds every rare case: outcomes, wait states, types, kinds, odd texts, odd flags, dates
// of 0, runs without a population or without stations, and those of what lies beside the runs.
inline constexpr std::int32_t kStationsForRareCases = 20;
inline constexpr std::int32_t kRunsForRareCases = 40;
inline constexpr std::int32_t kProcessesForRareCases = 6;

// Writes the sample and says what it holds. Errors as of HistoryWriter; error 5 for a negative number, no days, or a
// date that cannot be shown; 75 for attachments that cannot be written.
RowCounts WriteSampleHistory(const SampleOptions& options, const std::filesystem::path& file, Existing existing);

}  // namespace quorvel::tools
