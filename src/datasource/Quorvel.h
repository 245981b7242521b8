// Runs of the tasks inside one process run.
#pragma once

#include "datasource/RecordSource.h"

namespace quorvel::datasource {

struct TaskRunRecords {
  Column<std::int32_t> lngTaskRunId;
  Column<std::int32_t> lngTaskId;
  TextColumn strTaskName;
  TextColumn strTaskType;  // the stored code, for example "Teledistribution"
  Column<Flag> bNotExecuted;
  Column<std::int32_t> lngStationScope;  // 0: the task ran once for all stations
  Column<Flag> bWaiting;
  TextColumn strReport;
  Column<DateValue> dtStartDate;
  Column<DateValue> dtEndDate;
  Column<Flag> bInProgress;
  Column<Flag> bResultOk;
  Column<Flag> bResultNotOk;

  // Calls visit(name, column) for each column, in member order.
  template <class Self, class Visit>
  static void ForEachColumn(Self& self, Visit visit) {
    visit("lngTaskRunId", self.lngTaskRunId);
    visit("lngTaskId", self.lngTaskId);
    visit("strTaskName", self.strTaskName);
    visit("strTaskType", self.strTaskType);
    visit("bNotExecuted", self.bNotExecuted);
    visit("lngStationScope", self.lngStationScope);
    visit("bWaiting", self.bWaiting);
    visit("strReport", self.strReport);
    visit("dtStartDate", self.dtStartDate);
    visit("dtEndDate", self.dtEndDate);
    visit("bInProgress", self.bInProgress);
    visit("bResultOk", self.bResultOk);
    visit("bResultNotOk", self.bResultNotOk);
  }
};

class Quorvel : public RecordSource {
 public:
  static constexpr std::string_view kClassIdentifier = "clRecordHub.Quorvel";

  // The tasks of a run for one station, in the order in which the process runs them, with those that ran once for all
  // stations. onStation tells where the run is. userId -1: the tasks of all stations, station by station.
  // Status 1: there is no such run there.
  virtual void GetTaskRunsByProcessLog(std::int32_t connection, std::int32_t processLogId, bool onStation,
                                       std::int32_t userId, std::int32_t& status) = 0;
  virtual void CloseTaskRuns(std::int32_t connection) = 0;

  // Valid until the next call that is not const.
  virtual const TaskRunRecords& Records() const = 0;
};

}  // namespace quorvel::datasource
