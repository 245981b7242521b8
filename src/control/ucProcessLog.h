// The history viewer: the control that a host places on its form.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "control/Enumerations.h"
#include "control/HostEvents.h"
#include "control/Options.h"
#include "control/ProcessLogControls.h"
#include "control/Project.h"
#include "control/Routing.h"
#include "control/Standing.h"
#include "datasource/AlarmsLog.h"
#include "datasource/CommandLog.h"
#include "datasource/ErrorsProcess.h"
#include "datasource/Labels.h"
#include "datasource/ProcessLog.h"
#include "datasource/Quorvel.h"
#include "datasource/RecordSource.h"
#include "datasource/Saves.h"
#include "datasource/StepLog.h"
#include "datasource/TaskSchedulerLog.h"
#include "datasource/UsersImport.h"
#include "dialogs/dlgLVDetail.h"
#include "list/AlarmRecord.h"
#include "list/ListParts.h"
#include "platform/Platform.h"
#include "tree/AlarmTree.h"
#include "tree/BackupTree.h"
#include "tree/ImportTree.h"
#include "tree/NavigationContext.h"
#include "tree/Place.h"
#include "tree/TaskTree.h"
#include "widgets/ListItems.h"
#include "widgets/TreeView.h"

namespace quorvel {

// Set the properties, then call one of the m_GetLog methods; from there on the user leads.
//
// Errors: the properties and the public methods raise them to their caller, with their label in front of the source.
// The event handlers, which a front end calls for gestures, never raise: they show one message, append to the error log
// and leave the control usable.
//
// Everything runs on the host's user-interface thread. The platform and the factory must outlive the control.
class ucProcessLog {
 public:
  ucProcessLog(Platform& platform, datasource::RecordSourceFactory& factory);
  ~ucProcessLog();
  ucProcessLog(const ucProcessLog&) = delete;
  ucProcessLog& operator=(const ucProcessLog&) = delete;

  // What there is to draw. Front ends write back what the user typed or chose, then call the handler.
  ProcessLogControls& controls() { return controls_; }
  const ProcessLogControls& controls() const { return controls_; }
  // The dialog that shows one row of the list as a page.
  dlgLVDetail& detail() { return detail_; }
  const dlgLVDetail& detail() const { return detail_; }
  // What the list and the tree let a user do, as both menus show it.
  const MenuState& menuState() const { return menuState_; }
  // The identifiers of the node selected last, which the next view opens at.
  const tree::NavigationContext& context() const { return context_; }

  // What the viewer tells its host; each subscriber hears of everything, in the order in which they came. A subscriber
  // must unsubscribe before it goes, and may do so from an event.
  void Subscribe(HostEvents& host);
  void Unsubscribe(HostEvents& host);

  // Whether a request or a gesture is being worked on: another gesture does nothing then, so that a front end shows
  // again what it was made on.
  bool AtWork() const { return f_blnClickNode; }
  // Calls `body` once that is done, at once when nothing is being worked on. Errors of `body` are shown.
  void AfterWork(std::function<void()> body);

