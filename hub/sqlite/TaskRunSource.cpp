// Runs of the tasks inside one process run, over SQLite.
#include "datasource/Quorvel.h"
#include "hub/sqlite/FillColumns.h"
#include "hub/sqlite/Filters.h"
#include "hub/sqlite/Queries.h"
#include "hub/sqlite/RecordSources.h"
#include "hub/sqlite/SourceBase.h"

namespace quorvel::hub {
namespace {

class TaskRunSource final : public SourceBase<datasource::Quorvel, datasource::TaskRunRecords> {
 public:
  using SourceBase::SourceBase;

  void GetTaskRunsByProcessLog(std::int32_t connection, std::int32_t processLogId, bool onStation, std::int32_t userId,
                               std::int32_t& status) override {
    const Database& database = Begin(connection, "GetTaskRunsByProcessLog");
    status = kStatusMissing;
    Statement run = database.Prepare(kRunExistsThere);
    if (!run.Bind(":run", processLogId).Bind(":onStation", onStation ? 1 : 0).Step()) return;
    status = kStatusOk;

    Statement rows = database.Prepare(userId == kAnyId ? kTasksOfRun : kTasksOfStation);
    rows.Bind(":run", processLogId);
    if (userId != kAnyId) rows.Bind(":station", userId);
    count_ = FillColumns(rows, records_.lngTaskRunId, records_.lngTaskId, records_.strTaskName, records_.strTaskType,
                         records_.bNotExecuted, records_.lngStationScope, records_.bWaiting, records_.strReport,
                         records_.dtStartDate, records_.dtEndDate, records_.bInProgress, records_.bResultOk,
                         records_.bResultNotOk);
  }

  void CloseTaskRuns(std::int32_t connection) override { Release(connection); }
};

}  // namespace

std::unique_ptr<datasource::RecordSource> CreateTaskRuns(std::shared_ptr<const Connections> connections) {
  return std::make_unique<TaskRunSource>(std::move(connections));
}

}  // namespace quorvel::hub
