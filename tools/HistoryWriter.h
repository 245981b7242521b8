// Writes a whole new history file at once, fast, and only shows it under its name when it is complete.
#pragma once

#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

#include "tools/HistoryRows.h"

namespace quorvel::tools {

// What to do with a file that has the history's name already.
enum class Existing { kKeep, kReplace };

// "60 stations, 24 processes, 200 runs, ...". What lies beside the runs is left out where there is none of it.
std::string Describe(const RowCounts& counts);

// Rows go to "FILE.partial", which becomes FILE in Finish(); a writer that ends without it leaves FILE as it was.
// Indexes are built at the end. Failures of the database raise the errors of the hub.
class HistoryWriter {
 public:
  // Error 58: the file exists and is to be kept. 75: the name is a folder's, or its own folder cannot be written.
  HistoryWriter(std::filesystem::path file, Existing existing);
  ~HistoryWriter();
  HistoryWriter(const HistoryWriter&) = delete;
  HistoryWriter& operator=(const HistoryWriter&) = delete;

  void AddLabel(std::string_view name, std::string_view value);
  void Add(const CompanyRow& row);
  void Add(const StationRow& row);
  void Add(const ProcessRow& row);
  void Add(const ProcessRunRow& row);
  // Rows below a run refer to the row above them, which must have been added. Those that others refer to give their
  // identifier, counted from 1.
  void Add(const ProcessRunRow& run, const StationRunRow& row);
  std::int32_t Add(const ProcessRunRow& run, const TaskRunRow& row);
  std::int32_t Add(std::int32_t taskRunId, const StepRow& row);
  // A command of a connection alone has the step 0.
  void Add(std::int32_t stepLogId, const CommandRow& row);
  void Add(const CommunicationRow& row);
  void Add(const AlarmRow& row);
  std::int32_t Add(const BackupRow& row);
  void Add(std::int32_t backupId, const BackupFileRow& row);
  void Add(const UserImportRow& row);
  std::int32_t Add(const ImportRunRow& row);
  void Add(std::int32_t importRunId, const ImportedUserRow& row);
  void Add(const SchedulerLogRow& row);

  const RowCounts& counts() const { return counts_; }

  // Completes the file and gives it its name. Nothing may be added afterwards.
  void Finish();

 private:
  struct Session;

  std::filesystem::path file_;
  std::filesystem::path partial_;
  std::unique_ptr<Session> session_;
  RowCounts counts_;
};

}  // namespace quorvel::tools
