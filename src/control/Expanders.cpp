// The expanders: what loads the children of a node, once.
#include <utility>

#include "control/ucProcessLog.h"
#include "tree/ProcessTree.h"
#include "tree/TaskTree.h"
#include "tree/UserTree.h"
#include "util/PublicFunctions.h"

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
    constexpr std::int32_t kRunField = 4;
    constexpr std::int32_t kStateField = 5;
    const std::int32_t run = util::IdentifiantNumber(tree.Key(node), kRunField);
    const std::int32_t state = util::IdentifiantNumber(tree.Key(node), kStateField);
    datasource::ProcessLog& source = ProcessLogSource();
    std::int32_t status = 0;
    source.GetProcessLogByTask(f_lngConnect, run, state, status);
    ReplaceChildren(node, [&] {
      if (status == 0) tree::AppendStationNodes(source.Records(), source.lngCount(), node, tree);
    });
    source.CloseProcessLogByTask(f_lngConnect);
  });
}

void ucProcessLog::tvMotherList_ExpandUser(NodeId node) {
  Propagating("Quorvel: ucProcessLog.tvMotherList_ExpandUser", [&] {
    widgets::TreeView& tree = controls_.tvMotherList;
    const tree::PartOfRun part = tree::ReadPartKey(tree.Key(node));
    datasource::Quorvel& source = TaskRunSource();
    std::int32_t status = 0;
    source.GetTaskRunsByProcessLog(f_lngConnect, part.run, part.onStation, part.user, status);
    ReplaceChildren(node, [&] {
      if (status == 0) tree::AppendTaskNodes(source.Records(), source.lngCount(), serverMode_, node, tree);
    });
    source.CloseTaskRuns(f_lngConnect);
  });
}

void ucProcessLog::tvMotherList_ExpandTask(NodeId node) {
  Propagating("Quorvel: ucProcessLog.tvMotherList_ExpandTask", [&] {
    widgets::TreeView& tree = controls_.tvMotherList;
    const auto task = tree::ReadTaskKey(tree.Key(node), f_lngUserId);
    if (!task) return;
    const auto source = CreateStepLog();
    std::int32_t status = 0;
    source->GetStepLogByTaskRun(f_lngConnect, task->task, task->run, task->user, status);
    ReplaceChildren(node, [&] {
      if (status == 0) tree::AppendStepNodes(source->Records(), source->lngCount(), node, tree);
    });
    source->CloseStepLog(f_lngConnect);
  });
}

// The runs that the tree was built for, whatever the options panel says by now.
void ucProcessLog::tvMotherList_ExpandProcess(NodeId node) {
  Propagating("Quorvel: ucProcessLog.tvMotherList_ExpandProcess", [&] {
    widgets::TreeView& tree = controls_.tvMotherList;
    const tree::ProcessOnStation wanted = tree::ReadProcessKey(tree.Key(node));
    datasource::ProcessLog& source = ProcessLogSource();
    const bool found = QueryByUser(shownFilter_, wanted.process, wanted.user);
    ReplaceChildren(node, [&] {
      if (found) tree::AppendRunsOfStation(source.Records(), source.lngCount(), platform_, node, tree);
    });
    source.CloseProcessLogByUser(f_lngConnect);
  });
}

}  // namespace quorvel