  // Properties.
  widgets::ListItems ListItems() const { return widgets::ListItems(controls_.lvMotherList); }
  // Nothing when no row is selected.
  std::optional<widgets::ListItem> SelectedItem() const;
  std::int32_t p_Connect() const { return f_lngConnect; }
  // The index of an open connection; -1 = none. The installation's settings are read again afterwards.
  void p_Connect(std::int32_t value);
  std::int32_t p_ProcessId() const { return f_lngProcessId; }
  // The process to show, -1 = all.
  void p_ProcessId(std::int32_t value) { f_lngProcessId = value; }
  tlFromType p_FromType() const { return f_tlFromType; }
  // Decides which tabs there are and what each builds; nothing is built on assignment.
  void p_FromType(tlFromType value);
  // For hosts with one view: whatever the value, the current tab is called "Processes" and tabs 1 to 3 go.
  void p_TabStripVisible(bool value);
  std::int32_t p_IdAppLog() const { return f_lngIdAppLog; }
  // The station (tlOneUser) or company (tlOneCompany) that p_FromType names; 0 = all.
  void p_IdAppLog(std::int32_t value) { f_lngIdAppLog = value; }
  const std::string& p_Key() const { return f_strKey; }
  // The key of the node to select after a build, when it exists then.
  void p_Key(std::string_view value) { f_strKey = value; }
  // One value for all viewers of the thread, see Project.h.
  static bool p_blnShowUserInfo() { return Project().blnShowUserInfo; }
  static void p_blnShowUserInfo(bool value) { Project().blnShowUserInfo = value; }
  static bool p_blnShowProcessAlarm() { return Project().blnShowProcessAlarm; }
  static void p_blnShowProcessAlarm(bool value) { Project().blnShowProcessAlarm = value; }
  static bool p_blnShowAlarms() { return Project().blnShowAlarms; }
  static void p_blnShowAlarms(bool value) { Project().blnShowAlarms = value; }
  // Number of rows in the list.
  std::int32_t p_ListCount() const;
  // The help file that errors name from then on which have none of their own, of all viewers of the thread.
  static void p_strHelpFile(std::string_view value) { datasource::SetHelpFile(value); }
  // Name of the server on which record sources are created, "" = this machine.
  void p_ServerName(std::string_view value) { f_strServerName = value; }
  // Who works at the host's console, and the rights of that user as bits.
  void p_ConsoleLoginUserName(std::string_view value) { f_strConsoleLoginUserName = value; }
  void p_ConsoleLoginUserRight(std::int32_t value) { f_lngConsoleLoginUserRight = value; }

  // Builds the tree grouped by process: processes, their runs, the state groups of each run. `refresh`: the same view
  // is built again.
  void m_GetLogByProcess(bool refresh = false);
  // Builds the tree grouped by station: stations, the processes that ran there, their runs with the station's own
  // outcome.
  void m_GetLogByUser(bool refresh = false);
  // Builds the tree of alarms: all of them, each owner, the days of each. The current tab is called "Alarms".
  void m_GetLogByAlarms(bool refresh = false);
  // Builds the tree of connections: months, with "Group by day" their days, and the connections.
  void m_GetLogByCommunication(bool refresh = false);
  // Builds the tree of backups: where they were made, years, months, days, names, backups and their folders.
  void m_GetLogByBackup(bool refresh = false);
  // Builds the tree of one user import: names, the processes under each, and their runs; an empty one for an identifier
  // of 0 or less. Hosts pass p_IdAppLog. `view` and `passed` come back as they were. The current tab is called "User
  // imports".
  void m_GetLogByImports(std::int32_t& view, std::int32_t& importId, std::int32_t& passed);
  // Builds the selected tab's own view for one state filter, for p_ProcessId (-1 = all).
  void m_GetLogAll(StateFilter& state);

  // Sets all thirteen to false, whatever is selected: hosts rely on it, and take the menus from the viewer itself.
  void m_GetMenuState(bool& menuVisible, bool& openEnabled, bool& copyNoteBookEnabled, bool& openJoinFileVisible,
                      bool& executionReportEnabled, bool& selectAllEnabled, bool& stopExecutionEnabled,
                      bool& acquittedAlarmEnabled, bool& activatedAlarmEnabled, bool& gotoProcessEnabled,
                      bool& tvExpandAllEnabled, bool& tvCollapseAllEnabled, bool& openJoinFileEnabled) const;
  // Runs the menu command of this code, see Commands.cpp; another code does nothing. As the menus do, it shows errors.
  void m_MenuCall(std::int32_t& command);
  // Opens the selected row in the same way; without a selected row nothing is opened.
  void m_Open();
  // Replaces the clipboard with the header captions and the selected rows.
  void m_Copy();
  // Fills the list with the one run that p_IdAppLog names, and shows it as a page in the dialog. A run that does not
  // exist leaves the list empty. With p_blnShowUserInfo the run's user and station are told too.
  void m_GetDetail();
  // Selects every row of the list.
  void m_SelectAll();
  // Loads the connections under a node of the connections view, unless they are there.
  void tvMotherList_ExpandCommunications(widgets::NodeId node);

  // Remembers what the node of this key stands for, and gives the key of the equivalent node in the view "Processes",
  // "Users" or "Connections"; "" for any other view, an empty key, and a step that no connection carried. Never raises:
  // what goes wrong is logged.
  std::string GetNextContextKeyInLogs(std::string_view key, std::string_view view);

