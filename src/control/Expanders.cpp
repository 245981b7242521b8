// The expanders: what loads the children of a node, once.
#include <utility>

#include "control/ucProcessLog.h"
#include "tree/ProcessTree.h"
#include "tree/TaskTree.h"
#include "tree/UserTree.h"

namespace quorvel {

using datasource::Propagating;
using widgets::NodeId;

// The children go only now: after a failed query the node can be opened again, from the start.
template <class Append>
void ucProcessLog::ReplaceChildren(NodeId node, Append&& append) {
  widgets::TreeView& tree = controls_.tvMotherList;
  tree.InBatch([&] {
    tree.RemoveChildren(node);
    std::forward<Append>(append)();
    tree.SetPlaceholder(node, false);
  });
}

void ucProcessLog::LoadNode(NodeId node) {
  if (!controls_.tvMotherList.HasPlaceholder(node)) return;
  switch (RouteOf(controls_.tvMotherList.Key(node)).expand) {
    case ExpandRoutine::kStateGroup:
      return ExpandStateGroup(node);
    case ExpandRoutine::kExpandUser:
      return tvMotherList_ExpandUser(node);
    case ExpandRoutine::kExpandTask:
      return tvMotherList_ExpandTask(node);
    case ExpandRoutine::kExpandProcess:
      return tvMotherList_ExpandProcess(node);
    default:
      // The builders of this version give no placeholder to nodes of other routines.
      return;
  }
}

// Labelled as a list routine, under which support knows it, though it adds tree nodes.
void ucProcessLog::ExpandStateGroup(NodeId node) {
  Propagating("Quorvel: ucProcessLog.lvMotherList_NodeState", [&] {
    widgets::TreeView& tree = controls_.tvMotherList;
    const tree::GroupOfRun group = tree::ReadGroupKey(tree.Key(node));
    const auto stations = AskStations(group.run, group.state);
    ReplaceChildren(node, [&] { tree::AppendStationNodes(stations.records, stations.count, node, tree); });
  });
}

void ucProcessLog::tvMotherList_ExpandUser(NodeId node) {
  Propagating("Quorvel: ucProcessLog.tvMotherList_ExpandUser", [&] {
    widgets::TreeView& tree = controls_.tvMotherList;
    const auto tasks = AskTasks(tree::ReadPartKey(tree.Key(node)));
    ReplaceChildren(node, [&] { tree::AppendTaskNodes(tasks.records, tasks.count, serverMode_, node, tree); });
  });
}

void ucProcessLog::tvMotherList_ExpandTask(NodeId node) {
  Propagating("Quorvel: ucProcessLog.tvMotherList_ExpandTask", [&] {
    widgets::TreeView& tree = controls_.tvMotherList;
    const auto task = tree::ReadTaskKey(tree.Key(node), f_lngUserId);
    if (!task) return;
    const auto steps = AskSteps(*task);
    ReplaceChildren(node, [&] { tree::AppendStepNodes(steps.records, steps.count, node, tree); });
  });
}

void ucProcessLog::tvMotherList_ExpandProcess(NodeId node) {
  Propagating("Quorvel: ucProcessLog.tvMotherList_ExpandProcess", [&] {
    widgets::TreeView& tree = controls_.tvMotherList;
    const tree::ProcessOnStation wanted = tree::ReadProcessKey(tree.Key(node));
    const auto parts = AskParts(wanted.process, wanted.user);
    ReplaceChildren(node, [&] { tree::AppendRunsOfStation(parts.records, parts.count, platform_, node, tree); });
  });
}

}  // namespace quorvel
