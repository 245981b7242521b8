// The menu commands, as the menus, a host's own menu and the public methods run them.
#include <algorithm>
#include <iterator>

#include "control/Entry.h"
#include "util/PublicFunctions.h"
#include "util/WholeTree.h"

namespace quorvel {

using datasource::Reporting;

// The codes of m_MenuCall.
struct ucProcessLog::Command {
  std::int32_t code;
  std::string_view label;
  void (ucProcessLog::*run)();  // nullptr: not part of this version
};

const ucProcessLog::Command* ucProcessLog::CommandOf(std::int32_t code) {
  static constexpr Command kCommands[] = {
      {kOpen, "Quorvel: ucProcessLog.mnu_open_Click", nullptr},
      {6, "Quorvel: ucProcessLog.mnu_copy_Click", &ucProcessLog::mnu_copy_Click},
      {12, "Quorvel: ucProcessLog.mnu_select_all_Click", &ucProcessLog::mnu_select_all_Click},
      {13, "Quorvel: ucProcessLog.mnu_open_file_Click", nullptr},
      {14, "Quorvel: ucProcessLog.mnu_report_Click", nullptr},
      {15, "Quorvel: ucProcessLog.mnu_stop_execution_Click", nullptr},
      {20, "Quorvel: ucProcessLog.mnu_Acquitted_Alarms_Click", nullptr},
      {21, "Quorvel: ucProcessLog.mnu_Activated_Alarms_Click", nullptr},
      {22, "Quorvel: ucProcessLog.mnu_Goto_Process_Click", nullptr},
      {23, "Quorvel: ucProcessLog.mnu_popupTV_Expand_all_Click", &ucProcessLog::mnu_popupTV_Expand_all_Click},
      {24, "Quorvel: ucProcessLog.mnu_popupTV_Collapse_all_Click", &ucProcessLog::mnu_popupTV_Collapse_all_Click},
  };
  const auto* const found = std::ranges::find(kCommands, code, &Command::code);
  return found == std::end(kCommands) ? nullptr : found;
}

void ucProcessLog::m_MenuCall(std::int32_t& command) {
  const Command* const found = CommandOf(command);
  if (found == nullptr) return;
  if (found->run != nullptr) return (this->*found->run)();
  Reporting(errors_, found->label, [] { throw NotInThisVersion("This command"); });
}

void ucProcessLog::m_Open() {
  std::int32_t code = kOpen;
  if (controls_.lvMotherList.SelectedItem()) m_MenuCall(code);
}

void ucProcessLog::m_Copy() {
  mnu_copy_Click();
}

void ucProcessLog::m_SelectAll() {
  mnu_select_all_Click();
}

void ucProcessLog::m_GetDetail() {
  datasource::Propagating("Quorvel: ucProcessLog.m_GetDetail", [] { throw NotInThisVersion("The detail"); });
}

void ucProcessLog::m_GetMenuState(bool& menuVisible, bool& openEnabled, bool& copyNoteBookEnabled,
                                  bool& openJoinFileVisible, bool& executionReportEnabled, bool& selectAllEnabled,
                                  bool& stopExecutionEnabled, bool& acquittedAlarmEnabled, bool& activatedAlarmEnabled,
                                  bool& gotoProcessEnabled, bool& tvExpandAllEnabled, bool& tvCollapseAllEnabled,
                                  bool& openJoinFileEnabled) const {
  for (bool* const flag :
       {&menuVisible, &openEnabled, &copyNoteBookEnabled, &openJoinFileVisible, &executionReportEnabled,
        &selectAllEnabled, &stopExecutionEnabled, &acquittedAlarmEnabled, &activatedAlarmEnabled, &gotoProcessEnabled,
        &tvExpandAllEnabled, &tvCollapseAllEnabled, &openJoinFileEnabled}) {
    *flag = false;
  }
}

void ucProcessLog::mnu_copy_Click() {
  Handle("Quorvel: ucProcessLog.mnu_copy_Click", [&] { util::m_CopyListView(platform_, controls_.lvMotherList); });
}

void ucProcessLog::mnu_select_all_Click() {
  Handle("Quorvel: ucProcessLog.mnu_select_all_Click", [&] {
    widgets::ListView& list = controls_.lvMotherList;
    list.SetSelection(widgets::RowRanges(widgets::RowRange{0, list.Count()}), list.SelectedItem());
  });
}

void ucProcessLog::mnu_popupTV_Expand_all_Click() {
  Handle("Quorvel: ucProcessLog.mnu_popupTV_Expand_all_Click", [&] { util::ExpandAll(controls_.tvMotherList); });
}

void ucProcessLog::mnu_popupTV_Collapse_all_Click() {
  Handle("Quorvel: ucProcessLog.mnu_popupTV_Collapse_all_Click", [&] { util::CollapseAll(controls_.tvMotherList); });
}

}  // namespace quorvel
