// The list fillers: what lvMotherList shows for a node that was clicked.
//
// The columns are there before the question is asked, and rows come only after it was answered: a query that fails
// leaves the columns, without rows, and the control usable.
#include <string>
#include <vector>

#include "control/Hourglass.h"
#include "control/ucProcessLog.h"
#include "list/ChildList.h"
#include "list/Classification.h"
#include "list/CommandList.h"
#include "list/CurrentRunList.h"
#include "list/RunList.h"
#include "list/RunOutcome.h"
#include "list/StateList.h"
#include "list/StepList.h"
#include "list/TaskList.h"
#include "tree/ProcessTree.h"
#include "tree/TaskTree.h"
#include "tree/UserTree.h"
#include "util/KeyPrefixes.h"
#include "util/PublicFunctions.h"

namespace quorvel {

using datasource::Propagating;
using util::IdentifiantNumber;
using widgets::NodeId;

void ucProcessLog::HandleNodeClick(NodeId node) {
  selectionMoved_ = true;
  CloseDetail();
  controls_.tvMotherList.Select(node);
  controls_.lvMotherList.SetRows(nullptr);
  try {
    FillList(node);
  } catch (...) {
    MajStatusBarInfrmMain();
    throw;
  }
  MajStatusBarInfrmMain();
}

void ucProcessLog::GoTo(NodeId node) {
  toReturnTo_.reset();
  choseNode_ = true;
  HandleNodeClick(node);
}

void ucProcessLog::FillList(NodeId node) {
  switch (RouteOf(controls_.tvMotherList.Key(node)).click) {
    case ClickRoutine::kNone:
      return;
    case ClickRoutine::kNodeAllProcess:
      return lvMotherList_NodeAllProcess(node);
    case ClickRoutine::kNodeCurrentProcess:
      return lvMotherList_NodeCurrentProcess(node);
    case ClickRoutine::kNodeState:
      return lvMotherList_NodeState(node);
    case ClickRoutine::kNodeUser:
      return lvMotherList_NodeUser(node);
    case ClickRoutine::kNodeUserRun:
      return lvMotherList_NodeUserRun(node);
    case ClickRoutine::kNodeTask:
      return lvMotherList_NodeTask(node);
    case ClickRoutine::kNodeStep:
      return lvMotherList_NodeStep(node);
    case ClickRoutine::kNodeProcess:
      return lvMotherList_NodeProcess(node);
    case ClickRoutine::kNodeMonthCommunications:
      return lvMotherList_NodeMonthCommunications(node);
    case ClickRoutine::kNodeCommunications:
      return lvMotherList_NodeCommunications(node);
    case ClickRoutine::kNodeUserNameInAlarms:
      return lvMotherList_NodeUserNameInAlarms(node);
    case ClickRoutine::kNodeDayDateInAlarms:
      return lvMotherList_NodeDayDateInAlarms(node);
    case ClickRoutine::kNodeProcessNameInImports:
      return lvMotherList_NodeProcessNameInImports(node);
    case ClickRoutine::kNodeBackupFiles:
      return lvMotherList_NodeBackupFiles(node);
    case ClickRoutine::kListAllSubNodes:
      return ListAllSubNodes(node, tree::CaptionOfSubNodes(controls_.tvMotherList.Key(node)));
  }
}

void ucProcessLog::PrepareList(list::Headers headers) {
  if (!ClearColumnHeaderLV(headers.front().caption)) return;
  if (!platform_.HasFixedDates()) list::MakeRoomForRegionalDates(headers);
  controls_.lvMotherList.SetHeaders(std::move(headers));
}

void ucProcessLog::lvMotherList_NodeProcess(NodeId node) {
  Propagating("Quorvel: ucProcessLog.lvMotherList_NodeProcess", [&] {
    LoadNode(node);
    widgets::ListView& list = controls_.lvMotherList;
    const widgets::TreeView& tree = controls_.tvMotherList;
    const std::string_view caption = list::IsImportName(tree.Key(node)) ? "Triggering" : "Processes";
    list.InBatch([&] {
      PrepareList({list::TextHeader(caption, list.bounds().width)});
      list.SetRows(list::ChildRows(tree, node));
    });
  });
}

void ucProcessLog::lvMotherList_NodeAllProcess(NodeId node) {
  Propagating("Quorvel: ucProcessLog.lvMotherList_NodeAllProcess", [&] {
    const Hourglass hourglass(platform_);
    const bool onOneStation = util::Identifiant(controls_.tvMotherList.Key(node), 1) == util::kUserPrefix;
    onOneStation ? ListRunsOnStation(node) : ListRunsOfProcess(node);
  });
}

void ucProcessLog::ListRunsOfProcess(NodeId node) {
  constexpr std::int32_t kProcessField = 2;
  const std::string key(controls_.tvMotherList.Key(node));
  PrepareList(list::RunListHeaders());
  const auto runs = AskRuns(IdentifiantNumber(key, kProcessField));
  controls_.lvMotherList.SetRows(list::RunListRows(runs.records, runs.count, key, platform_, platform_.Now()));
}

void ucProcessLog::ListRunsOnStation(NodeId node) {
  const std::string key(controls_.tvMotherList.Key(node));
  PrepareList(list::StationRunListHeaders());
  const tree::ProcessOnStation wanted = tree::ReadProcessKey(key);
  const auto parts = AskParts(wanted.process, wanted.user);
  controls_.lvMotherList.SetRows(list::StationRunListRows(parts.records, parts.count, key, platform_, platform_.Now()));
}

// A question for each state. Who changes state between two of them may be listed twice, or not at all, until the next
// click.
void ucProcessLog::lvMotherList_NodeCurrentProcess(NodeId node) {
  if (!list::IsRunningImage(controls_.tvMotherList.Image(node))) return lvMotherList_NodeProcess(node);
  Propagating("Quorvel: ucProcessLog.lvMotherList_NodeCurrentProcess", [&] {
    const Hourglass hourglass(platform_);
    const std::string key(controls_.tvMotherList.Key(node));
    PrepareList(list::CurrentRunListHeaders());
    const std::int32_t run = tree::ReadRunKey(key);
    std::vector<list::StationsOfGroup> groups;
    groups.reserve(list::kCurrentRunGroups.size());
    for (const list::StateGroup group : list::kCurrentRunGroups) {
      groups.push_back({group, AskStations(run, static_cast<std::int32_t>(group))});
    }
    controls_.lvMotherList.SetRows(list::CurrentRunListRows(groups, key, platform_));
    // The list is newer than the tree: each of its rows must find its node.
    tree::UpdateStateGroups(groups, node, controls_.tvMotherList);
  });
}

void ucProcessLog::lvMotherList_NodeState(NodeId node) {
  Propagating("Quorvel: ucProcessLog.lvMotherList_NodeState", [&] {
    const Hourglass hourglass(platform_);
    const std::string key(controls_.tvMotherList.Key(node));
    widgets::ListView& list = controls_.lvMotherList;
    PrepareList(list::StateListHeaders());
    list.SetSortOrder(widgets::SortOrder::kDescending);
    const tree::GroupOfRun group = tree::ReadGroupKey(key);
    const auto stations = AskStations(group.run, group.state);
    list.SetRows(list::StateListRows(stations.records, stations.count, key, platform_));
  });
}

void ucProcessLog::lvMotherList_NodeUser(NodeId node) {
  Propagating("Quorvel: ucProcessLog.lvMotherList_NodeUser", [&] {
    platform_.SetMousePointer(MousePointer::kHourglass);
    if (util::Identifiant(controls_.tvMotherList.Key(node), 1) == util::kProcessPrefix) ListTasks(node);
    // Ends with the hourglass: whoever calls it sets the pointer once more things are done.
    platform_.SetMousePointer(MousePointer::kHourglass);
  });
}

void ucProcessLog::lvMotherList_NodeUserRun(NodeId node) {
  Propagating("Quorvel: ucProcessLog.lvMotherList_NodeUserRun", [&] {
    const Hourglass hourglass(platform_);
    ListTasks(node);
  });
}

void ucProcessLog::ListTasks(NodeId node) {
  const std::string key(controls_.tvMotherList.Key(node));
  const tree::PartOfRun part = tree::ReadPartKey(key);
  PrepareList(list::TaskListHeaders());
  const auto tasks = AskTasks(part);
  controls_.lvMotherList.SetRows(list::TaskListRows(tasks.records, tasks.count, key, platform_, serverMode_));
}

void ucProcessLog::lvMotherList_NodeTask(NodeId node) {
  Propagating("Quorvel: ucProcessLog.lvMotherList_NodeTask", [&] {
    const Hourglass hourglass(platform_);
    const std::string key(controls_.tvMotherList.Key(node));
    widgets::ListView& list = controls_.lvMotherList;
    PrepareList(list::StepListHeaders());
    list.SetSortOrder(widgets::SortOrder::kAscending);
    list.SetSortKey(list::kStepSortKey);
    const auto task = tree::ReadTaskKey(key, f_lngUserId);
    if (!task) return;
    const auto steps = AskSteps(*task);
    list.SetRows(list::StepListRows(steps.records, steps.count, key, platform_));
  });
}

void ucProcessLog::lvMotherList_NodeStep(NodeId node) {
  Propagating("Quorvel: ucProcessLog.lvMotherList_NodeStep", [&] {
    const Hourglass hourglass(platform_);
    const std::string key(controls_.tvMotherList.Key(node));
    PrepareList(list::CommandListHeaders());
    const auto commands = AskCommands(tree::StepLogOfKey(key));
    controls_.lvMotherList.SetRows(list::CommandListRows(commands.records, commands.count, key, platform_));
  });
}

void ucProcessLog::MajStatusBarInfrmMain() {
  const std::int32_t count = p_ListCount();
  WriteStatus("Quorvel: ucProcessLog.MajStatusBarInfrmMain",
              std::to_string(count) + (count > 1 ? " elements" : " element"));
}

void ucProcessLog::ShowNotice(std::string_view text) {
  WriteStatus("Quorvel: ucProcessLog.ShowNotice", text);
}

void ucProcessLog::WriteStatus(std::string_view label, std::string_view text) {
  if (statusBarMissing_) return;
  datasource::Logging(errors_, label, [&] {
    try {
      platform_.SetHostStatusText(text);
    } catch (const Error& error) {
      // A host without the status bar goes into the log once, not at every click.
      statusBarMissing_ = error.number() == static_cast<std::int32_t>(SystemError::kUnsupportedMember);
      throw;
    }
  });
}

}  // namespace quorvel
