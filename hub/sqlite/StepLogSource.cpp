// Runs of the steps inside one task run, over SQLite.
#include "datasource/StepLog.h"

#include "hub/sqlite/FillColumns.h"
#include "hub/sqlite/Filters.h"
#include "hub/sqlite/Queries.h"
#include "hub/sqlite/RecordSources.h"
#include "hub/sqlite/SourceBase.h"

namespace quorvel::hub {
namespace {

class StepLogSource final : public SourceBase<datasource::StepLog, datasource::StepLogRecords> {
 public:
  using SourceBase::SourceBase;

  void GetStepLogByTaskRun(std::int32_t connection, std::int32_t taskId, std::int32_t processLogId, std::int32_t userId,
                           std::int32_t& status) override {
    const Database& database = Begin(connection, "GetStepLogByTaskRun");
    const bool exact = taskId != kAnyId && userId != kAnyId;
    const auto prepare = [&](std::string_view sql) {
      Statement rows = database.Prepare(sql);
      rows.Bind(":run", processLogId).Bind(":station", userId).Bind(":task", taskId);
      return rows;
    };
    status = kStatusMissing;
    if (!prepare(exact ? kTaskRunExists : kAnyTaskRunExists).Step()) return;
    status = kStatusOk;

    Statement rows = prepare(exact ? kStepsOfTask : kStepsOfAnyTask);
    count_ = FillColumns(rows, records_.lngStepLogId, records_.lngTaskRunId, records_.strStepName, records_.strSettings,
                         records_.strReport, records_.strExecuteWhere, records_.dtStartDate, records_.dtEndDate,
                         records_.bInProgress, records_.bResultOk, records_.bResultNotOk, records_.lngStepKind,
                         records_.lngStationScope);
  }

  void CloseStepLog(std::int32_t connection) override { Release(connection); }
};

}  // namespace

std::unique_ptr<datasource::RecordSource> CreateStepLog(std::shared_ptr<const Connections> connections) {
  return std::make_unique<StepLogSource>(std::move(connections));
}

}  // namespace quorvel::hub