  // Fills cboState for the tab shown and keeps the choice, or takes its counterpart.
  void InitStateListByTab();
  // Shows the option controls that the state filter and the tab call for.
  void ControlsVisible(std::int32_t stateCode);
  // Lays tree, list and splitter out for a tree of this width in twips; a width below the least one is corrected in
  // place. Without argument: for the splitter's position.
  void SizeControls(float& treeWidth);
  void SizeControls();

  // Events, called by the front end. A handler for a node takes a node of tvMotherList.
  void UserControl_Resize(widgets::Twips width, widgets::Twips height);
  void sstProcessLog_Click();
  void cmdRefresh_Click();
  void cboState_Click();
  void cboDuringUnit_Click();
  void dtpDate_Change();
  void dtpHour_Change();
  void txtDuring_Change();
  // One more or one less than the length of the period that the text box shows.
  void updDuring_UpClick();
  void updDuring_DownClick();
  // Move the selected row of the group order.
  void updGroupBy_UpClick();
  void updGroupBy_DownClick();
  // Fill the list for the selected node again.
  void chkCommunicationsFilter_Click();
  void chkAlarmFilter_Click();
  // Builds the view again.
  void chkGroupByDay_Click();
  void tvMotherList_Expand(widgets::NodeId node);
  void tvMotherList_Collapse(widgets::NodeId node);
  void tvMotherList_NodeClick(widgets::NodeId node);
  // `column`: counted from 1.
  void lvMotherList_ColumnClick(std::size_t column);
  // Goes to the node that stands for the selected item, loading what is needed, and opens it.
  void lvMotherList_DblClick();
  // Enter (13) does what a double click does; other keys are the list's own.
  void lvMotherList_KeyDown(std::int32_t keyCode);
  // The user selected other rows.
  void lvMotherList_SelectionChanged();
  // `row`: under the pointer, nothing = the empty space; or the selected item, for the key that opens menus. The right
  // button selects that row unless it is selected, then opens mnu_Popup; the left one has selected already.
  void lvMotherList_MouseDown(MouseButton button, std::optional<std::size_t> row);
  // The right button goes to the node under the pointer, kNone = the empty space, and opens mnu_PopupTV.
  void tvMotherList_MouseUp(MouseButton button, widgets::NodeId node);
  void lvMotherList_GotFocus();
  void lvMotherList_LostFocus();
  void tvMotherList_GotFocus();
  void tvMotherList_LostFocus();
  void mnu_open_Click();
  void mnu_copy_Click();
  void mnu_open_file_Click();
  void mnu_report_Click();
  void mnu_select_all_Click();
  void mnu_stop_execution_Click();
  void mnu_Acquitted_Alarms_Click();
  void mnu_Activated_Alarms_Click();
  void mnu_Goto_Process_Click();
  void mnu_popupTV_Expand_all_Click();
  void mnu_popupTV_Collapse_all_Click();
  // Scrolls the tree one node down, until the last child of the node that was opened is in sight, that node itself
  // would leave it, or the user scrolls.
  void Timer_ScrollDown_TV_Timer();
  void imgSplitter_MouseDown();
  // `x`: the pointer from the left edge of the grip, in twips.
  void imgSplitter_MouseMove(widgets::Twips x);
  void imgSplitter_MouseUp();
  void HScroll_Change();
  void VScroll_Change();

 private:
  // The handler of a menu command; nullptr when the code names none.
  using CommandHandler = void (ucProcessLog::*)();
  static CommandHandler HandlerOf(std::int32_t code);

  // Shows the tabs that this host has use for.
  void OfferTabs();
  // Raises an event at all subscribers.
  template <class Event, class... Values>
  void Raise(Event event, const Values&... values);

  // Reads the installation's settings when they were not read for this connection yet, and presets the period.
  void Init();
  std::optional<std::string> LabelValue(datasource::Labels& labels, std::string_view name);
  OptionsFilter ReturnOptionsFilter(StateFilter stateBefore, bool showOptions);

  // Layout.
  void LayOut();
  void InitListView();
  void SetfraListCaption();
  // Gives the list the whole frame, or shows the tree beside it.
  void ModifyMotherListSize(bool listAlone);
  // Clears the headers when they are not those that begin with this caption; tells whether they must be set.
  bool ClearColumnHeaderLV(std::string_view firstCaption);

