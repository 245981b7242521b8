// User imports, their processes, runs and users, over SQLite.
#include "datasource/UsersImport.h"

#include "hub/sqlite/FillColumns.h"
#include "hub/sqlite/Filters.h"
#include "hub/sqlite/LogQueries.h"
#include "hub/sqlite/RecordSources.h"

namespace quorvel::hub {
namespace {

class UsersImportSource final : public SourceBase<datasource::UsersImport, datasource::UsersImportRecords> {
 public:
  using SourceBase::SourceBase;

  void GetUsersImports(std::int32_t connection, std::int32_t importId, std::int32_t& status) override {
    const Database& database = Begin(connection, "GetUsersImports");
    status = kStatusMissing;
    if (!Exists(database, kImportExists, importId)) return;
    status = kStatusOk;

    Statement rows = database.Prepare(kNamesOfImport);
    rows.Bind(":import", importId);
    count_ = FillColumns(rows, records_.strName, records_.lngProcessId, records_.strProcessName);
  }
  void CloseUsersImports(std::int32_t connection) override { Release(connection); }

  void GetUsersImportByProcess(std::int32_t connection, std::int32_t importId, std::string_view name,
                               std::int32_t processId, std::int32_t importLogId, std::int32_t& status) override {
    const Database& database = Begin(connection, "GetUsersImportByProcess");
    status = kStatusOk;

    Statement rows = importLogId != kAnyId ? PrepareFor(database, kRunsOfImport, ":run", importLogId)
                                           : PrepareFor(database, kRunsOfImport, ":process", processId);
    rows.Bind(":import", importId).Bind(":name", name).Bind(":process", processId).Bind(":run", importLogId);
    constexpr std::size_t kColumnsOfRun = 3;
    count_ = FillColumns<kColumnsOfRun>(rows, records_.lngImportLogId, records_.lngBatchNumber, records_.dtDate,
                                        records_.strUserName, records_.bResultOk, records_.strReport);
  }
  void CloseUsersImportByProcess(std::int32_t connection) override { Release(connection); }
};

}  // namespace

std::unique_ptr<datasource::RecordSource> CreateUsersImport(std::shared_ptr<const Connections> connections) {
  return std::make_unique<UsersImportSource>(std::move(connections));
}

}  // namespace quorvel::hub
