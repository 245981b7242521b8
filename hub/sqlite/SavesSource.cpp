// Backups and the files in them, over SQLite.
#include "datasource/Saves.h"

#include "hub/sqlite/FillColumns.h"
#include "hub/sqlite/Filters.h"
#include "hub/sqlite/LogQueries.h"
#include "hub/sqlite/RecordSources.h"

namespace quorvel::hub {
namespace {

class SavesSource final : public SourceBase<datasource::Saves, datasource::SavesRecords> {
 public:
  using SourceBase::SourceBase;

  void GetSaves(std::int32_t connection, std::int32_t onStation, std::int32_t userId, DateValue dateFrom,
                DateValue dateTo, std::int32_t& status) override {
    const Database& database = Begin(connection, "GetSaves");
    status = kStatusNoPeriod;
    if (!Period{dateFrom, dateTo}.valid()) return;
    status = kStatusOk;

    Statement rows = PrepareFor(database, kBackups, ":station", userId);
    rows.Bind(":onStation", onStation != 0 ? 1 : 0).Bind(":from", dateFrom).Bind(":to", dateTo);
    count_ = FillColumns(rows, records_.lngSaveId, records_.lngUserId, records_.strUserName, records_.strName,
                         records_.dtDate, records_.lngSizeKb, records_.bResultOk);
  }
  void CloseSaves(std::int32_t connection) override { Release(connection); }

  void GetSaveFiles(std::int32_t connection, std::int32_t saveId, std::int32_t failedOnly, std::string_view nameFilter,
                    std::int32_t& status) override {
    const Database& database = Begin(connection, "GetSaveFiles");
    status = kStatusMissing;
    if (!Exists(database, kBackupExists, saveId)) return;
    status = kStatusOk;

    Statement rows = database.Prepare(kFilesOfBackup);
    rows.Bind(":backup", saveId).Bind(":failedOnly", failedOnly).Bind(":part", nameFilter);
    count_ = FillColumns(rows, records_.lngSaveId, records_.strName, records_.dtDate, records_.lngSizeKb,
                         records_.strPath, records_.bResultOk);
  }
  void CloseSaveFiles(std::int32_t connection) override { Release(connection); }
};

}  // namespace

std::unique_ptr<datasource::RecordSource> CreateSaves(std::shared_ptr<const Connections> connections) {
  return std::make_unique<SavesSource>(std::move(connections));
}

}  // namespace quorvel::hub
