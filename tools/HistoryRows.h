// Rows of a history as the tools hand them to HistoryWriter.
#pragma once

#include <cstdint>
#include <string_view>

#include "datasource/Column.h"
#include "platform/Dates.h"

namespace quorvel::tools {

// Texts need to live only until the row was added. Dates, flags and codes are those of the history's schema; bytes that
// are not UTF-8 are kept. Identifiers of companies, stations, processes, runs, connections and imports are the
// caller's; station 0 exists already.

struct CompanyRow {
  std::int32_t id = 0;
  std::string_view name{};
};

struct StationRow {
  std::int32_t id = 0;
  std::string_view name{};
  std::string_view identifier{};
  std::int32_t companyId = 0;  // 0 = none
};

struct ProcessRow {
  std::int32_t id = 0;
  std::string_view name{};
  datasource::Flag onServer = datasource::kFalse;
  datasource::Flag onStation = datasource::kFalse;
};

struct ProcessRunRow {
  std::int32_t id = 0;
  std::int32_t processId = 0;
  DateValue start = 0;
  DateValue end = 0;
  datasource::Flag onStation = datasource::kFalse;
};

// How something ended, or that it has not.
struct ResultFlags {
  datasource::Flag inProgress = datasource::kFalse;
  datasource::Flag ok = datasource::kFalse;
  datasource::Flag notOk = datasource::kFalse;

  friend bool operator==(const ResultFlags&, const ResultFlags&) = default;
};

inline constexpr ResultFlags kNoResult{};
inline constexpr ResultFlags kRunningResult{.inProgress = datasource::kTrue};
inline constexpr ResultFlags kSuccessResult{.ok = datasource::kTrue};
inline constexpr ResultFlags kFailureResult{.notOk = datasource::kTrue};

struct StationRunRow {
  std::int32_t stationId = 0;
  std::string_view stationName{};
  std::string_view identifier{};
  std::string_view company{};
  std::string_view report{};
  DateValue start = 0;
  DateValue end = 0;
  ResultFlags result{};
  datasource::Flag unknown = datasource::kFalse;
  datasource::Flag executed = datasource::kFalse;
  std::string_view waitState{};
};

struct TaskRunRow {
  std::int32_t stationId = 0;  // 0 = once for all stations of the run; the station scope follows it
  std::int32_t position = 0;   // from 1
  std::int32_t taskId = 0;
  std::string_view name{};
  std::string_view type{};
  datasource::Flag notExecuted = datasource::kFalse;
  datasource::Flag waiting = datasource::kFalse;
  std::string_view report{};
  DateValue start = 0;
  DateValue end = 0;
  ResultFlags result{};
};

struct StepRow {
  std::string_view name{};
  std::string_view settings{};
  std::string_view report{};
  std::string_view executeWhere{};
  DateValue start = 0;
  DateValue end = 0;
  ResultFlags result{};
  std::int32_t kind = 0;
  std::int32_t stationScope = 0;
};

struct CommandRow {
  std::int32_t communicationId = 0;  // 0 = none
  DateValue communicationDate = 0;
  std::int32_t kind = 0;
  std::int32_t code = 0;  // 0 = done
  std::string_view text{};
  std::string_view report{};
  DateValue start = 0;
  DateValue end = 0;
  ResultFlags result{};
};

struct CommunicationRow {
  std::int32_t id = 0;
  std::int32_t stationId = 0;
  std::string_view stationName{};
  datasource::Flag fromStation = datasource::kFalse;
  DateValue start = 0;
  DateValue end = 0;
  std::int32_t sizeKb = 0;
  std::string_view report{};
  ResultFlags result{};
};

struct AlarmRow {
  std::int32_t ownerId = 0;  // a station, 0 = the server
  DateValue raised = 0;
  std::int32_t severity = 0;
  std::int32_t action = 0;
  std::string_view origin{};
  std::string_view text{};
  datasource::Flag acknowledged = datasource::kFalse;
  std::string_view acknowledgedBy{};
  DateValue acknowledgedDate = 0;
  std::int32_t processRunId = 0;  // 0 = none
  std::string_view processName{};
};

struct BackupRow {
  std::int32_t stationId = 0;  // 0 = the server
  std::string_view name{};
  DateValue saved = 0;
  std::int32_t sizeKb = 0;
  datasource::Flag ok = datasource::kFalse;
};

struct BackupFileRow {
  std::string_view name{};
  std::string_view path{};
  DateValue saved = 0;
  std::int32_t sizeKb = 0;
  datasource::Flag ok = datasource::kFalse;
};

struct UserImportRow {
  std::int32_t id = 0;
  std::string_view name{};
};

struct ImportRunRow {
  std::int32_t importId = 0;
  std::string_view name{};
  std::int32_t processId = 0;  // 0 = by hand
  std::int32_t batchNumber = 0;
  DateValue start = 0;
};

struct ImportedUserRow {
  std::string_view name{};
  datasource::Flag ok = datasource::kFalse;
  std::string_view report{};
};

struct SchedulerLogRow {
  DateValue logged = 0;
  std::int32_t level = 0;
  std::string_view machine{};
  std::string_view label{};
  std::int32_t companyId = 0;  // 0 = none
  std::string_view company{};
  std::string_view userName{};
  std::string_view attachment{};
};

// How many rows of each kind were added.
struct RowCounts {
  std::int32_t stations = 0;
  std::int32_t processes = 0;
  std::int32_t runs = 0;
  std::int32_t stationRuns = 0;
  std::int32_t taskRuns = 0;
  std::int32_t steps = 0;
  std::int32_t commands = 0;
  std::int32_t communications = 0;
  std::int32_t alarms = 0;
  std::int32_t backups = 0;
  std::int32_t backupFiles = 0;
  std::int32_t importRuns = 0;
  std::int32_t importedUsers = 0;
  std::int32_t schedulerLogs = 0;
};

}  // namespace quorvel::tools
