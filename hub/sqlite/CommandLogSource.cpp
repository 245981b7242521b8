// Connections with stations, and commands of connections and of steps, over SQLite.
#include "datasource/CommandLog.h"

#include <optional>

#include "hub/sqlite/ConnectionQueries.h"
#include "hub/sqlite/FillColumns.h"
#include "hub/sqlite/Filters.h"
#include "hub/sqlite/Queries.h"
#include "hub/sqlite/RecordSources.h"

namespace quorvel::hub {
namespace {

class CommandLogSource final : public SourceBase<datasource::CommandLog, datasource::CommandLogRecords> {
 public:
  using SourceBase::SourceBase;

  void GetCommunications(std::int32_t connection, DateValue dateFrom, DateValue dateTo, std::int32_t stateCode,
                         std::int32_t userId, std::int32_t failedOnly, std::int32_t& status) override;
  void CloseCommunications(std::int32_t connection) override { Release(connection); }
  void GetCommunicationsByMonth(std::int32_t connection, DateValue dateFrom, DateValue dateTo, std::int32_t stateCode,
                                std::int32_t userId, std::int32_t& status) override;
  void CloseCommunicationsByMonth(std::int32_t connection) override { Release(connection); }
  void GetCommandLogByCommunication(std::int32_t connection, std::int32_t communicationId,
                                    std::int32_t& status) override;
  void CloseCommandLogByCommunication(std::int32_t connection) override { Release(connection); }
  void GetCommandLogByStepLog(std::int32_t connection, std::int32_t stepLogId, std::int32_t& status) override;
  void CloseCommandLogByStepLog(std::int32_t connection) override { Release(connection); }

 private:
  void FillCommands(Statement& rows);
};

// The newest connections of stations lie anywhere in time, so they may be asked for without a period. Nothing when the
// period is none.
std::optional<Period> PeriodOf(DateValue from, DateValue to, std::int32_t stateCode) {
  if (stateCode == kLastExecution && from == 0 && to == 0) return kAlways;
  const Period period{from, to};
  return period.valid() ? std::optional(period) : std::nullopt;
}

// One of two statements, by whether the newest of each station are wanted, up to what both of them filter by.
Statement PrepareCommunications(const Database& database, std::string_view all, std::string_view last,
                                std::int32_t stateCode, std::int32_t userId, const Period& period) {
  const bool newest = stateCode == kLastExecution;
  Statement rows = PrepareFor(database, newest ? last : all, ":station", userId);
  rows.Bind(":from", period.from).Bind(":to", period.to);
  if (!newest) rows.Bind(":state", stateCode);
  return rows;
}

void CommandLogSource::GetCommunications(std::int32_t connection, DateValue dateFrom, DateValue dateTo,
                                         std::int32_t stateCode, std::int32_t userId, std::int32_t failedOnly,
                                         std::int32_t& status) {
  const Database& database = Begin(connection, "GetCommunications");
  const std::optional<Period> period = PeriodOf(dateFrom, dateTo, stateCode);
  status = kStatusNoPeriod;
  if (!period) return;
  status = kStatusOk;

  Statement rows = PrepareCommunications(database, kCommunications, kLastCommunications, stateCode, userId, *period);
  rows.Bind(":failedOnly", failedOnly);
  count_ = FillColumns(rows, records_.lngCommunicationId, records_.dtCommunicationDate, records_.dtCommunicationEnd,
                       records_.lngUserId, records_.strUserName, records_.bFromStation, records_.lngSizeKb,
                       records_.strReport, records_.bInProgress, records_.bResultOk, records_.bResultNotOk);
}

void CommandLogSource::GetCommunicationsByMonth(std::int32_t connection, DateValue dateFrom, DateValue dateTo,
                                                std::int32_t stateCode, std::int32_t userId, std::int32_t& status) {
  const Database& database = Begin(connection, "GetCommunicationsByMonth");
  const std::optional<Period> period = PeriodOf(dateFrom, dateTo, stateCode);
  status = kStatusNoPeriod;
  if (!period) return;
  status = kStatusOk;

  Statement days =
      PrepareCommunications(database, kDaysOfCommunications, kDaysOfLastCommunications, stateCode, userId, *period);
  count_ = FillColumns(days, records_.dtCommunicationDate, records_.lngCommunications);
}

void CommandLogSource::GetCommandLogByCommunication(std::int32_t connection, std::int32_t communicationId,
                                                    std::int32_t& status) {
  const Database& database = Begin(connection, "GetCommandLogByCommunication");
  status = kStatusMissing;
  if (!Exists(database, kCommunicationExists, communicationId)) return;
  status = kStatusOk;

  Statement rows = database.Prepare(kCommandsOfCommunication);
  rows.Bind(":communication", communicationId);
  FillCommands(rows);
}

void CommandLogSource::GetCommandLogByStepLog(std::int32_t connection, std::int32_t stepLogId, std::int32_t& status) {
  const Database& database = Begin(connection, "GetCommandLogByStepLog");
  status = kStatusMissing;
  if (!Exists(database, kStepExists, stepLogId)) return;
  status = kStatusOk;

  Statement rows = database.Prepare(kCommandsOfStep);
  rows.Bind(":step", stepLogId);
  FillCommands(rows);
}

void CommandLogSource::FillCommands(Statement& rows) {
  count_ = FillColumns(rows, records_.lngCommunicationId, records_.dtCommunicationDate, records_.lngCommandLogId,
                       records_.lngKind, records_.lngResult, records_.strText, records_.strReport, records_.dtStartDate,
                       records_.dtEndDate, records_.bInProgress, records_.bResultOk, records_.bResultNotOk);
}

}  // namespace

std::unique_ptr<datasource::RecordSource> CreateCommandLog(std::shared_ptr<const Connections> connections) {
  return std::make_unique<CommandLogSource>(std::move(connections));
}

}  // namespace quorvel::hub
