#include "faults/Gestures.h"

#include <algorithm>
#include <iterator>

namespace quorvel::test {
namespace {

struct Place {
  std::string_view name;
  std::string_view lines;
};

// A viewer of one process each, on a period that holds the whole history.
constexpr std::string_view kWide = R"(set p_FromType 4
option cboState All
option dtpDate 2026-11-10
option txtDuring 20
)";

constexpr Place kPlaces[] = {
    {"new", ""},
    {"runs", R"(call m_GetLogByProcess
expand LPROC|11
expand LPROC|11|0|101
expand LPROC|11|0|100
click LPROC|11
)"},
    {"station", R"(call m_GetLogByProcess
expand LPROC|11
expand LPROC|11|0|100
expand LPROC|11|0|100|1
click LPROC|11|0|100|1|1
)"},
    {"steps", R"(call m_GetLogByProcess
expand LPROC|11
expand LPROC|11|0|100
expand LPROC|11|0|100|1
expand LPROC|11|0|100|1|1
expand LPROC|11|0|100|1|1|21
)"},
    {"step", R"(call m_GetLogByProcess
expand LPROC|11
expand LPROC|11|0|100
expand LPROC|11|0|100|1
expand LPROC|11|0|100|1|1
expand LPROC|11|0|100|1|1|21
click LPROC|11|0|100|1|1|21|301|201
)"},
    {"page", R"(call m_GetLogByProcess
expand LPROC|11
expand LPROC|11|0|100
expand LPROC|11|0|100|1
expand LPROC|11|0|100|1|1
expand LPROC|11|0|100|1|1|21
click LPROC|11|0|100|1|1|21|301|201
select 401|LPROC|11|0|100|1|1|21|301|201
menu 2
)"},
    {"connections", R"(tab Connections
option chkCommunicationsFilter 0
)"},
    {"all connections", R"(tab Connections
sql "UPDATE communication SET start_date = 46300.25 WHERE communication_id = 505"
)"},
    {"days", R"(tab Connections
option chkGroupByDay 1
expand LCOMM|2026/11
)"},
    {"alarms", R"(tab Alarms
)"},
    {"running run", R"(sql "DELETE FROM stop_request"
call m_GetLogByProcess
click LPROC|11
select LPROC|11|0|101
)"},
    {"attachment", R"(sql "UPDATE scheduler_log SET attachment = '/' WHERE scheduler_log_id = 1002"
tab System
select HSYS|1002
)"},
    // The component has a clock of its own.
    {"alarm", R"(set p_ConsoleLoginUserRight 16
sql "CREATE TRIGGER IF NOT EXISTS fixed_clock AFTER UPDATE OF acknowledged ON alarm BEGIN UPDATE alarm SET acknowledged_date = 46346.5 WHERE alarm_id = new.alarm_id; END"
sql "UPDATE alarm SET acknowledged = 0 WHERE alarm_id = 601"
tab Alarms
select 601|LOGAALL|-1|11|0|100
)"},
    {"acknowledged alarm", R"(set p_ConsoleLoginUserRight 16
sql "CREATE TRIGGER IF NOT EXISTS fixed_clock AFTER UPDATE OF acknowledged ON alarm BEGIN UPDATE alarm SET acknowledged_date = 46346.5 WHERE alarm_id = new.alarm_id; END"
sql "UPDATE alarm SET acknowledged = -1 WHERE alarm_id = 601"
tab Alarms
select 601|LOGAALL|-1|11|0|100
)"},
    {"import", R"(set p_FromType 8
call m_GetLogByImports 0 1 0
)"},
    {"backups", R"(tab Backups
)"},
    {"months of backups", R"(tab Backups
expand LBCKSR|0|0
expand LBCKSR|0|0|2026
expand LBCKSR|0|0|2026|2026/11
)"},
};

constexpr Gesture kGestures[] = {
    // What a host calls.
    {"creation", Caller::kUser, "UserControl_Initialize", "new", "close", "control 1", "call m_GetLogByProcess"},
    {"processes", Caller::kHost, "m_GetLogByProcess", "new", "", "call m_GetLogByProcess"},
    {"processes again", Caller::kHost, "m_GetLogByProcess", "station", "", "call m_GetLogByProcess 1"},
    {"stations", Caller::kHost, "m_GetLogByUser", "new", "", "call m_GetLogByUser"},
    {"connections", Caller::kHost, "m_GetLogByCommunication", "new", "", "call m_GetLogByCommunication"},
    {"alarms", Caller::kHost, "m_GetLogByAlarms", "new", "", "call m_GetLogByAlarms"},
    {"backups", Caller::kHost, "m_GetLogByBackup", "new", "", "call m_GetLogByBackup"},
    {"import", Caller::kHost, "m_GetLogByImports", "new", "", "call m_GetLogByImports 0 1 0"},
    {"one state", Caller::kHost, "m_GetLogAll", "station", "", "call m_GetLogAll 1"},
    {"connections of a day", Caller::kHost, "tvMotherList_ExpandCommunications", "days", "",
     "call tvMotherList_ExpandCommunications LCOMM|2026/11|2026/11/19"},
    {"key of a step's connection", Caller::kHost, "GetNextContextKeyInLogs", "steps", "",
     "call GetNextContextKeyInLogs LPROC|11|0|100|1|1|21|301|201 Connections"},
    {"one run", Caller::kHost, "m_GetDetail", "new", "set p_IdAppLog 100", "call m_GetDetail"},
    {"select all", Caller::kUser, "mnu_select_all_Click", "station", "", "call m_SelectAll"},
    {"copy", Caller::kUser, "mnu_copy_Click", "station", "call m_SelectAll", "call m_Copy"},

    // Tabs, options and buttons.
    {"tab Processes", Caller::kUser, "sstProcessLog_Click", "station", "tab Users", "tab Processes",
     "tab Users\ntab Processes"},
    {"tab Users", Caller::kUser, "sstProcessLog_Click", "station", "", "tab Users", "tab Processes\ntab Users"},
    {"tab Connections", Caller::kUser, "sstProcessLog_Click", "step", "", "tab Connections",
     "tab Processes\ntab Connections"},
    {"tab Alarms", Caller::kUser, "sstProcessLog_Click", "station", "", "tab Alarms", "tab Processes\ntab Alarms"},
    {"tab Backups", Caller::kUser, "sstProcessLog_Click", "station", "", "tab Backups", "tab Processes\ntab Backups"},
    {"tab System", Caller::kUser, "sstProcessLog_Click", "station", "", "tab System", "tab Processes\ntab System"},
    {"refresh processes", Caller::kUser, "cmdRefresh_Click", "steps", "", "refresh"},
    {"refresh stations", Caller::kUser, "cmdRefresh_Click", "step", "tab Users", "refresh"},
    {"refresh connections", Caller::kUser, "cmdRefresh_Click", "days", "expand LCOMM|2026/11|2026/11/19", "refresh"},
    {"refresh of a host with all views", Caller::kUser, "cmdRefresh_Click", "station", "set p_FromType 3", "refresh"},
    {"refresh after a change", Caller::kUser, "cmdRefresh_Click", "station", "option cboState Error", "refresh"},
    {"group by day", Caller::kUser, "chkGroupByDay_Click", "connections", "", "option chkGroupByDay 1", "refresh"},
    {"failed connections", Caller::kUser, "chkCommunicationsFilter_Click", "connections", "",
     "option chkCommunicationsFilter 1", "refresh"},
    {"active alarms", Caller::kUser, "chkAlarmFilter_Click", "alarms", "", "option chkAlarmFilter 1", "refresh"},
    {"length of the period", Caller::kUser, "txtDuring_Change", "new", "", "option txtDuring 3"},
    {"unit of the period", Caller::kUser, "cboDuringUnit_Click", "new", "", "option cboDuringUnit Hours"},
    {"date of the period", Caller::kUser, "dtpDate_Change", "new", "", "option dtpDate 2026-11-11"},
    {"hour of the period", Caller::kUser, "dtpHour_Change", "new", "", "option dtpHour 11:00"},
    {"longer period", Caller::kUser, "updDuring_UpClick", "new", "", "press updDuring up"},
    {"shorter period", Caller::kUser, "updDuring_DownClick", "new", "", "press updDuring down"},

    // The tree.
    {"open a state group", Caller::kUser, "tvMotherList_Expand", "runs", "", "expand LPROC|11|0|100|1"},
    {"open a station", Caller::kUser, "tvMotherList_Expand", "station", "", "expand LPROC|11|0|100|1|1"},
    {"open a task", Caller::kUser, "tvMotherList_Expand", "station", "expand LPROC|11|0|100|1|1",
     "expand LPROC|11|0|100|1|1|21"},
    {"open a process of a station", Caller::kUser, "tvMotherList_Expand", "new", "call m_GetLogByUser\nexpand LUSR|1",
     "expand LUSR|1|11"},
    {"open a month", Caller::kUser, "tvMotherList_Expand", "all connections", "", "expand LCOMM|2026/11"},
    {"open a day of connections", Caller::kUser, "tvMotherList_Expand", "days", "", "expand LCOMM|2026/11|2026/11/19"},
    {"open a process of an import", Caller::kUser, "tvMotherList_Expand", "import", "expand LIMP|1|Staff",
     "expand LIMP|1|Staff|11"},
    {"open the server's backups", Caller::kUser, "tvMotherList_Expand", "backups", "", "expand LBCKST|1|2"},
    {"open a year of backups", Caller::kUser, "tvMotherList_Expand", "backups", "expand LBCKSR|0|0",
     "expand LBCKSR|0|0|2026"},
    {"open a day of backups", Caller::kUser, "tvMotherList_Expand", "months of backups", "",
     "expand LBCKSR|0|0|2026|2026/11|2026/11/20"},
    {"open a backup", Caller::kUser, "tvMotherList_Expand", "months of backups",
     "expand LBCKSR|0|0|2026|2026/11|2026/11/20\nexpand LBCKSR|0|0|2026|2026/11|2026/11/20|Full",
     "expand LBCKSR|0|0|2026|2026/11|2026/11/20|Full|702|12:00:00|0"},
    {"runs of a process", Caller::kUser, "tvMotherList_NodeClick", "runs", "", "click LPROC|11"},
    {"stations of a running run", Caller::kUser, "tvMotherList_NodeClick", "runs", "", "click LPROC|11|0|101"},
    {"groups of a run", Caller::kUser, "tvMotherList_NodeClick", "runs", "", "click LPROC|11|0|100"},
    {"stations of a group", Caller::kUser, "tvMotherList_NodeClick", "runs", "", "click LPROC|11|0|100|1"},
    {"tasks of a station", Caller::kUser, "tvMotherList_NodeClick", "station", "", "click LPROC|11|0|100|1|1"},
    {"steps of a task", Caller::kUser, "tvMotherList_NodeClick", "steps", "", "click LPROC|11|0|100|1|1|21"},
    {"commands of a step", Caller::kUser, "tvMotherList_NodeClick", "steps", "", "click LPROC|11|0|100|1|1|21|301|201"},
    {"runs of a process on a station", Caller::kUser, "tvMotherList_NodeClick", "new",
     "call m_GetLogByUser\nexpand LUSR|1", "click LUSR|1|11"},
    {"tasks of a run on a station", Caller::kUser, "tvMotherList_NodeClick", "new",
     "call m_GetLogByUser\nexpand LUSR|1\nexpand LUSR|1|11", "click LUSR|1|11|0|100"},
    {"connections of a month", Caller::kUser, "tvMotherList_NodeClick", "all connections", "", "click LCOMM|2026/11"},
    {"connections of a day, listed", Caller::kUser, "tvMotherList_NodeClick", "days", "",
     "click LCOMM|2026/11|2026/11/19"},
    {"commands of a connection", Caller::kUser, "tvMotherList_NodeClick", "days", "expand LCOMM|2026/11|2026/11/19",
     "click LCOMM|2026/11|2026/11/19|501"},
    {"all alarms", Caller::kUser, "tvMotherList_NodeClick", "alarms", "", "click LOGAALL|-1"},
    {"alarms of a day", Caller::kUser, "tvMotherList_NodeClick", "alarms", "expand LOGAUSR|1",
     "click LOGALRM|1|2026/11/19"},
    {"processes of an import", Caller::kUser, "tvMotherList_NodeClick", "import", "expand LIMP|1|Staff",
     "click LIMP|1|Staff|11"},
    {"users of an import", Caller::kUser, "tvMotherList_NodeClick", "import",
     "expand LIMP|1|Staff\nexpand LIMP|1|Staff|11", "click LIMP|1|Staff|11|802"},
    {"files of a backup", Caller::kUser, "tvMotherList_NodeClick", "months of backups",
     "expand LBCKSR|0|0|2026|2026/11|2026/11/20\nexpand LBCKSR|0|0|2026|2026/11|2026/11/20|Full",
     "click LBCKSR|0|0|2026|2026/11|2026/11/20|Full|702|12:00:00|0"},

    // The list.
    {"into a station's tasks", Caller::kUser, "lvMotherList_DblClick", "runs", "click LPROC|11|0|100|1",
     "doubleclick 1|LPROC|11|0|100|1"},
    {"into a running run's station", Caller::kUser, "lvMotherList_DblClick", "runs", "click LPROC|11|0|101",
     "doubleclick 1|LPROC|11|0|101"},
    {"into a connection under its day", Caller::kUser, "lvMotherList_DblClick", "days", "click LCOMM|2026/11",
     "doubleclick LCOMM|2026/11|2026/11/19|501"},
    {"sort by a date", Caller::kUser, "lvMotherList_ColumnClick", "runs", "", "column 2"},
    {"sort by a number", Caller::kUser, "lvMotherList_ColumnClick", "runs", "", "column 1"},
    {"sort by text", Caller::kUser, "lvMotherList_ColumnClick", "connections", "", "column 2"},

    // Menu commands.
    {"menu: copy", Caller::kUser, "mnu_copy_Click", "station", "call m_SelectAll", "menu 6"},
    {"menu: select all", Caller::kUser, "mnu_select_all_Click", "station", "", "menu 12"},
    {"menu: expand all", Caller::kUser, "mnu_popupTV_Expand_all_Click", "runs", "", "menu 23"},
    {"menu: collapse all", Caller::kUser, "mnu_popupTV_Collapse_all_Click", "steps", "", "menu 24"},
    {"menu: open detail", Caller::kUser, "mnu_open_Click", "step", "select 401|LPROC|11|0|100|1|1|21|301|201",
     "menu 2"},
    {"menu: open attachment", Caller::kUser, "mnu_open_file_Click", "attachment", "", "menu 13"},
    {"menu: attachment that is gone", Caller::kUser, "mnu_open_file_Click", "runs", "", "menu 13"},
    {"menu: report", Caller::kUser, "mnu_report_Click", "running run", "", "menu 14"},
    {"menu: stop", Caller::kUser, "mnu_stop_execution_Click", "running run", "", "menu 15"},
    {"menu: acknowledge", Caller::kUser, "mnu_Acquitted_Alarms_Click", "alarm", "", "menu 20", "menu 20\nrefresh"},
    {"menu: activate", Caller::kUser, "mnu_Activated_Alarms_Click", "acknowledged alarm", "", "menu 21",
     "menu 21\nrefresh"},
    {"menu: view context", Caller::kUser, "mnu_Goto_Process_Click", "alarm", "", "menu 22"},
    {"right button on a node", Caller::kUser, "tvMotherList_MouseUp", "runs", "click LPROC|10", "rightclick LPROC|11",
     "key Escape\nclick LPROC|11\nrightclick LPROC|11"},

    // The dialog.
    {"next page", Caller::kUser, "dlgLVDetail.cmdNext_Click", "page", "", "press cmdNext",
     "press cmdPrevious\npress cmdNext"},
    {"copy of a page", Caller::kUser, "dlgLVDetail.cmdCopytoClipboard_Click", "page", "", "press cmdCopytoClipboard"},
};

}  // namespace

std::span<const Gesture> Gestures() {
  return kGestures;
}

std::string LinesBefore(const Gesture& gesture) {
  const auto* const place = std::ranges::find(kPlaces, gesture.place, &Place::name);
  return std::string(kWide).append(place->lines).append(gesture.before);
}

}  // namespace quorvel::test
