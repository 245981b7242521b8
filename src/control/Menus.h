// The two popup menus: their entries, and the rules by which entries are shown and enabled.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "list/RowFacts.h"
#include "widgets/Menu.h"

namespace quorvel {

// The codes of m_MenuCall.
enum class MenuCommand : std::int32_t {
  kOpen = 2,
  kCopy = 6,
  kSelectAll = 12,
  kOpenFile = 13,
  kReport = 14,
  kStopExecution = 15,
  kAcknowledgeAlarms = 20,
  kActivateAlarms = 21,
  kGotoProcess = 22,
  kExpandAll = 23,
  kCollapseAll = 24,
};

// The entries of mnu_Popup and mnu_PopupTV.
std::vector<widgets::MenuEntry> ListMenuEntries();
std::vector<widgets::MenuEntry> TreeMenuEntries();

// What the list and the tree let a user do, in the order in which m_GetMenuState names them.
struct MenuState {
  bool f_blnMenuVisible = false;  // there is a row or a node to do something with
  bool f_blnOpenEnabled = false;
  bool f_blnCopyNoteBookEnabled = false;
  bool f_blnOpenJoinFileVisible = false;
  bool f_blnExecutionReportEnabled = false;
  bool f_blnSelectAllEnabled = false;
  bool f_blnStopExecutionEnabled = false;
  bool f_blnAcquittedAlarmEnabled = false;
  bool f_blnActivatedAlarmEnabled = false;
  bool f_blnGotoProcessEnabled = false;
  bool f_blnTVExpandAllEnabled = false;
  bool f_blnTVCollapseAllEnabled = false;
  bool f_blnOpenJoinFileEnabled = false;
  friend bool operator==(const MenuState&, const MenuState&) = default;
};

// What the rules go by.
struct MenuFacts {
  std::string_view tab = {};       // caption of the current one
  std::string_view nodeKind = {};  // first field of the selected node's key; "" = none
  std::size_t nodes = 0;
  std::size_t rows = 0;
  std::size_t selectedRows = 0;
  // Of the selected item.
  bool currentProcess = false;    // its key names a run
  bool attachment = false;        // its attachment column names a file
  bool processReference = false;  // it leads to a run
  list::AlarmMark alarm = list::AlarmMark::kNone;
  bool mayChangeAlarms = false;
  bool serverMode = true;
};

// Shows and enables the entries of both menus, and tells what came of it.
MenuState ApplyMenuRules(const MenuFacts& facts, widgets::Menu& listMenu, widgets::Menu& treeMenu);

}  // namespace quorvel
