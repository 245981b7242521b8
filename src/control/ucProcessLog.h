// The history viewer: the control that a host places on its form.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "control/Enumerations.h"
#include "control/Options.h"
#include "control/ProcessLogControls.h"
#include "control/Routing.h"
#include "datasource/CommandLog.h"
#include "datasource/ErrorsProcess.h"
#include "datasource/Labels.h"
#include "datasource/ProcessLog.h"
#include "datasource/Quorvel.h"
#include "datasource/RecordSource.h"
#include "datasource/StepLog.h"
#include "list/ListParts.h"
#include "platform/Platform.h"
#include "tree/NavigationContext.h"
#include "tree/Place.h"
#include "tree/TaskTree.h"
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
  // The identifiers of the node selected last, which the next view opens at.
  const tree::NavigationContext& context() const { return context_; }

  // Properties.
  std::int32_t p_Connect() const { return f_lngConnect; }
  // The index of an open connection; -1 = none. The installation's settings are read again afterwards.
  void p_Connect(std::int32_t value);
  std::int32_t p_ProcessId() const { return f_lngProcessId; }
  // The process to show, -1 = all.
  void p_ProcessId(std::int32_t value) { f_lngProcessId = value; }
  tlFromType p_FromType() const { return f_tlFromType; }
  // Decides what a tab builds; nothing is built on assignment.
  void p_FromType(tlFromType value) { f_tlFromType = value; }
  std::int32_t p_IdAppLog() const { return f_lngIdAppLog; }
  // The station (tlOneUser) or company (tlOneCompany) that p_FromType names; 0 = all.
  void p_IdAppLog(std::int32_t value) { f_lngIdAppLog = value; }
  const std::string& p_Key() const { return f_strKey; }
  // The key of the node to select after a build, when it exists then.
  void p_Key(std::string_view value) { f_strKey = value; }
  // Name of the server on which record sources are created, "" = this machine.
  void p_ServerName(std::string_view value) { f_strServerName = value; }
  // Number of rows in the list.
  std::int32_t p_ListCount() const;

  // Builds the tree grouped by process: processes, their runs, the state groups of each run. `refresh`: the same view
  // is built again.
  void m_GetLogByProcess(bool refresh = false);
  // Builds the tree grouped by station: stations, the processes that ran there, their runs with the station's own
  // outcome.
  void m_GetLogByUser(bool refresh = false);
  // Builds the selected tab's own view for one state filter, for p_ProcessId (-1 = all).
  void m_GetLogAll(StateFilter& state);

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
  // One more or one less than the length of the period that the text box shows.
  void updDuring_UpClick();
  void updDuring_DownClick();
  void tvMotherList_Expand(widgets::NodeId node);
  void tvMotherList_Collapse(widgets::NodeId node);
  void tvMotherList_NodeClick(widgets::NodeId node);
  // `column`: counted from 1.
  void lvMotherList_ColumnClick(std::size_t column);
  // Goes to the node that stands for the selected item, loading what is needed, and opens it.
  void lvMotherList_DblClick();
  // Enter (13) does what a double click does; other keys are the list's own.
  void lvMotherList_KeyDown(std::int32_t keyCode);
  void imgSplitter_MouseDown();
  // `x`: the pointer from the left edge of the grip, in twips.
  void imgSplitter_MouseMove(widgets::Twips x);
  void imgSplitter_MouseUp();
  void HScroll_Change();
  void VScroll_Change();

 private:
  // Reads the installation's settings when they were not read for this connection yet, and presets the period.
  void Init();
  std::optional<std::string> LabelValue(datasource::Labels& labels, std::string_view name);
  OptionsFilter ReturnOptionsFilter(StateFilter stateBefore, bool showOptions);

  // Layout.
  void LayOut();
  void InitListView();
  void SetfraListCaption();
  void ModifyMotherListSize();
  // Clears the headers when they are not those that begin with this caption; tells whether they must be set.
  bool ClearColumnHeaderLV(std::string_view firstCaption);

  // Runs a public method that builds: with the hourglass, passing errors on. Error 5 while another one, or a gesture,
  // is being worked on: a component or a host that lets messages through may call back.
  template <class Body>
  void Build(std::string_view label, Body&& body);
  // Runs a gesture's handler in the same way, showing errors. A gesture that comes in between is not for what it was
  // made on: it does nothing.
  template <class Body>
  void Handle(std::string_view label, Body&& body);

  // Views. `place`: where to go after the build, as far as that exists then.
  void BuildView(View view, const tree::Place& place);
  void BuildByProcess(const tree::Place& place);
  void BuildByUser(const tree::Place& place);
  void BuildAll(StateFilter state);
  // Error 445 for a view that this version does not build.
  void RequireBuilt(View view) const;
  void BuildTree(View view, const OptionsFilter& filter, const tree::Place& place);
  // Empties tree and list, and what tells their numbers.
  void ClearPanes();
  // What p_IdAppLog says when p_FromType is `type`, else -1, which does not filter.
  std::int32_t IdentifierFor(tlFromType type) const;

  // Places. Where a build that did not come to its end wanted to go, else that of the selected node, else of the first.
  tree::Place SelectedPlace() const;
  std::string SelectedKey() const;
  void SelectAfterBuild(const tree::Place& place);
  // Goes down to the deepest node on the way to a place that is there or can be loaded. `reached`, kNone before, is
  // that node, by an error on the way too.
  void DescendTo(const tree::Place& place, widgets::NodeId& reached);
  // The node of a station under whichever state group of a run lists it now.
  widgets::NodeId FindInGroups(widgets::NodeId run, const tree::PlaceStep& station);
  // Opens what stands above the node, so that it can be seen.
  void OpenWayTo(widgets::NodeId node);
  // The node under `node` that stands for a row of its list; kNone when there is none.
  widgets::NodeId NodeOfRow(widgets::NodeId node, std::size_t row);

  // Expanders: load the children of a node.
  void LoadNode(widgets::NodeId node);
  // Puts what `append` adds in place of the children and the placeholder.
  template <class Append>
  void ReplaceChildren(widgets::NodeId node, Append&& append);
  void ExpandStateGroup(widgets::NodeId node);
  void tvMotherList_ExpandUser(widgets::NodeId node);
  void tvMotherList_ExpandTask(widgets::NodeId node);
  void tvMotherList_ExpandProcess(widgets::NodeId node);

  // Lists: fill lvMotherList for a node.
  void HandleNodeClick(widgets::NodeId node);
  void FillList(widgets::NodeId node);
  // Makes the headers these unless they stand already: widths that the user set stay.
  void PrepareList(const list::Headers& headers);
  void lvMotherList_NodeProcess(widgets::NodeId node);
  void lvMotherList_NodeAllProcess(widgets::NodeId node);
  void lvMotherList_NodeCurrentProcess(widgets::NodeId node);
  void lvMotherList_NodeState(widgets::NodeId node);
  void lvMotherList_NodeUser(widgets::NodeId node);
  void lvMotherList_NodeUserRun(widgets::NodeId node);
  void lvMotherList_NodeTask(widgets::NodeId node);
  void lvMotherList_NodeStep(widgets::NodeId node);
  void ListRunsOfProcess(widgets::NodeId node);
  void ListRunsOnStation(widgets::NodeId node);
  void ListTasks(widgets::NodeId node);
  void MajStatusBarInfrmMain();
  std::string ConnectionsContextKey();

  // Questions to the record sources: each asks, takes the answer and releases it.
  using ProcessLogAnswer = datasource::Answer<datasource::ProcessLogRecords>;
  ProcessLogAnswer AskProcesses();
  ProcessLogAnswer AskRuns(std::int32_t processId);
  // Parts of stations in runs, as the tree shown was asked for.
  ProcessLogAnswer AskParts(std::int32_t processId, std::int32_t userId);
  ProcessLogAnswer AskStations(std::int32_t run, std::int32_t state);
  datasource::Answer<datasource::TaskRunRecords> AskTasks(const tree::PartOfRun& part);
  datasource::Answer<datasource::StepLogRecords> AskSteps(const tree::TaskOfRun& task);
  datasource::Answer<datasource::CommandLogRecords> AskCommands(std::int32_t stepLog);

  datasource::ProcessLog& ProcessLogSource();
  datasource::CommandLog& CommandLogSource();
  datasource::Quorvel& TaskRunSource();

  Platform& platform_;
  datasource::RecordSourceFactory& factory_;
  datasource::ErrorsProcess errors_;
  ProcessLogControls controls_;
  tree::NavigationContext context_;

  // What the tree shown was asked for; properties that are set later wait for the next build.
  struct Shown {
    View view = View::kNone;
    OptionsFilter filter;
    std::int32_t processId = -1;
    std::int32_t userId = -1;
    std::int32_t companyId = -1;
  };

  bool f_blnClickNode = false;  // something is being worked on
  std::int32_t f_lngConnect = -1;
  std::int32_t f_lngProcessId = -1;
  std::int32_t f_lngUserId = 0;
  std::int32_t f_lngIdAppLog = 0;
  tlFromType f_tlFromType = tlFromType::tlAllOnStation;
  std::string f_strKey;
  std::string f_strServerName;
  tree::Place placeToReturnTo_;  // nowhere once a build came to its end
  Shown shown_;
  bool serverMode_ = true;
  bool labelsRead_ = false;
  bool splitterMoving_ = false;
  bool splitterMoved_ = false;
  bool statusBarMissing_ = false;
  widgets::Twips width_ = 0;
  widgets::Twips height_ = 0;

  // Created at first use, kept until termination.
  std::unique_ptr<datasource::CommandLog> commandLog_;
  std::unique_ptr<datasource::ProcessLog> processLog_;
  std::unique_ptr<datasource::Labels> labels_;
  std::unique_ptr<datasource::Quorvel> taskRuns_;
};

}  // namespace quorvel
