// The scheduler's own system log.
#pragma once

#include "datasource/RecordSource.h"

namespace quorvel::datasource {

struct TaskSchedulerLogRecords {
  Column<std::int32_t> lngLevel;  // 1 information, 2 error, 3 notice
  Column<std::int32_t> lngLogId;
  TextColumn strDate;  // "2026-11-20 23:05:07" whatever the regional settings, so that it can be read as a date
  TextColumn strMachine;
  TextColumn strLabel;
  TextColumn strCompany;
  TextColumn strUserName;
  TextColumn strAttachment;  // full path of a file as recorded, "" = none; it may be gone

  // Calls visit(name, column) for each column, in member order.
  template <class Self, class Visit>
  static void ForEachColumn(Self& self, Visit visit) {
    visit("lngLevel", self.lngLevel);
    visit("lngLogId", self.lngLogId);
    visit("strDate", self.strDate);
    visit("strMachine", self.strMachine);
    visit("strLabel", self.strLabel);
    visit("strCompany", self.strCompany);
    visit("strUserName", self.strUserName);
    visit("strAttachment", self.strAttachment);
  }
};

class TaskSchedulerLog : public RecordSource {
 public:
  static constexpr std::string_view kClassIdentifier = "clRecordHub.TaskSchedulerLog";

  // Log rows of dateFrom <= date < dateTo, newest first. kind is 3, the scheduler's log; it is no level: all levels are
  // listed. stateCode: 0 all, 1 information, 2 error, 5 any other level. The result has no release of its own. Status
  // 1: another kind, 2: the period is none.
  virtual void GetTaskSchedulerLogs(std::int32_t connection, DateValue dateFrom, DateValue dateTo, std::int32_t kind,
                                    std::int32_t stateCode, std::int32_t companyId, std::int32_t& status) = 0;

  // Valid until the next call that is not const.
  virtual const TaskSchedulerLogRecords& Records() const = 0;
};

}  // namespace quorvel::datasource
