#include "tools/HistoryWriter.h"

#include <initializer_list>
#include <system_error>
#include <utility>
#include <vector>

#include "hub/RecordHub.h"
#include "hub/sqlite/Database.h"
#include "platform/Error.h"

namespace quorvel::tools {
namespace {

// The file is thrown away when anything goes wrong, so nothing is spent on being able to go back.
constexpr const char* kBulkSettings =
    "PRAGMA locking_mode = EXCLUSIVE; PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF; PRAGMA cache_size = -262144;"
    "PRAGMA temp_store = MEMORY; BEGIN;";

// One for each column of the widest table.
constexpr const char* kParameters[] = {"?1",  "?2",  "?3",  "?4",  "?5",  "?6",  "?7",  "?8",  "?9",
                                       "?10", "?11", "?12", "?13", "?14", "?15", "?16", "?17", "?18"};

std::string InsertSql(std::string_view table, std::initializer_list<std::string_view> columns) {
  std::string names;
  std::string values;
  const char* const* parameter = kParameters;
  for (const std::string_view column : columns) {
    const char* const comma = names.empty() ? "" : ", ";
    names.append(comma).append(column);
    values.append(comma).append(*parameter++);
  }
  return "INSERT INTO " + std::string(table) + " (" + names + ") VALUES (" + values + ")";
}

class Inserter {
 public:
  Inserter(const hub::Database& database, std::string_view table, std::initializer_list<std::string_view> columns)
      : statement_(database.Prepare(InsertSql(table, columns))) {}

  // One value for each column.
  template <class... Values>
  void Insert(const Values&... values) {
    static_assert(sizeof...(values) <= std::size(kParameters));
    statement_.Reset();
    const char* const* parameter = kParameters;
    (statement_.Bind(*parameter++, values), ...);
    statement_.Step();
  }

 private:
  hub::Statement statement_;
};

// Takes the indexes away and gives the statements that make them again: sorting once is much faster than keeping them
// sorted.
std::vector<std::string> DropIndexes(const hub::Database& database) {
  std::vector<std::string> names;
  std::vector<std::string> definitions;
  hub::Statement indexes =
      database.Prepare("SELECT name, sql FROM sqlite_schema WHERE type = 'index' AND sql IS NOT NULL ORDER BY rowid");
  while (indexes.Step()) {
    names.emplace_back(indexes.Get<std::string_view>(0));
    definitions.emplace_back(indexes.Get<std::string_view>(1));
  }
  for (const std::string& name : names) database.Execute("DROP INDEX " + name);
  return definitions;
}

std::filesystem::path WithSuffix(std::filesystem::path file, const char* suffix) {
  file += suffix;
  return file;
}

void RequireUsable(const std::filesystem::path& file, Existing existing) {
  const std::filesystem::file_status status = std::filesystem::symlink_status(file);
  if (!std::filesystem::exists(status)) return;
  if (std::filesystem::is_directory(file)) {
    throw Error(SystemError::kPathAccess, "\"" + file.string() + "\" is a folder");
  }
  if (existing == Existing::kKeep) {
    throw Error(SystemError::kFileExists, "\"" + file.string() + "\" exists already; only --force replaces it");
  }
}

void RemoveQuietly(const std::filesystem::path& file) {
  std::error_code ignored;
  std::filesystem::remove(file, ignored);
}

}  // namespace

struct HistoryWriter::Session {
  explicit Session(const std::filesystem::path& file) : database(file, hub::Access::kReadWrite) {
    database.Execute(kBulkSettings);
    indexes = DropIndexes(database);
  }

