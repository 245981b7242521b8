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
#include "datasource/RecordSource.h"
#include "platform/Platform.h"
#include "tree/NavigationContext.h"
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

  // Views. `wantedKey`: the node to select after the build, when it exists.
  void BuildView(View view, const std::string& wantedKey);
  void BuildByProcess(const std::string& wantedKey);
  // Error 445 for a view that this version does not build.
  void RequireBuilt(View view) const;
  void BuildProcesses(const OptionsFilter& filter, const std::string& wantedKey);
  // Empties tree and list, and what tells their numbers.
  void ClearPanes();
  void ReadProcesses(const OptionsFilter& filter);
  // Key of the selected node, else of the first. While the tree is empty, of the node that the last build wanted: a
  // build that failed does not lose the place.
  std::string SelectedKey() const;
  void SelectAfterBuild(const std::string& wantedKey);
  void LoadNode(widgets::NodeId node);
  void ExpandStateGroup(widgets::NodeId node);
  void HandleNodeClick(widgets::NodeId node);
  void lvMotherList_NodeProcess(widgets::NodeId node);
  void MajStatusBarInfrmMain();
  std::string ConnectionsContextKey();

  datasource::ProcessLog& ProcessLogSource();
  datasource::CommandLog& CommandLogSource();

  Platform& platform_;
  datasource::RecordSourceFactory& factory_;
  datasource::ErrorsProcess errors_;
  ProcessLogControls controls_;
  tree::NavigationContext context_;

  bool f_blnClickNode = false;
  std::int32_t f_lngConnect = -1;
  std::int32_t f_lngProcessId = -1;
  tlFromType f_tlFromType = tlFromType::tlAllOnStation;
  std::string f_strKey;
  std::string f_strServerName;
  std::string placeToReturnTo_;
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
};

}  // namespace quorvel
