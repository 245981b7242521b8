// Commands of steps, over SQLite. Connections are not part of this schema.
#include "datasource/CommandLog.h"

#include <string>

#include "hub/HubError.h"
#include "hub/sqlite/FillColumns.h"
#include "hub/sqlite/Queries.h"
#include "hub/sqlite/RecordSources.h"
#include "hub/sqlite/SourceBase.h"

namespace quorvel::hub {
namespace {

[[noreturn]] void RaiseNoConnections(std::string_view query) {
  throw HubError(SystemError::kActionUnsupported,
                 std::string(query) + ": this history does not record the connections with stations");
}

class CommandLogSource final : public SourceBase<datasource::CommandLog, datasource::CommandLogRecords> {
 public:
  using SourceBase::SourceBase;

  void GetCommunications(std::int32_t connection, DateValue /*dateFrom*/, DateValue /*dateTo*/,
                         std::int32_t /*stateCode*/, std::int32_t /*userId*/, std::int32_t /*failedOnly*/,
                         std::int32_t& /*status*/) override {
    Release(connection);
    RaiseNoConnections("GetCommunications");
  }
  void CloseCommunications(std::int32_t connection) override { Release(connection); }

  void GetCommunicationsByMonth(std::int32_t connection, DateValue /*dateFrom*/, DateValue /*dateTo*/,
                                std::int32_t /*stateCode*/, std::int32_t /*userId*/,
                                std::int32_t& /*status*/) override {
    Release(connection);
    RaiseNoConnections("GetCommunicationsByMonth");
  }
  void CloseCommunicationsByMonth(std::int32_t connection) override { Release(connection); }

  void GetCommandLogByCommunication(std::int32_t connection, std::int32_t /*communicationId*/,
                                    std::int32_t& /*status*/) override {
    Release(connection);
    RaiseNoConnections("GetCommandLogByCommunication");
  }
  void CloseCommandLogByCommunication(std::int32_t connection) override { Release(connection); }

  void GetCommandLogByStepLog(std::int32_t connection, std::int32_t stepLogId, std::int32_t& status) override {
    const Database& database = Begin(connection);
    status = kStatusMissing;
    if (!Exists(database, kStepExists, stepLogId)) return;
    status = kStatusOk;

    Statement rows = database.Prepare(kCommandsOfStep);
    rows.Bind(":step", stepLogId);
    count_ =
        FillColumns(rows, records_.lngCommunicationId, records_.dtCommunicationDate, records_.lngCommandLogId,
                    records_.lngKind, records_.lngResult, records_.strText, records_.strReport, records_.dtStartDate,
                    records_.dtEndDate, records_.bInProgress, records_.bResultOk, records_.bResultNotOk);
  }
  void CloseCommandLogByStepLog(std::int32_t connection) override { Release(connection); }
};

}  // namespace

std::unique_ptr<datasource::RecordSource> CreateCommandLog(std::shared_ptr<const Connections> connections) {
  return std::make_unique<CommandLogSource>(std::move(connections));
}

}  // namespace quorvel::hub
