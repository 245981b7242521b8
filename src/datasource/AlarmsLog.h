// Alarms, with their acknowledgement.
#pragma once

#include <span>
#include <string_view>

#include "datasource/RecordSource.h"

namespace quorvel::datasource {

struct AlarmsLogRecords {
  Column<std::int32_t> lngAlarmId;
  Column<std::int32_t> lngOwnerId;  // the station that the alarm is about, 0 = the server
  TextColumn strOwnerName;
  Column<DateValue> dtDate;
  Column<std::int32_t> lngSeverity;
  Column<std::int32_t> lngAction;  // 1 to 5: what the alarm triggered; else a plain alarm
  TextColumn strOrigin;            // "Server" is special
  TextColumn strText;
  Column<Flag> bAcknowledged;
  TextColumn strAcknowledgedBy;
  Column<DateValue> dtAcknowledged;
  Column<std::int32_t> lngProcessLogId;  // the run that raised it, 0 = none
  TextColumn strProcessName;
  Column<std::int32_t> lngProcessId;  // the process of that run, 0 = none, or the run is gone
  Column<Flag> bRunOnStation;         // non-zero: the run is on a station

  // Calls visit(name, column) for each column, in member order.
  template <class Self, class Visit>
  static void ForEachColumn(Self& self, Visit visit) {
    visit("lngAlarmId", self.lngAlarmId);
    visit("lngOwnerId", self.lngOwnerId);
    visit("strOwnerName", self.strOwnerName);
    visit("dtDate", self.dtDate);
    visit("lngSeverity", self.lngSeverity);
    visit("lngAction", self.lngAction);
    visit("strOrigin", self.strOrigin);
    visit("strText", self.strText);
    visit("bAcknowledged", self.bAcknowledged);
    visit("strAcknowledgedBy", self.strAcknowledgedBy);
    visit("dtAcknowledged", self.dtAcknowledged);
    visit("lngProcessLogId", self.lngProcessLogId);
    visit("strProcessName", self.strProcessName);
    visit("lngProcessId", self.lngProcessId);
    visit("bRunOnStation", self.bRunOnStation);
  }
};

class AlarmsLog : public RecordSource {
 public:
  static constexpr std::string_view kClassIdentifier = "clRecordHub.AlarmsLog";

  // Alarms by owner name, newest first; alarmId: one alarm, -1 all. Status 1: alarmId does not exist.
  virtual void GetAlarms(std::int32_t connection, std::int32_t alarmId, std::int32_t reserved,
                         std::int32_t& status) = 0;
  virtual void CloseAlarms(std::int32_t connection) = 0;

  // Alarms of one day, newest first; day 0: of every day, and those without a date. state: 0 active, 1 acknowledged,
  // -1 both. Status 2: there is no such day.
  virtual void GetAlarmsByDay(std::int32_t connection, DateValue day, std::int32_t ownerId, std::int32_t state,
                              std::int32_t& status) = 0;
  virtual void CloseAlarmsByDay(std::int32_t connection) = 0;

  // Valid until the next call that is not const.
  virtual const AlarmsLogRecords& Records() const = 0;

  // Marks these alarms as acknowledged, now and by `userName`, which ends at a NUL in it; those that are acknowledged
  // already keep who did it. All are changed or, by an error, none. Status 1: none of them is there any more.
  virtual void AcknowledgeAlarms(std::int32_t connection, std::span<const std::int32_t> alarmIds,
                                 std::string_view userName, std::int32_t& status) = 0;
  // Makes these alarms active again, in the same way.
  virtual void ActivateAlarms(std::int32_t connection, std::span<const std::int32_t> alarmIds,
                              std::int32_t& status) = 0;
};

}  // namespace quorvel::datasource