  // Runs a public method that builds, passing errors on. Error 5 while another one, or a gesture,
  // is being worked on: a component or a host that lets messages through may call back.
  template <class Body>
  void Build(std::string_view label, Body&& body);
  // Computes the menus for what is selected and where the focus is.
  void MajMenu();
  MenuFacts FactsForMenus() const;
  // Tells the host what happened while the control was at work, when it can be called again. Shows errors.
  void TellHost(std::string_view label);
  // Opens the row in the tree, or as a page where no node stands for it.
  void OpenRow();
  // Shows the selected row as a page; one without anything to show is told in the host's status bar.
  void OpenDetail();
  // Before the list gets other rows: the page of a row that is not there any more says nothing.
  void CloseDetail();
  void ShowNotice(std::string_view text);
  // Writes into the host's status bar. What goes wrong is logged alone.
  void WriteStatus(std::string_view label, std::string_view text);
  void OpenAttachment();
  void LoadAndOpenAll();
  // The runs of the selected rows, or that of the selected node, each once.
  std::vector<std::string> RunsToReport() const;
  std::vector<std::size_t> SelectedRunningRuns() const;
  // How many of these runs were asked to stop: one that ended since is not.
  std::size_t StopRuns(const std::vector<std::size_t>& rows);
  // Acknowledges the selected alarms that are active, or the other way round, where the user may.
  void ChangeAlarms(list::AlarmMark from);
  std::vector<std::int32_t> SelectedAlarms(list::AlarmMark mark) const;
  bool MayChangeAlarms() const;
  std::string AcknowledgingUser() const;

  // Runs a gesture's handler in the same way, showing errors. A gesture that comes in between is not for what it was
  // made on: it does nothing.
  template <class Body>
  void Handle(std::string_view label, Body&& body);

  // Views. `standing`: where to be after the build, as far as that exists then.
  void BuildView(View view, Standing standing);
  void BuildForHost(View view, bool refresh);
  void BuildAll(StateFilter state, Standing standing);
  void BuildTree(View view, const OptionsFilter& filter, Standing standing);
  void GoToTabOf(View view);
  void RestoreTabName();
  // Fills and shows the options of the current tab.
  void ShowOptionsOfTab();
  // The period that the view shown was asked for.
  util::Period ShownPeriod() const;
  // Asks for what is at the root of a view, and appends it.
  void AppendRoots();
  void AppendConnections();
  void AppendBackups();
  void ListAllSystemsLogs();
  // What "Refresh" does.
  void BuildAgain();
  // Empties tree and list, and what tells their numbers.
  void ClearPanes();
  // What p_IdAppLog says when p_FromType is `type`, else -1, which does not filter.
  std::int32_t IdentifierFor(tlFromType type) const;

  // Places. Where a build that did not come to its end wanted to be, else where the user is: at the selected node, else
  // at the first.
  Standing StandingNow() const;
  // Before a build that the host asks for: where the user is for a refresh, else at the node of p_Key.
  Standing StandingFor(bool refresh) const;
  tree::Place SelectedPlace() const;
  std::string SelectedKey() const;
  void SelectAfterBuild(const Standing& standing);
  // Opens what was open, loading it where it is there.
  void OpenAgain(widgets::NodeId parent, const std::vector<OpenNode>& open);
  void ScrollBack(const std::vector<tree::Place>& tops);
  // Goes down to the deepest node on the way to a place that is there or can be loaded. `reached`, kNone before, is
  // that node, by an error on the way too.
  void DescendTo(const tree::Place& place, widgets::NodeId& reached);
  // The node of a station under whichever state group of a run lists it now.
  widgets::NodeId FindInGroups(widgets::NodeId run, const tree::PlaceStep& station);
  // Opens what stands above the node, so that it can be seen.
  void OpenWayTo(widgets::NodeId node);
  // The node under `node` that stands for a row of its list; kNone when there is none.
  widgets::NodeId NodeOfRow(widgets::NodeId node, std::size_t row);
  // The node of that key anywhere below `node`, which it extends.
  widgets::NodeId NodeBelow(widgets::NodeId node, std::string_view key);

