// Runs of the steps inside one task run.
#pragma once

#include "datasource/RecordSource.h"

namespace quorvel::datasource {

struct StepLogRecords {
  Column<std::int32_t> lngStepLogId;
  Column<std::int32_t> lngTaskRunId;
  TextColumn strStepName;
  TextColumn strSettings;
  TextColumn strReport;
  TextColumn strExecuteWhere;  // the stored code: "Server", "Station", "Communication"
  Column<DateValue> dtStartDate;
  Column<DateValue> dtEndDate;
  Column<Flag> bInProgress;
  Column<Flag> bResultOk;
  Column<Flag> bResultNotOk;
  Column<std::int32_t> lngStepKind;
  Column<std::int32_t> lngStationScope;  // 0: the step ran once for all stations

  // Calls visit(name, column) for each column, in member order.
  template <class Self, class Visit>
  static void ForEachColumn(Self& self, Visit visit) {
    visit("lngStepLogId", self.lngStepLogId);
    visit("lngTaskRunId", self.lngTaskRunId);
    visit("strStepName", self.strStepName);
    visit("strSettings", self.strSettings);
    visit("strReport", self.strReport);
    visit("strExecuteWhere", self.strExecuteWhere);
    visit("dtStartDate", self.dtStartDate);
    visit("dtEndDate", self.dtEndDate);
    visit("bInProgress", self.bInProgress);
    visit("bResultOk", self.bResultOk);
    visit("bResultNotOk", self.bResultNotOk);
    visit("lngStepKind", self.lngStepKind);
    visit("lngStationScope", self.lngStationScope);
  }
};

class StepLog : public RecordSource {
 public:
  static constexpr std::string_view kClassIdentifier = "clRecordHub.StepLog";

  // The steps of a task in a run on a station, in the order in which they ran; a task that ran once for all stations
  // counts for each. taskId, userId -1: of all tasks, all stations. Status 1: there is no such task run.
  virtual void GetStepLogByTaskRun(std::int32_t connection, std::int32_t taskId, std::int32_t processLogId,
                                   std::int32_t userId, std::int32_t& status) = 0;
  virtual void CloseStepLog(std::int32_t connection) = 0;

  // Valid until the next call that is not const.
  virtual const StepLogRecords& Records() const = 0;
};

}  // namespace quorvel::datasource
