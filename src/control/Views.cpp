// The builders of the trees and the lists behind their nodes.
#include <string>
#include <utility>

#include "control/Hourglass.h"
#include "control/ucProcessLog.h"
#include "datasource/Contract.h"
#include "list/ChildList.h"
#include "list/Classification.h"
#include "tree/NodeKey.h"
#include "tree/ProcessTree.h"
#include "tree/StateGroups.h"
#include "util/PublicFunctions.h"

namespace quorvel {

using datasource::Propagating;
using widgets::NodeId;

void ucProcessLog::m_GetLogByProcess(bool refresh) {
  BuildByProcess(refresh ? SelectedKey() : f_strKey);
}

void ucProcessLog::m_GetLogAll(StateFilter& state) {
  Propagating("Quorvel: ucProcessLog.m_GetLogAll", [&] {
    const Hourglass hourglass(platform_);
    const View view = ViewOfTab(f_tlFromType, controls_.sstProcessLog.currentCaption());
    if (view == View::kNone) return;
    RequireBuilt(view);
    const std::string place = SelectedKey();
    Init();
    OptionsFilter filter = ReturnOptionsFilter(state, false);
    filter.state = state;
    ControlsVisible(static_cast<std::int32_t>(state));
    BuildProcesses(filter, place);
  });
}

void ucProcessLog::BuildByProcess(const std::string& wantedKey) {
  Propagating("Quorvel: ucProcessLog.m_GetLogByProcess", [&] {
    const Hourglass hourglass(platform_);
    Init();
    BuildProcesses(ReturnOptionsFilter(StateFilter::kAll, true), wantedKey);
  });
}

void ucProcessLog::BuildView(View view, const std::string& wantedKey) {
  if (view == View::kNone) return;
  RequireBuilt(view);
  BuildByProcess(wantedKey);
}

void ucProcessLog::RequireBuilt(View view) const {
  if (view == View::kProcesses) return;
  throw Error(SystemError::kActionUnsupported,
              "The view \"" + std::string(controls_.sstProcessLog.currentCaption()) + "\" is not part of this version");
}

void ucProcessLog::ClearPanes() {
  InitListView();
  controls_.tvMotherList.Clear();
  SetfraListCaption();
  MajStatusBarInfrmMain();
}

// No batch of the tree is open while the component or the host is called: either may repaint, and a picture is drawn
// from what the observers were told.
void ucProcessLog::BuildProcesses(const OptionsFilter& filter, const std::string& wantedKey) {
  placeToReturnTo_ = wantedKey;
  ClearPanes();
  controls_.sstProcessLog.SetCaption(0, "Processes");
  controls_.sstProcessLog.SetCaption(1, "Users");
  ReadProcesses(filter);
  SelectAfterBuild(wantedKey);
  SetfraListCaption();
  ModifyMotherListSize();
}

void ucProcessLog::ReadProcesses(const OptionsFilter& filter) {
  datasource::ProcessLog& source = ProcessLogSource();
  constexpr std::int32_t kAll = -1;
  constexpr std::int32_t kReserved = 0;
  std::int32_t status = 0;
  source.GetProcessLogs(f_lngConnect, filter.start, filter.end, static_cast<std::int32_t>(filter.state), f_lngProcessId,
                        kAll, kAll, kReserved, kReserved, status);
  if (status == 0) {
    tree::AppendProcessNodes(source.Records(), source.lngCount(), platform_, errors_, controls_.tvMotherList);
  }
  source.CloseProcessLogs(f_lngConnect);
}

std::string ucProcessLog::SelectedKey() const {
  const widgets::TreeView& tree = controls_.tvMotherList;
  if (tree.Selected() != NodeId::kNone) return std::string(tree.Key(tree.Selected()));
  return tree.Count() > 0 ? std::string(tree.Key(tree.Child(NodeId::kNone, 0))) : placeToReturnTo_;
}

void ucProcessLog::SelectAfterBuild(const std::string& wantedKey) {
  widgets::TreeView& tree = controls_.tvMotherList;
  if (tree.Count() == 0) return;
  NodeId node = wantedKey.empty() ? NodeId::kNone : tree.Find(wantedKey);
  if (node == NodeId::kNone) node = tree.Child(NodeId::kNone, 0);
  tree.InBatch([&] {
    for (NodeId parent = tree.Parent(node); parent != NodeId::kNone; parent = tree.Parent(parent)) {
      tree.SetExpanded(parent, true);
    }
  });
  HandleNodeClick(node);
}

void ucProcessLog::LoadNode(NodeId node) {
  if (!controls_.tvMotherList.HasPlaceholder(node)) return;
  // The builders of this version give no placeholder to nodes of other routines.
  if (RouteOf(controls_.tvMotherList.Key(node)).expand == ExpandRoutine::kStateGroup) ExpandStateGroup(node);
}

// Labelled as a list routine, under which support knows it, though it adds tree nodes.
void ucProcessLog::ExpandStateGroup(NodeId node) {
  Propagating("Quorvel: ucProcessLog.lvMotherList_NodeState", [&] {
    widgets::TreeView& tree = controls_.tvMotherList;
    constexpr std::int32_t kRunField = 4;
    constexpr std::int32_t kStateField = 5;
    const std::int32_t run = util::IdentifiantNumber(tree.Key(node), kRunField);
    const std::int32_t state = util::IdentifiantNumber(tree.Key(node), kStateField);
    datasource::ProcessLog& source = ProcessLogSource();
    std::int32_t status = 0;
    source.GetProcessLogByTask(f_lngConnect, run, state, status);
    // The placeholder goes only now: after a failed query the group can be opened again, from the start.
    tree.InBatch([&] {
      tree.RemoveChildren(node);
      if (status == 0) tree::AppendStationNodes(source.Records(), source.lngCount(), node, tree);
      tree.SetPlaceholder(node, false);
    });
    source.CloseProcessLogByTask(f_lngConnect);
  });
}

void ucProcessLog::HandleNodeClick(NodeId node) {
  widgets::TreeView& tree = controls_.tvMotherList;
  tree.Select(node);
  controls_.lvMotherList.SetRows(nullptr);
  // A node whose own list is not built yet shows its children.
  if (RouteOf(tree.Key(node)).click != ClickRoutine::kNone) lvMotherList_NodeProcess(node);
  MajStatusBarInfrmMain();
}

void ucProcessLog::lvMotherList_NodeProcess(NodeId node) {
  Propagating("Quorvel: ucProcessLog.lvMotherList_NodeProcess", [&] {
    LoadNode(node);
    widgets::ListView& list = controls_.lvMotherList;
    const widgets::TreeView& tree = controls_.tvMotherList;
    const std::string_view caption = list::IsImportName(tree.Key(node)) ? "Triggering" : "Processes";
    list.InBatch([&] {
      if (ClearColumnHeaderLV(caption)) {
        list.SetHeaders({{.caption = std::string(caption), .width = list.bounds().width}});
      }
      list.SetRows(list::ChildRows(tree, node));
    });
  });
}

void ucProcessLog::MajStatusBarInfrmMain() {
  if (statusBarMissing_) return;
  datasource::Logging(errors_, "Quorvel: ucProcessLog.MajStatusBarInfrmMain", [&] {
    try {
      const std::int32_t count = p_ListCount();
      platform_.SetHostStatusText(std::to_string(count) + (count > 1 ? " elements" : " element"));
    } catch (const Error& error) {
      // A host without the status bar goes into the log once, not at every click.
      statusBarMissing_ = error.number() == static_cast<std::int32_t>(SystemError::kUnsupportedMember);
      throw;
    }
  });
}

std::string ucProcessLog::GetNextContextKeyInLogs(std::string_view key, std::string_view view) {
  return datasource::Logging(errors_, "Quorvel: ucProcessLog.GetNextContextKeyInLogs", std::string(), [&] {
    if (key.empty()) return std::string();
    context_.SaveContextLog(key, controls_.tvMotherList);
    if (view == "Processes") return context_.ProcessesKey();
    if (view == "Users") return context_.UsersKey();
    return view == "Connections" ? ConnectionsContextKey() : std::string();
  });
}

std::string ucProcessLog::ConnectionsContextKey() {
  if (context_.ContextStepLog.empty()) return {};
  const std::int32_t stepLog = util::IdentifiantNumber(context_.ContextStepLog, 1);
  if (stepLog == 0) return {};
  datasource::CommandLog& source = CommandLogSource();
  std::int32_t status = 0;
  source.GetCommandLogByStepLog(f_lngConnect, stepLog, status);
  std::string key;
  if (status == 0 && source.lngCount() > 0) {
    const auto& rows = source.Records();
    datasource::RequireColumns("GetCommandLogByStepLog", rows, static_cast<std::size_t>(source.lngCount()));
    key = context_.ConnectionsKey(rows.dtCommunicationDate[0], rows.lngCommunicationId[0]);
  }
  source.CloseCommandLogByStepLog(f_lngConnect);
  return key;
}

}  // namespace quorvel