  // Expanders: load the children of a node.
  void LoadNode(widgets::NodeId node);
  // Begins to bring the children of an open node into sight.
  void Reveal(widgets::NodeId node);
  // Puts what `append` adds in place of the children and the placeholder.
  template <class Append>
  void ReplaceChildren(widgets::NodeId node, Append&& append);
  void ExpandStateGroup(widgets::NodeId node);
  void tvMotherList_ExpandUser(widgets::NodeId node);
  void tvMotherList_ExpandTask(widgets::NodeId node);
  void tvMotherList_ExpandProcess(widgets::NodeId node);
  void tvMotherList_ExpandComm(widgets::NodeId node);
  void ExpandDay(widgets::NodeId node);
  void tvMotherList_ExpandImports(widgets::NodeId node);
  // Levels 1 to 3: the years of a root, the months of a year, the days of a month; 4: names and backups of a day.
  void tvMotherList_ExpandBackup(ExpandRoutine level, widgets::NodeId node);
  void tvMotherList_ExpandBackupLevel5(widgets::NodeId node);
  void AppendFoldersUnder(widgets::NodeId node, const datasource::Answer<datasource::SavesRecords>& files);

  // Lists: fill lvMotherList for a node.
  void HandleNodeClick(widgets::NodeId node);
  // The same as the user's choice, who wants to be nowhere else from then on.
  void GoTo(widgets::NodeId node);
  void FillList(widgets::NodeId node);
  // Makes the headers these unless they stand already: widths that the user set stay.
  void PrepareList(list::Headers headers);
  void lvMotherList_NodeProcess(widgets::NodeId node);
  void lvMotherList_NodeAllProcess(widgets::NodeId node);
  void lvMotherList_NodeCurrentProcess(widgets::NodeId node);
  void lvMotherList_NodeState(widgets::NodeId node);
  void lvMotherList_NodeUser(widgets::NodeId node);
  void lvMotherList_NodeUserRun(widgets::NodeId node);
  void lvMotherList_NodeTask(widgets::NodeId node);
  void lvMotherList_NodeStep(widgets::NodeId node);
  void lvMotherList_NodeMonthCommunications(widgets::NodeId node);
  void lvMotherList_NodeCommunications(widgets::NodeId node);
  void lvMotherList_NodeUserNameInAlarms(widgets::NodeId node);
  void lvMotherList_NodeDayDateInAlarms(widgets::NodeId node);
  void lvMotherList_NodeProcessNameInImports(widgets::NodeId node);
  void lvMotherList_NodeBackupFiles(widgets::NodeId node);
  void ListAllSubNodes(widgets::NodeId node, std::string_view caption);
  void ListConnections(widgets::NodeId node);
  void ListAlarms(widgets::NodeId node);
  // Which alarms the tree was built for.
  list::AlarmChoice AlarmsWanted(std::int32_t owner, bool activeOnly) const;
  tree::BackupsShown BackupsWanted() const;
  void ListRunsOfProcess(widgets::NodeId node);
  void ListRunsOnStation(widgets::NodeId node);
  void ListTasks(widgets::NodeId node);
  void MajStatusBarInfrmMain();
  // Fills the list for the selected node again, if any is.
  void ClickSelectedAgain();
  void MoveGroupAs(std::string_view label, bool up);
  void FocusMoved(std::string_view label);
  // The period was changed: shows where it ends.
  void PeriodChanged(std::string_view label);
  std::string ConnectionsContextKey();

  // Questions to the record sources: each asks, takes the answer and releases it.
  using ProcessLogAnswer = datasource::Answer<datasource::ProcessLogRecords>;
  ProcessLogAnswer AskProcesses();
  ProcessLogAnswer AskRuns(std::int32_t processId);
  // Parts of stations in runs, as the tree shown was asked for.
  ProcessLogAnswer AskParts(std::int32_t processId, std::int32_t userId);
  ProcessLogAnswer AskStations(std::int32_t run, std::int32_t state);
  // Nothing when there is no such run.
  std::optional<datasource::ProcessLogDetail> AskRunDetail(std::int32_t run);
  datasource::Answer<datasource::TaskRunRecords> AskTasks(const tree::PartOfRun& part);
  datasource::Answer<datasource::StepLogRecords> AskSteps(const tree::TaskOfRun& task);
  using CommandLogAnswer = datasource::Answer<datasource::CommandLogRecords>;
  CommandLogAnswer AskCommands(std::int32_t stepLog);
  CommandLogAnswer AskDaysOfConnections(StateFilter state);
  CommandLogAnswer AskConnections(const util::Period& period, bool failedOnly);
  CommandLogAnswer AskAllUnder(widgets::NodeId node);
  void AppendConnectionsUnder(widgets::NodeId node, const CommandLogAnswer& connections);
  CommandLogAnswer AskCommandsOfConnection(std::int32_t communication);
  datasource::Answer<datasource::AlarmsLogRecords> AskAlarms();
  datasource::Answer<datasource::AlarmsLogRecords> AskAlarmsOfDay(const tree::AlarmsOfNode& wanted);
  datasource::Answer<datasource::SavesRecords> AskSaves(const tree::BackupsOfNode& wanted);
  datasource::Answer<datasource::SavesRecords> AskSaveFiles(std::int32_t save);
  datasource::Answer<datasource::UsersImportRecords> AskImports(std::int32_t importId);
  datasource::Answer<datasource::UsersImportRecords> AskImportRuns(const tree::ImportPart& part);
  datasource::Answer<datasource::TaskSchedulerLogRecords> AskSystemLogs();

