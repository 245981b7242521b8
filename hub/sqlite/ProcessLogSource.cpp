// Runs of processes and the stations that took part in them, over SQLite.
#include <algorithm>

#include "datasource/ProcessLog.h"
#include "hub/sqlite/FillColumns.h"
#include "hub/sqlite/Filters.h"
#include "hub/sqlite/Queries.h"
#include "hub/sqlite/RecordSources.h"
#include "hub/sqlite/SourceBase.h"

namespace quorvel::hub {
namespace {

using datasource::Flag;
using datasource::kFalse;
using datasource::kTrue;

// Outcomes of a run, as the view run_outcome gives them.
constexpr std::int32_t kOutcomeOk = 1;
constexpr std::int32_t kOutcomeInProgress = 3;

// Where a run is, as GetProcessLogByUser filters it.
constexpr std::int32_t kOnServer = 0;
constexpr std::int32_t kOnStation = 1;

class ProcessLogSource final : public SourceBase<datasource::ProcessLog, datasource::ProcessLogRecords> {
 public:
  using SourceBase::SourceBase;

  void GetProcessLogs(std::int32_t connection, DateValue dateFrom, DateValue dateTo, std::int32_t stateCode,
                      std::int32_t processId, std::int32_t userId, std::int32_t companyId, std::int32_t reserved1,
                      std::int32_t reserved2, std::int32_t& status) override;
  void CloseProcessLogs(std::int32_t connection) override { Release(connection); }
  void GetProcessLogByProcess(std::int32_t connection, std::int32_t processId, std::int32_t reserved1,
                              std::int32_t reserved2, std::int32_t& status) override;
  void GetProcessLogByUser(std::int32_t connection, DateValue serverFrom, DateValue serverTo, DateValue stationFrom,
                           DateValue stationTo, std::int32_t stateCode, std::int32_t processId, std::int32_t userId,
                           std::int32_t companyId, std::int32_t onStation, std::int32_t& status) override;
  void CloseProcessLogByUser(std::int32_t connection) override { Release(connection); }
  void GetProcessLogsByName(std::int32_t connection, DateValue dateFrom, DateValue dateTo, std::string_view processName,
                            std::int32_t& status) override;
  void CloseProcessLogsByName(std::int32_t connection) override { Release(connection); }
  void GetProcessLogByTask(std::int32_t connection, std::int32_t processLogId, std::int32_t state,
                           std::int32_t& status) override;
  void CloseProcessLogByTask(std::int32_t connection) override { Release(connection); }
  void GetProcessLogDetail(std::int32_t connection, std::int32_t processLogId, std::int32_t reserved1,
                           std::int32_t reserved2, std::int32_t& status) override;

  const datasource::ProcessLogDetail& Detail() const override { return detail_; }

 private:
  void FillRuns(const Database& database, std::int32_t processId, std::string_view processName, Period period);
  void FillRunsOfStations(Statement& rows);

