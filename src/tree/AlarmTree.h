// The tree of alarms: their owners, the days on which each had some, and all owners together.
#pragma once

#include <cstdint>
#include <string_view>

#include "datasource/AlarmsLog.h"
#include "list/AlarmRecord.h"
#include "platform/Platform.h"
#include "widgets/TreeView.h"

namespace quorvel::tree {

// Whose alarms the host asked for.
enum class AlarmOwners {
  kAll,  // "All alarms" (LOGAALL) stands first, with the days of all, then each owner (LOGAUSR)
  kOne,  // one owner or one alarm: the owner alone (LOGA1USR)
};

// Appends owners and their days, whole, for the rows of GetAlarms that `choice` takes to `tree`, one pass: rows come by
// owner, newest first. A node shows the worst below it: an active alarm before one that was acknowledged, then the
// greatest severity, then the newest; while alarms are active it stands out and says how many. An alarm without a date
// belongs to no day. `platform` formats the days. Error 9 when a column lacks rows.
void AppendAlarmNodes(const datasource::AlarmsLogRecords& rows, std::int32_t count, AlarmOwners owners,
                      const list::AlarmChoice& choice, const Platform& platform, widgets::TreeView& tree);

// What the node of an owner or of a day stands for.
struct AlarmsOfNode {
  std::int32_t owner = list::kAllOwners;
  DateValue day = 0;  // 0 = all of the owner
};

// Reads the key of such a node. Errors 13 and 6 for fields that are no numbers or days.
AlarmsOfNode ReadAlarmKey(std::string_view key);

}  // namespace quorvel::tree
