// The list of alarms: those of an owner or of a day, with who acknowledged them and the process they refer to.
#pragma once

#include <cstdint>
#include <string_view>

#include "datasource/AlarmsLog.h"
#include "list/AlarmRecord.h"
#include "list/ListParts.h"

namespace quorvel::list {

// The column that says whether somebody has seen an alarm, and what it says.
inline constexpr std::string_view kAlarmStateCaption = "State";
inline constexpr std::string_view kActiveAlarmText = "Active";
inline constexpr std::string_view kAcknowledgedAlarmText = "Acknowledged";

// Which columns there are besides those that every list of alarms has.
struct AlarmLayout {
  bool owner = false;    // where alarms of several owners stand together
  bool process = false;  // the process and its run
};

// The first caption tells the layouts apart.
Headers AlarmListHeaders(AlarmLayout layout);

// A row for each row of GetAlarms or GetAlarmsByDay that `choice` takes, in their order; none when it takes none. Its
// key is the alarm's identifier, "|", `nodeKey`; where a run raised the alarm that is still there, its process, flag
// and number follow. Active alarms stand out. Error 9 when a column lacks rows.
Rows AlarmListRows(const datasource::AlarmsLogRecords& records, std::int32_t count, std::string_view nodeKey,
                   const Platform& platform, AlarmLayout layout, const AlarmChoice& choice);

}  // namespace quorvel::list