  datasource::ProcessLogDetail detail_;
};

void ProcessLogSource::GetProcessLogs(std::int32_t connection, DateValue dateFrom, DateValue dateTo,
                                      std::int32_t stateCode, std::int32_t processId, std::int32_t userId,
                                      std::int32_t companyId, std::int32_t /*reserved1*/, std::int32_t /*reserved2*/,
                                      std::int32_t& status) {
  const Database& database = Begin(connection, "GetProcessLogs");
  const bool last = stateCode == kLastExecution;
  status = kStatusNoPeriod;
  if (!last && !Period{dateFrom, dateTo}.valid()) return;
  status = kStatusMissing;
  if (IsMissing(database, kProcessExists, processId)) return;
  status = kStatusOk;

  Statement rows = PrepareFor(database, last ? kStationsOfLastRuns : kStationsOfRuns, ":process", processId);
  rows.Bind(":station", userId).Bind(":company", companyId);
  if (!last) rows.Bind(":from", dateFrom).Bind(":to", dateTo).Bind(":state", stateCode);
  constexpr std::size_t kColumnsOfRun = 7;
  count_ = FillColumns<kColumnsOfRun>(
      rows, records_.lngProcessLogId, records_.lngProcessId, records_.strProcessName, records_.bProcessOnServer,
      records_.bProcessOnStation, records_.dtStartDate, records_.bRunOnStation, records_.lngUserId,
      records_.bInProgress, records_.bResultOk, records_.bResultNotOk, records_.bResultUnknown, records_.bExecuted);
}

void ProcessLogSource::GetProcessLogByProcess(std::int32_t connection, std::int32_t processId,
                                              std::int32_t /*reserved1*/, std::int32_t /*reserved2*/,
                                              std::int32_t& status) {
  const Database& database = Begin(connection, "GetProcessLogByProcess");
  status = kStatusMissing;
  if (IsMissing(database, kProcessExists, processId)) return;
  status = kStatusOk;
  FillRuns(database, processId, "", kAlways);
}

void ProcessLogSource::GetProcessLogsByName(std::int32_t connection, DateValue dateFrom, DateValue dateTo,
                                            std::string_view processName, std::int32_t& status) {
  const Database& database = Begin(connection, "GetProcessLogsByName");
  status = kStatusNoPeriod;
  if (!Period{dateFrom, dateTo}.valid()) return;
  status = kStatusOk;
  FillRuns(database, kAnyId, processName, {dateFrom, dateTo});
}

void ProcessLogSource::FillRuns(const Database& database, std::int32_t processId, std::string_view processName,
                                Period period) {
  Statement rows = PrepareFor(database, kRunsWithCounts, ":process", processId);
  rows.Bind(":name", processName).Bind(":from", period.from).Bind(":to", period.to);
  count_ =
      FillColumns(rows, records_.lngProcessLogId, records_.lngProcessId, records_.strProcessName, records_.dtStartDate,
                  records_.dtEndDate, records_.bRunOnStation, records_.lngOk, records_.lngNotOk, records_.lngInProgress,
                  records_.lngNotExecuted, records_.lngUnknown, records_.dtStopRequested);
  datasource::GrowingArray<std::int32_t> stations;
  stations.reserve(static_cast<std::size_t>(count_));
  for (std::size_t run = 0; run < static_cast<std::size_t>(count_); ++run) {
    stations.push_back(records_.lngOk[run] + records_.lngNotOk[run] + records_.lngInProgress[run] +
                       records_.lngNotExecuted[run] + records_.lngUnknown[run]);
  }
  records_.lngStations = datasource::Column(std::move(stations));
}

void ProcessLogSource::GetProcessLogByUser(std::int32_t connection, DateValue serverFrom, DateValue serverTo,
                                           DateValue stationFrom, DateValue stationTo, std::int32_t stateCode,
                                           std::int32_t processId, std::int32_t userId, std::int32_t companyId,
                                           std::int32_t onStation, std::int32_t& status) {
  const Database& database = Begin(connection, "GetProcessLogByUser");
  const Period server = onStation == kOnStation ? Period{stationFrom, stationTo} : Period{serverFrom, serverTo};
  const Period station = onStation == kOnServer ? Period{serverFrom, serverTo} : Period{stationFrom, stationTo};
  const bool last = stateCode == kLastExecution;
  status = kStatusNoPeriod;
  if (!last && !(server.valid() && station.valid())) return;
  status = kStatusMissing;
  if (IsMissing(database, kStationExists, userId) || IsMissing(database, kProcessExists, processId)) return;
  status = kStatusOk;

  const std::string_view sql = last ? kLastRunsOfStations : kRunsOfStations;
  Statement rows = userId != kAnyId ? PrepareFor(database, sql, ":station", userId)
                                    : PrepareFor(database, sql, ":process", processId);
  rows.Bind(":station", userId).Bind(":company", companyId).Bind(":process", processId).Bind(":onStation", onStation);
  if (!last) {
    rows.Bind(":from", std::min(server.from, station.from)).Bind(":to", std::max(server.to, station.to));
    rows.Bind(":serverFrom", server.from).Bind(":serverTo", server.to);
    rows.Bind(":stationFrom", station.from).Bind(":stationTo", station.to).Bind(":state", stateCode);
  }
  FillRunsOfStations(rows);
}

void ProcessLogSource::FillRunsOfStations(Statement& rows) {
  count_ = FillColumns(rows, records_.lngProcessLogId, records_.lngProcessId, records_.strProcessName,
                       records_.bProcessOnServer, records_.bProcessOnStation, records_.dtStartDate, records_.dtEndDate,
                       records_.bRunOnStation, records_.lngUserId, records_.strUserName, records_.strIdentifier,
                       records_.bInProgress, records_.bResultOk, records_.bResultNotOk, records_.bResultUnknown,
                       records_.bExecuted, records_.strWaitState);
}

void ProcessLogSource::GetProcessLogByTask(std::int32_t connection, std::int32_t processLogId, std::int32_t state,
                                           std::int32_t& status) {
  const Database& database = Begin(connection, "GetProcessLogByTask");
  status = kStatusMissing;
  if (!Exists(database, kRunExists, processLogId)) return;
  status = kStatusOk;

  Statement rows = database.Prepare(kStationsOfState);
  rows.Bind(":run", processLogId).Bind(":state", state);
  count_ = FillColumns(rows, records_.dtStartDate, records_.dtEndDate, records_.lngUserId, records_.strUserName,
                       records_.strIdentifier, records_.strCompany, records_.strReport, records_.bInProgress,
                       records_.bResultOk, records_.bResultNotOk, records_.bResultUnknown, records_.bExecuted,
                       records_.strWaitState);
}

void ProcessLogSource::GetProcessLogDetail(std::int32_t connection, std::int32_t processLogId,
                                           std::int32_t /*reserved1*/, std::int32_t /*reserved2*/,
                                           std::int32_t& status) {
  const Database& database = Begin(connection, "GetProcessLogDetail");
  detail_ = {};
  status = kStatusMissing;
  Statement run = database.Prepare(kRunDetail);
  if (!run.Bind(":run", processLogId).Step()) return;

  datasource::ProcessLogDetail detail;
  detail.lngProcessLogId = processLogId;
  detail.strProcessName = run.Text(0);
  detail.dtStartDate = run.Get<double>(1);
  detail.dtEndDate = run.Get<double>(2);
  detail.bOnServer = run.Get<Flag>(3) == kFalse ? kTrue : kFalse;
  const auto outcome = run.Get<std::int32_t>(4);
  detail.bInProgress = outcome == kOutcomeInProgress ? kTrue : kFalse;
  detail.bResultOk = outcome == kOutcomeOk ? kTrue : kFalse;

  Statement stations = database.Prepare(kFirstTwoStations);
  if (stations.Bind(":run", processLogId).Step()) {
    std::string name = stations.Text(0);
    std::string identifier = stations.Text(1);
    if (!stations.Step()) {
      detail.strUserName = std::move(name);
      detail.strStationName = std::move(identifier);
    }
  }
  detail_ = std::move(detail);
  status = kStatusOk;
}

}  // namespace

std::unique_ptr<datasource::RecordSource> CreateProcessLog(std::shared_ptr<const Connections> connections) {
  return std::make_unique<ProcessLogSource>(std::move(connections));
}

}  // namespace quorvel::hub
