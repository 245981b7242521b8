// The menu commands, as the menus, a host's own menu and the public methods run them.
#include <algorithm>
#include <iterator>
#include <string>

#include "control/Entry.h"
#include "control/Menus.h"
#include "list/RowFacts.h"
#include "util/PublicFunctions.h"
#include "util/WholeTree.h"

namespace quorvel {

ucProcessLog::CommandHandler ucProcessLog::HandlerOf(std::int32_t code) {
  struct Command {
    MenuCommand code;
    CommandHandler handler;
  };
  static constexpr Command kCommands[] = {
      {MenuCommand::kOpen, &ucProcessLog::mnu_open_Click},
      {MenuCommand::kCopy, &ucProcessLog::mnu_copy_Click},
      {MenuCommand::kSelectAll, &ucProcessLog::mnu_select_all_Click},
      {MenuCommand::kOpenFile, &ucProcessLog::mnu_open_file_Click},
      {MenuCommand::kReport, &ucProcessLog::mnu_report_Click},
      {MenuCommand::kStopExecution, &ucProcessLog::mnu_stop_execution_Click},
      {MenuCommand::kAcknowledgeAlarms, &ucProcessLog::mnu_Acquitted_Alarms_Click},
      {MenuCommand::kActivateAlarms, &ucProcessLog::mnu_Activated_Alarms_Click},
      {MenuCommand::kGotoProcess, &ucProcessLog::mnu_Goto_Process_Click},
      {MenuCommand::kExpandAll, &ucProcessLog::mnu_popupTV_Expand_all_Click},
      {MenuCommand::kCollapseAll, &ucProcessLog::mnu_popupTV_Collapse_all_Click},
  };
  const auto* const found = std::ranges::find(kCommands, MenuCommand{code}, &Command::code);
  return found == std::end(kCommands) ? nullptr : found->handler;
}

void ucProcessLog::m_MenuCall(std::int32_t& command) {
  const CommandHandler handler = HandlerOf(command);
  if (handler != nullptr) (this->*handler)();
}

void ucProcessLog::m_Open() {
  if (controls_.lvMotherList.SelectedItem()) mnu_open_Click();
}

void ucProcessLog::m_Copy() {
  mnu_copy_Click();
}

void ucProcessLog::m_SelectAll() {
  mnu_select_all_Click();
}

// Hosts that still ask here see every command disabled.
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

void ucProcessLog::mnu_open_Click() {
  Handle("Quorvel: ucProcessLog.mnu_open_Click", [&] { OpenDetail(); });
}

void ucProcessLog::mnu_copy_Click() {
  Handle("Quorvel: ucProcessLog.mnu_copy_Click", [&] { util::m_CopyListView(platform_, controls_.lvMotherList); });
}

void ucProcessLog::mnu_select_all_Click() {
  Handle("Quorvel: ucProcessLog.mnu_select_all_Click", [&] {
    widgets::ListView& list = controls_.lvMotherList;
    list.SetSelection(widgets::RowRanges(widgets::RowRange{0, list.Count()}), list.SelectedItem());
    selectionMoved_ = true;
  });
}

void ucProcessLog::mnu_open_file_Click() {
  Handle("Quorvel: ucProcessLog.mnu_open_file_Click", [&] { OpenAttachment(); });
}

void ucProcessLog::OpenAttachment() {
  const auto row = controls_.lvMotherList.SelectedItem();
  const std::string name = row ? list::AttachmentOf(controls_.lvMotherList, *row) : std::string();
  const std::filesystem::path file(std::u8string(name.begin(), name.end()));
  if (name.empty() || !platform_.FileExists(file)) {
    return platform_.ShowMessage("File path not found or non-existing file.", datasource::kProductTitle);
  }
  try {
    platform_.OpenFile(file);
  } catch (const Error&) {
    // Most often no program is known for files of this kind.
    platform_.OpenFileWith(file);
  }
}

void ucProcessLog::mnu_popupTV_Expand_all_Click() {
  Handle("Quorvel: ucProcessLog.mnu_popupTV_Expand_all_Click", [&] {
    util::ExpandAll(controls_.tvMotherList);
    LoadAndOpenAll();
  });
}

void ucProcessLog::mnu_popupTV_Collapse_all_Click() {
  Handle("Quorvel: ucProcessLog.mnu_popupTV_Collapse_all_Click", [&] { util::CollapseAll(controls_.tvMotherList); });
}

}  // namespace quorvel
