// Commands for alarms: acknowledging them, making them active again, and going to what they are about.
#include <string>
#include <vector>

#include "control/Entry.h"
#include "list/RowFacts.h"
#include "util/PublicFunctions.h"
#include "util/WindowAPI.h"

namespace quorvel {

using list::AlarmMark;

void ucProcessLog::mnu_Acquitted_Alarms_Click() {
  Handle("Quorvel: ucProcessLog.mnu_Acquitted_Alarms_Click", [&] { ChangeAlarms(AlarmMark::kActive); });
}

void ucProcessLog::mnu_Activated_Alarms_Click() {
  Handle("Quorvel: ucProcessLog.mnu_Activated_Alarms_Click", [&] { ChangeAlarms(AlarmMark::kAcknowledged); });
}

void ucProcessLog::ChangeAlarms(AlarmMark from) {
  if (controls_.lvMotherList.Selection().empty()) return;
  if (!MayChangeAlarms()) {
    platform_.ShowMessage("You have no right to acknowledge or activate alarms on this server.",
                          datasource::kProductTitle);
    return;
  }
  const std::vector<std::int32_t> alarms = SelectedAlarms(from);
  if (alarms.empty()) return;
  std::int32_t status = 0;
  if (from == AlarmMark::kActive) {
    AlarmsSource().AcknowledgeAlarms(f_lngConnect, alarms, AcknowledgingUser(), status);
  } else {
    AlarmsSource().ActivateAlarms(f_lngConnect, alarms, status);
  }
  // The alarms are changed, whatever becomes of the view.
  toTell_.emplace_back([this] { Raise(&HostEvents::UpdateAlarm); });
  BuildAgain();
}

std::vector<std::int32_t> ucProcessLog::SelectedAlarms(AlarmMark mark) const {
  constexpr std::int32_t kAlarmField = 1;
  const widgets::ListView& list = controls_.lvMotherList;
  std::vector<std::int32_t> alarms;
  for (const widgets::RowRange range : list.Selection().ranges()) {
    for (std::size_t row = range.first; row < range.last; ++row) {
      if (list::AlarmMarkOf(list, row) == mark) alarms.push_back(util::IdentifiantNumber(list.Key(row), kAlarmField));
    }
  }
  return alarms;
}

bool ucProcessLog::MayChangeAlarms() const {
  constexpr std::int32_t kAlarmRight = 16;
  return !serverMode_ || (f_lngConsoleLoginUserRight & kAlarmRight) != 0;
}

std::string ucProcessLog::AcknowledgingUser() const {
  const std::string user = util::VBGetUserNameEx(platform_);
  return user.empty() ? f_strConsoleLoginUserName : user;
}

void ucProcessLog::mnu_Goto_Process_Click() {
  Handle("Quorvel: ucProcessLog.mnu_Goto_Process_Click", [&] {
    const auto row = controls_.lvMotherList.SelectedItem();
    if (!row) return;
    toTell_.emplace_back([this, key = controls_.lvMotherList.Key(*row)] { Raise(&HostEvents::GoToLog, key); });
  });
}

}  // namespace quorvel
