// Alarms, over SQLite.
#include "datasource/AlarmsLog.h"

#include "hub/sqlite/FillColumns.h"
#include "hub/sqlite/Filters.h"
#include "hub/sqlite/LogQueries.h"
#include "hub/sqlite/RecordSources.h"
#include "hub/sqlite/Transaction.h"

namespace quorvel::hub {
namespace {

class AlarmsLogSource final : public SourceBase<datasource::AlarmsLog, datasource::AlarmsLogRecords> {
 public:
  using SourceBase::SourceBase;

  void GetAlarms(std::int32_t connection, std::int32_t alarmId, std::int32_t /*reserved*/,
                 std::int32_t& status) override {
    const Database& database = Begin(connection, "GetAlarms");
    status = kStatusMissing;
    if (IsMissing(database, kAlarmExists, alarmId)) return;
    status = kStatusOk;

    Statement rows = PrepareFor(database, kAlarms, ":alarm", alarmId);
    Fill(rows);
  }
  void CloseAlarms(std::int32_t connection) override { Release(connection); }

  void GetAlarmsByDay(std::int32_t connection, DateValue day, std::int32_t ownerId, std::int32_t state,
                      std::int32_t& status) override {
    const Database& database = Begin(connection, "GetAlarmsByDay");
    const Period period = day == 0 ? kAlways : Period{DatePart(day), DatePart(day) + 1};
    status = kStatusNoPeriod;
    if (day != 0 && !period.valid()) return;
    status = kStatusOk;

    Statement rows = PrepareFor(database, kAlarmsOfDay, ":owner", ownerId);
    rows.Bind(":from", period.from).Bind(":to", period.to).Bind(":state", state);
    Fill(rows);
  }
  void CloseAlarmsByDay(std::int32_t connection) override { Release(connection); }

  void AcknowledgeAlarms(std::int32_t connection, std::span<const std::int32_t> alarmIds, std::string_view userName,
                         std::int32_t& status) override {
    const std::string_view name = userName.substr(0, userName.find('\0'));
    ChangeEach(connection, alarmIds, kAcknowledgeAlarm, status,
               [&](Statement& statement) { statement.Bind(":user", name); });
  }
  void ActivateAlarms(std::int32_t connection, std::span<const std::int32_t> alarmIds, std::int32_t& status) override {
    ChangeEach(connection, alarmIds, kActivateAlarm, status, [](Statement&) {});
  }

 private:
  template <class Bind>
  void ChangeEach(std::int32_t connection, std::span<const std::int32_t> alarmIds, std::string_view sql,
                  std::int32_t& status, Bind bind) {
    const Database& database = At(connection);
    InTransaction(database, [&] {
      status = kStatusMissing;
      Statement change = database.Prepare(sql);
      bind(change);
      for (const std::int32_t alarm : alarmIds) {
        if (status != kStatusOk && Exists(database, kAlarmExists, alarm)) status = kStatusOk;
        change.Bind(":alarm", alarm).Step();
        change.Reset();
      }
    });
  }

  void Fill(Statement& rows) {
    count_ =
        FillColumns(rows, records_.lngAlarmId, records_.lngOwnerId, records_.strOwnerName, records_.dtDate,
                    records_.lngSeverity, records_.lngAction, records_.strOrigin, records_.strText,
                    records_.bAcknowledged, records_.strAcknowledgedBy, records_.dtAcknowledged,
                    records_.lngProcessLogId, records_.strProcessName, records_.lngProcessId, records_.bRunOnStation);
  }
};

}  // namespace

std::unique_ptr<datasource::RecordSource> CreateAlarmsLog(std::shared_ptr<const Connections> connections) {
  return std::make_unique<AlarmsLogSource>(std::move(connections));
}

}  // namespace quorvel::hub
