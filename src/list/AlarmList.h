// The list of alarms: those of an owner or of a day, with who acknowledged them and the process they refer to.
#pragma once

#include <cstdint>
#include <string_view>

#include "datasource/AlarmsLog.h"
#include "list/AlarmRecord.h"
#include "list/ListParts.h"

namespace quorvel::list {

// Which columns there are besides those that every list of alarms has.
struct AlarmLayout {
  bool owner = false;    // where alarms of several owners stand together
  bool process = false;  // the process and its run
};

// The first caption tells the layouts apart.
Headers AlarmListHeaders(AlarmLayout layout);

// A row for each row of GetAlarms or GetAlarmsByDay that `choice` takes, in their order; none when it takes none. Its
// key is the alarm's identifier, "|", `nodeKey`; where a run raised the alarm, "|" and the run follow. Active alarms
// stand out. Error 9 when a column lacks rows.
Rows AlarmListRows(const datasource::AlarmsLogRecords& records, std::int32_t count, std::string_view nodeKey,
                   const Platform& platform, AlarmLayout layout, const AlarmChoice& choice);

// The run that raised the alarm of a row, by the row's key; 0 = none. Errors 13 and 6 for a field that is no number.
std::int32_t RunOfAlarmKey(std::string_view rowKey);

}  // namespace quorvel::list