  hub::Database database;
  std::vector<std::string> indexes;
  Inserter label{database, "label", {"name", "value"}};
  Inserter company{database, "company", {"company_id", "name"}};
  Inserter station{database, "station", {"station_id", "name", "identifier", "company_id"}};
  Inserter process{database, "process", {"process_id", "name", "on_server", "on_station"}};
  Inserter run{database, "process_run", {"process_run_id", "process_id", "start_date", "end_date", "on_station"}};
  Inserter stationRun{database,
                      "station_run",
                      {"process_run_id", "station_id", "station_name", "identifier", "company", "report", "start_date",
                       "end_date", "in_progress", "ok", "not_ok", "unknown", "executed", "wait_state", "process_id",
                       "run_start_date", "on_station"}};
  Inserter taskRun{
      database,
      "task_run",
      {"task_run_id", "process_run_id", "station_id", "position", "task_id", "task_name", "task_type", "not_executed",
       "station_scope", "waiting", "report", "start_date", "end_date", "in_progress", "ok", "not_ok"}};
  Inserter step{database,
                "step_log",
                {"step_log_id", "task_run_id", "step_name", "settings", "report", "execute_where", "start_date",
                 "end_date", "in_progress", "ok", "not_ok", "step_kind", "station_scope"}};
  Inserter command{database,
                   "command_log",
                   {"step_log_id", "communication_id", "communication_date", "kind", "result", "text", "report",
                    "start_date", "end_date", "in_progress", "ok", "not_ok"}};
  Inserter communication{database,
                         "communication",
                         {"communication_id", "station_id", "station_name", "from_station", "start_date", "end_date",
                          "size_kb", "report", "in_progress", "ok", "not_ok"}};
  Inserter alarm{database,
                 "alarm",
                 {"owner_id", "raised_date", "severity", "action", "origin", "text", "acknowledged", "acknowledged_by",
                  "acknowledged_date", "process_run_id", "process_name"}};
  Inserter backup{database, "backup", {"backup_id", "station_id", "name", "saved_date", "size_kb", "ok"}};
  Inserter backupFile{database, "backup_file", {"backup_id", "name", "path", "saved_date", "size_kb", "ok"}};
  Inserter userImport{database, "user_import", {"user_import_id", "name"}};
  Inserter importRun{
      database, "import_run", {"import_run_id", "user_import_id", "name", "process_id", "batch_number", "start_date"}};
  Inserter importedUser{database, "imported_user", {"import_run_id", "user_name", "ok", "report"}};
  Inserter schedulerLog{
      database,
      "scheduler_log",
      {"logged_date", "level", "machine", "label", "company_id", "company", "user_name", "attachment"}};
};

std::string Describe(const RowCounts& counts) {
  const auto part = [](std::int32_t count, const char* one, const char* many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
  };
  const auto partIfAny = [&](std::int32_t count, const char* one, const char* many) {
    return count == 0 ? "" : ", " + part(count, one, many);
  };
  return part(counts.stations, "station, ", "stations, ") + part(counts.processes, "process, ", "processes, ") +
         part(counts.runs, "run, ", "runs, ") + part(counts.stationRuns, "station row, ", "station rows, ") +
         part(counts.taskRuns, "task, ", "tasks, ") + part(counts.steps, "step, ", "steps, ") +
         part(counts.commands, "command", "commands") + partIfAny(counts.communications, "connection", "connections") +
         partIfAny(counts.alarms, "alarm", "alarms") + partIfAny(counts.backups, "backup", "backups") +
         partIfAny(counts.backupFiles, "saved file", "saved files") +
         partIfAny(counts.importRuns, "import run", "import runs") +
         partIfAny(counts.importedUsers, "imported user", "imported users") +
         partIfAny(counts.schedulerLogs, "system row", "system rows");
}

HistoryWriter::HistoryWriter(std::filesystem::path file, Existing existing)
    : file_(std::move(file)), partial_(WithSuffix(file_, ".partial")) {
  RequireUsable(file_, existing);
  RemoveQuietly(partial_);
  hub::CreateHistory(partial_);
  session_ = std::make_unique<Session>(partial_);
}

HistoryWriter::~HistoryWriter() {
  if (!session_) return;
  session_.reset();
  RemoveQuietly(partial_);
}

void HistoryWriter::AddLabel(std::string_view name, std::string_view value) {
  session_->label.Insert(name, value);
}

void HistoryWriter::Add(const CompanyRow& row) {
  session_->company.Insert(row.id, row.name);
}

void HistoryWriter::Add(const StationRow& row) {
  session_->station.Insert(row.id, row.name, row.identifier, row.companyId);
  ++counts_.stations;
}

void HistoryWriter::Add(const ProcessRow& row) {
  session_->process.Insert(row.id, row.name, row.onServer, row.onStation);
  ++counts_.processes;
}

void HistoryWriter::Add(const ProcessRunRow& row) {
  session_->run.Insert(row.id, row.processId, row.start, row.end, row.onStation);
  ++counts_.runs;
}

void HistoryWriter::Add(const ProcessRunRow& run, const StationRunRow& row) {
  session_->stationRun.Insert(run.id, row.stationId, row.stationName, row.identifier, row.company, row.report,
                              row.start, row.end, row.result.inProgress, row.result.ok, row.result.notOk, row.unknown,
                              row.executed, row.waitState, run.processId, run.start, run.onStation);
  ++counts_.stationRuns;
}

std::int32_t HistoryWriter::Add(const ProcessRunRow& run, const TaskRunRow& row) {
  const std::int32_t id = ++counts_.taskRuns;
  session_->taskRun.Insert(id, run.id, row.stationId, row.position, row.taskId, row.name, row.type, row.notExecuted,
                           row.stationId, row.waiting, row.report, row.start, row.end, row.result.inProgress,
                           row.result.ok, row.result.notOk);
  return id;
}

std::int32_t HistoryWriter::Add(std::int32_t taskRunId, const StepRow& row) {
  const std::int32_t id = ++counts_.steps;
  session_->step.Insert(id, taskRunId, row.name, row.settings, row.report, row.executeWhere, row.start, row.end,
                        row.result.inProgress, row.result.ok, row.result.notOk, row.kind, row.stationScope);
  return id;
}

void HistoryWriter::Add(std::int32_t stepLogId, const CommandRow& row) {
  session_->command.Insert(stepLogId, row.communicationId, row.communicationDate, row.kind, row.code, row.text,
                           row.report, row.start, row.end, row.result.inProgress, row.result.ok, row.result.notOk);
  ++counts_.commands;
}

void HistoryWriter::Add(const CommunicationRow& row) {
  session_->communication.Insert(row.id, row.stationId, row.stationName, row.fromStation, row.start, row.end,
                                 row.sizeKb, row.report, row.result.inProgress, row.result.ok, row.result.notOk);
  ++counts_.communications;
}

void HistoryWriter::Add(const AlarmRow& row) {
  session_->alarm.Insert(row.ownerId, row.raised, row.severity, row.action, row.origin, row.text, row.acknowledged,
                         row.acknowledgedBy, row.acknowledgedDate, row.processRunId, row.processName);
  ++counts_.alarms;
}

std::int32_t HistoryWriter::Add(const BackupRow& row) {
  const std::int32_t id = ++counts_.backups;
  session_->backup.Insert(id, row.stationId, row.name, row.saved, row.sizeKb, row.ok);
  return id;
}

void HistoryWriter::Add(std::int32_t backupId, const BackupFileRow& row) {
  session_->backupFile.Insert(backupId, row.name, row.path, row.saved, row.sizeKb, row.ok);
  ++counts_.backupFiles;
}

void HistoryWriter::Add(const UserImportRow& row) {
  session_->userImport.Insert(row.id, row.name);
}

std::int32_t HistoryWriter::Add(const ImportRunRow& row) {
  const std::int32_t id = ++counts_.importRuns;
  session_->importRun.Insert(id, row.importId, row.name, row.processId, row.batchNumber, row.start);
  return id;
}

void HistoryWriter::Add(std::int32_t importRunId, const ImportedUserRow& row) {
  session_->importedUser.Insert(importRunId, row.name, row.ok, row.report);
  ++counts_.importedUsers;
}

void HistoryWriter::Add(const SchedulerLogRow& row) {
  session_->schedulerLog.Insert(row.logged, row.level, row.machine, row.label, row.companyId, row.company, row.userName,
                                row.attachment);
  ++counts_.schedulerLogs;
}

void HistoryWriter::Finish() {
  for (const std::string& index : session_->indexes) session_->database.Execute(index);
  session_->database.Execute("COMMIT");
  session_.reset();
  // What an interrupted program left beside the old file would be played back into the new one.
  for (const char* const suffix : {"-journal", "-wal", "-shm"}) RemoveQuietly(WithSuffix(file_, suffix));
  try {
    std::filesystem::rename(partial_, file_);
  } catch (const std::filesystem::filesystem_error& error) {
    RemoveQuietly(partial_);
    throw Error(SystemError::kPathAccess, error.what());
  }
}

}  // namespace quorvel::tools
