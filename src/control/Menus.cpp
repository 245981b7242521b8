#include "control/Menus.h"

#include "control/Routing.h"
#include "util/KeyPrefixes.h"

namespace quorvel {
namespace {

using widgets::Menu;
using widgets::MenuEntry;

MenuEntry Entry(std::string_view name, std::string_view caption, MenuCommand command) {
  return {.name = std::string(name), .caption = std::string(caption), .command = static_cast<std::int32_t>(command)};
}

MenuEntry Separator(std::string_view name) {
  return {.name = std::string(name), .caption = "-"};
}

// What the tab and the selected node decide.
struct Shown {
  bool report = false;
  bool stop = false;
  bool attachment = false;
  bool alarms = false;
};

Shown ShownFor(const MenuFacts& facts) {
  const bool connections = facts.tab == NameOf(View::kConnections);
  const bool system = facts.tab == NameOf(View::kSystem);
  const bool alarms = facts.tab == NameOf(View::kAlarms);
  // Below an owner alarms of many days stand together: they are looked at there, and dealt with by day.
  const bool alarmsOfDay = alarms && facts.nodeKind == util::kAlarmDayPrefix;
  return {.report = facts.nodeKind == util::kProcessPrefix,
          .stop = !connections && !system && !alarms,
          .attachment = system || alarmsOfDay,
          .alarms = alarmsOfDay};
}

void ShowEntries(const Shown& shown, Menu& menu) {
  menu.SetEntryVisible("mnu_report", shown.report);
  menu.SetEntryVisible("mnu_stop_execution", shown.stop);
  menu.SetEntryVisible("mnu_open_file", shown.attachment);
  menu.SetEntryVisible("mnu_sep2", shown.stop || shown.alarms);
  for (const std::string_view entry : {"mnu_Acquitted_Alarms", "mnu_Activated_Alarms", "mnu_Goto_Process"}) {
    menu.SetEntryVisible(entry, shown.alarms);
  }
}

bool MayAcknowledge(const MenuFacts& facts) {
  const bool some = facts.selectedRows > 1 || facts.alarm == list::AlarmMark::kActive;
  return facts.mayChangeAlarms && some;
}

bool MayActivate(const MenuFacts& facts) {
  const bool some = facts.selectedRows > 1 || facts.alarm == list::AlarmMark::kAcknowledged;
  return facts.mayChangeAlarms && some;
}

}  // namespace

std::vector<MenuEntry> ListMenuEntries() {
  return {Entry("mnu_open", "&Open detail", MenuCommand::kOpen),
          Entry("mnu_copy", "&Copy to clipboard", MenuCommand::kCopy),
          Entry("mnu_open_file", "Open &attachment", MenuCommand::kOpenFile),
          Entry("mnu_report", "Execution &report", MenuCommand::kReport),
          Separator("mnu_sep1"),
          Entry("mnu_select_all", "Select a&ll", MenuCommand::kSelectAll),
          Separator("mnu_sep2"),
          Entry("mnu_stop_execution", "S&top execution", MenuCommand::kStopExecution),
          Entry("mnu_Acquitted_Alarms", "&Acknowledge Alarms", MenuCommand::kAcknowledgeAlarms),
          Entry("mnu_Activated_Alarms", "Act&ivate alarms", MenuCommand::kActivateAlarms),
          Entry("mnu_Goto_Process", "&View context", MenuCommand::kGotoProcess)};
}

std::vector<MenuEntry> TreeMenuEntries() {
  return {Entry("mnu_popupTV_Expand_all", "Expand a&ll", MenuCommand::kExpandAll),
          Entry("mnu_popupTV_Collapse_all", "&Minimize All", MenuCommand::kCollapseAll)};
}

MenuState ApplyMenuRules(const MenuFacts& facts, Menu& listMenu, Menu& treeMenu) {
  const bool one = facts.selectedRows > 0;
  const Shown shown = ShownFor(facts);
  const MenuState state{
      .f_blnMenuVisible = facts.rows > 0 || facts.nodes > 0,
      .f_blnOpenEnabled = facts.selectedRows == 1,
      .f_blnCopyNoteBookEnabled = true,
      .f_blnOpenJoinFileVisible = shown.attachment,
      .f_blnExecutionReportEnabled = shown.report,
      .f_blnSelectAllEnabled = true,
      .f_blnStopExecutionEnabled = one && facts.currentProcess,
      .f_blnAcquittedAlarmEnabled = one && MayAcknowledge(facts),
      .f_blnActivatedAlarmEnabled = one && MayActivate(facts),
      .f_blnGotoProcessEnabled = one && (facts.processReference || !facts.serverMode),
      .f_blnTVExpandAllEnabled = facts.nodes > 0,
      .f_blnTVCollapseAllEnabled = facts.nodes > 0,
      .f_blnOpenJoinFileEnabled = one && facts.attachment,
  };
  ShowEntries(shown, listMenu);
  listMenu.SetEntryEnabled("mnu_open", state.f_blnOpenEnabled);
  listMenu.SetEntryEnabled("mnu_open_file", state.f_blnOpenJoinFileEnabled);
  listMenu.SetEntryEnabled("mnu_report", state.f_blnExecutionReportEnabled);
  listMenu.SetEntryEnabled("mnu_stop_execution", state.f_blnStopExecutionEnabled);
  listMenu.SetEntryEnabled("mnu_Acquitted_Alarms", state.f_blnAcquittedAlarmEnabled);
  listMenu.SetEntryEnabled("mnu_Activated_Alarms", state.f_blnActivatedAlarmEnabled);
  listMenu.SetEntryEnabled("mnu_Goto_Process", state.f_blnGotoProcessEnabled);
  treeMenu.SetEntryEnabled("mnu_popupTV_Expand_all", state.f_blnTVExpandAllEnabled);
  treeMenu.SetEntryEnabled("mnu_popupTV_Collapse_all", state.f_blnTVCollapseAllEnabled);
  return state;
}

}  // namespace quorvel
