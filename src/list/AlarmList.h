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
// key is the alarm's identifier, "|", `nodeKey`; where a run raised the alarm that is still there, its process, flag
// and number follow. Active alarms stand out. Error 9 when a column lacks rows.
Rows AlarmListRows(const datasource::AlarmsLogRecords& records, std::int32_t count, std::string_view nodeKey,
                   const Platform& platform, AlarmLayout layout, const AlarmChoice& choice);

// The key that the run which raised the alarm of a row has in the tree by process, by the row's key: with it as p_Key a
// host shows the alarm's context. "" where there is none.
std::string RunKeyOfAlarm(std::string_view rowKey);

}  // namespace quorvel::list