  datasource::ProcessLog& ProcessLogSource();
  datasource::CommandLog& CommandLogSource();
  datasource::Quorvel& TaskRunSource();
  datasource::AlarmsLog& AlarmsSource();
  datasource::UsersImport& ImportSource();

  Platform& platform_;
  datasource::RecordSourceFactory& factory_;
  datasource::ErrorsProcess errors_;
  ProcessLogControls controls_;
  dlgLVDetail detail_;
  tree::NavigationContext context_;

  // What the tree shown was asked for; properties that are set later wait for the next build.
  struct Shown {
    View view = View::kNone;
    OptionsFilter filter;
    std::int32_t processId = -1;
    std::int32_t userId = -1;
    std::int32_t companyId = -1;
    std::int32_t alarmId = -1;
    std::int32_t importId = 0;
  };

  bool f_blnClickNode = false;  // something is being worked on
  std::int32_t f_lngConnect = -1;
  std::int32_t f_lngProcessId = -1;
  std::int32_t f_lngUserId = 0;
  std::int32_t f_lngIdAppLog = 0;
  std::int32_t f_lngImportId = 0;
  enumLogsType f_lngLogsType = enumLogsType::enumProcessus;
  tlFromType f_tlFromType = tlFromType::tlAllOnStation;
  std::string f_strKey;
  std::string f_strServerName;
  std::string f_strConsoleLoginUserName;
  std::int32_t f_lngConsoleLoginUserRight = 0;
  bool tabsReduced_ = false;  // by p_TabStripVisible
  // The tab that carries the name of a view in place of its own.
  struct RenamedTab {
    std::size_t tab = 0;
    std::string caption;
  };
  std::optional<RenamedTab> tabRenamed_;
  bool choseNode_ = false;              // the selected node is where the user went, not just the first one
  bool periodSet_ = false;              // by the user
  bool tabChosen_ = false;              // by the user
  std::string processKeyLeft_;          // of the node of a process view that a tab click left last
  std::optional<Standing> toReturnTo_;  // nothing once a build came to its end
  std::vector<HostEvents*> subscribers_;
  bool selectionMoved_ = false;                // since the host was told last
  std::vector<std::function<void()>> toTell_;  // to the host, once this control can be called again
  MenuState menuState_;
  std::string f_strCurrentProcessIdList;
  Shown shown_;
  bool serverMode_ = true;
  bool labelsRead_ = false;
  // The node whose children are brought into sight, and the node that stands first while that goes on.
  widgets::NodeId revealed_ = widgets::NodeId::kNone;
  widgets::NodeId revealedFrom_ = widgets::NodeId::kNone;
  bool splitterMoving_ = false;
  bool splitterMoved_ = false;
  bool statusBarMissing_ = false;
  widgets::Twips width_ = 0;
  widgets::Twips height_ = 0;

  // Created at first use, kept until termination.
  std::unique_ptr<datasource::CommandLog> commandLog_;
  std::unique_ptr<datasource::ProcessLog> processLog_;
  std::unique_ptr<datasource::AlarmsLog> alarmsLog_;
  std::unique_ptr<datasource::Labels> labels_;
  std::unique_ptr<datasource::Quorvel> taskRuns_;
  std::unique_ptr<datasource::UsersImport> usersImport_;
};

}  // namespace quorvel
