// One row of AlarmsLog, read the same way by the list and the tree.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "datasource/AlarmsLog.h"
#include "list/Classification.h"
#include "util/KeyDates.h"

namespace quorvel::list {

// As an owner it stands for all of them, in node keys and as a filter alike.
inline constexpr std::int32_t kAllOwners = -1;

// Nobody has acknowledged the alarm, or it was activated again. A state is made of four flags, of which an alarm has
// one: it is active in the state that no flag gives. Whatever else the flag holds, somebody has seen the alarm.
inline bool IsActiveAlarm(const datasource::AlarmsLogRecords& rows, std::size_t row) {
  constexpr std::int32_t kNoFlagSet = 4;
  using datasource::kFalse;
  return GetProcessState(rows.bAcknowledged[row], kFalse, kFalse, kFalse) == kNoFlagSet;
}

// The station that the alarm is about, or the server.
inline std::string_view AlarmOwner(const datasource::AlarmsLogRecords& rows, std::size_t row) {
  constexpr std::int32_t kServer = 0;
  return rows.lngOwnerId[row] == kServer ? std::string_view("Server") : NamedStation(rows.strOwnerName[row]);
}

enum class AlarmsShown { kAll, kActive, kAcknowledged, kNone };

// Which of the alarms that a query gave are wanted: GetAlarms filters by none of these.
struct AlarmChoice {
  std::int32_t owner = kAllOwners;
  AlarmsShown shown = AlarmsShown::kAll;
  std::optional<util::Period> period = std::nullopt;  // nothing = any time

  bool TakesAll() const { return owner == kAllOwners && shown == AlarmsShown::kAll && !period; }
  bool Takes(const datasource::AlarmsLogRecords& rows, std::size_t row) const {
    if (owner != kAllOwners && rows.lngOwnerId[row] != owner) return false;
    if (period && !period->Holds(rows.dtDate[row])) return false;
    if (shown == AlarmsShown::kAll) return true;
    return shown == (IsActiveAlarm(rows, row) ? AlarmsShown::kActive : AlarmsShown::kAcknowledged);
  }
};

}  // namespace quorvel::list
