// User imports, their processes and runs.
#pragma once

#include "datasource/RecordSource.h"

namespace quorvel::datasource {

struct UsersImportRecords {
  TextColumn strName;
  Column<std::int32_t> lngProcessId;  // 0 = the import ran outside a process
  TextColumn strProcessName;
  Column<std::int32_t> lngImportLogId;  // the run
  Column<std::int32_t> lngBatchNumber;
  Column<DateValue> dtDate;
  TextColumn strUserName;  // an imported user, its result and the reason
  Column<Flag> bResultOk;
  TextColumn strReport;

  // Calls visit(name, column) for each column, in member order.
  template <class Self, class Visit>
  static void ForEachColumn(Self& self, Visit visit) {
    visit("strName", self.strName);
    visit("lngProcessId", self.lngProcessId);
    visit("strProcessName", self.strProcessName);
    visit("lngImportLogId", self.lngImportLogId);
    visit("lngBatchNumber", self.lngBatchNumber);
    visit("dtDate", self.dtDate);
    visit("strUserName", self.strUserName);
    visit("bResultOk", self.bResultOk);
    visit("strReport", self.strReport);
  }
};

class UsersImport : public RecordSource {
 public:
  static constexpr std::string_view kClassIdentifier = "clRecordHub.UsersImport";

  // Names and processes of one import, by name and process. Status 1: the import does not exist.
  virtual void GetUsersImports(std::int32_t connection, std::int32_t importId, std::int32_t& status) = 0;
  virtual void CloseUsersImports(std::int32_t connection) = 0;

  // Runs of an import's process under one name, newest first, a row per imported user; with a processId of -1 process
  // by process. A run that imported nobody has one row, without a name and with a true result. importLogId: one run, -1
  // all.
  virtual void GetUsersImportByProcess(std::int32_t connection, std::int32_t importId, std::string_view name,
                                       std::int32_t processId, std::int32_t importLogId, std::int32_t& status) = 0;
  virtual void CloseUsersImportByProcess(std::int32_t connection) = 0;

  // Valid until the next call that is not const.
  virtual const UsersImportRecords& Records() const = 0;
};

}  // namespace quorvel::datasource
