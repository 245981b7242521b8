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
#include "tree/TaskTree.h"
#include "tree/UserTree.h"
#include "util/KeyPrefixes.h"
#include "util/PublicFunctions.h"

namespace quorvel {

using datasource::Propagating;
using util::IdentifiantNumber;
using widgets::NodeId;

void ucProcessLog::HandleNodeClick(NodeId node) {
  controls_.tvMotherList.Select(node);
  controls_.lvMotherList.SetRows(nullptr);
  FillList(node);
  MajStatusBarInfrmMain();
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
      return ListTasks(node);
    case ClickRoutine::kNodeTask:
      return lvMotherList_NodeTask(node);
    case ClickRoutine::kNodeStep:
      return lvMotherList_NodeStep(node);
    default:
      // The child list is the right one for kNodeProcess; nodes of other views have no list of their own yet.
      return lvMotherList_NodeProcess(node);
  }
}

void ucProcessLog::PrepareList(const list::Headers& headers) {
  if (ClearColumnHeaderLV(headers.front().caption)) controls_.lvMotherList.SetHeaders(headers);
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
  const std::string key(controls_.tvMotherList.Key(node));
  constexpr std::int32_t kProcessField = 2;
  constexpr std::int32_t kReserved = 0;
  PrepareList(list::RunListHeaders());
  const std::int32_t process = IdentifiantNumber(key, kProcessField);
  datasource::ProcessLog& source = ProcessLogSource();
  std::int32_t status = 0;
  source.GetProcessLogByProcess(f_lngConnect, process, kReserved, kReserved, status);
  if (status == 0) {
    controls_.lvMotherList.SetRows(
        list::RunListRows(source.Records(), source.lngCount(), key, platform_, platform_.Now()));
  }
  source.CloseProcessLogs(f_lngConnect);
}

void ucProcessLog::ListRunsOnStation(NodeId node) {
  const std::string key(controls_.tvMotherList.Key(node));
  PrepareList(list::StationRunListHeaders());
  const tree::ProcessOnStation wanted = tree::ReadProcessKey(key);
  datasource::ProcessLog& source = ProcessLogSource();
  if (QueryByUser(shownFilter_, wanted.process, wanted.user)) {
    controls_.lvMotherList.SetRows(
        list::StationRunListRows(source.Records(), source.lngCount(), key, platform_, platform_.Now()));
  }
  source.CloseProcessLogByUser(f_lngConnect);
}

void ucProcessLog::lvMotherList_NodeCurrentProcess(NodeId node) {
  if (!list::IsRunningImage(controls_.tvMotherList.Image(node))) return lvMotherList_NodeProcess(node);
  Propagating("Quorvel: ucProcessLog.lvMotherList_NodeCurrentProcess", [&] {
    const Hourglass hourglass(platform_);
    const std::string key(controls_.tvMotherList.Key(node));
    constexpr std::int32_t kRunField = 4;
    PrepareList(list::CurrentRunListHeaders());
    const std::int32_t run = IdentifiantNumber(key, kRunField);
    datasource::ProcessLog& source = ProcessLogSource();
    std::vector<list::StationsOfGroup> groups;
    for (const list::StateGroup group : list::kCurrentRunGroups) {
      std::int32_t status = 0;
      source.GetProcessLogByTask(f_lngConnect, run, static_cast<std::int32_t>(group), status);
      if (status == 0) groups.push_back({group, source.Records(), source.lngCount()});
      source.CloseProcessLogByTask(f_lngConnect);
    }
    controls_.lvMotherList.SetRows(list::CurrentRunListRows(std::move(groups), key, platform_));
  });
}

void ucProcessLog::lvMotherList_NodeState(NodeId node) {
  Propagating("Quorvel: ucProcessLog.lvMotherList_NodeState", [&] {
    const Hourglass hourglass(platform_);
    const std::string key(controls_.tvMotherList.Key(node));
    constexpr std::int32_t kRunField = 4;
    constexpr std::int32_t kStateField = 5;
    widgets::ListView& list = controls_.lvMotherList;
    PrepareList(list::StateListHeaders());
    list.SetSortOrder(widgets::SortOrder::kDescending);
    const std::int32_t run = IdentifiantNumber(key, kRunField);
    const std::int32_t state = IdentifiantNumber(key, kStateField);
    datasource::ProcessLog& source = ProcessLogSource();
    std::int32_t status = 0;
    source.GetProcessLogByTask(f_lngConnect, run, state, status);
    if (status == 0) list.SetRows(list::StateListRows(source.Records(), source.lngCount(), key, platform_));
    source.CloseProcessLogByTask(f_lngConnect);
  });
}

void ucProcessLog::lvMotherList_NodeUser(NodeId node) {
  Propagating("Quorvel: ucProcessLog.lvMotherList_NodeUser", [&] {
    platform_.SetMousePointer(MousePointer::kHourglass);
    static_cast<void>(ReturnOptionsFilter(StateFilter::kAll, false));
    if (util::Identifiant(controls_.tvMotherList.Key(node), 1) == util::kProcessPrefix) ListTasks(node);
    // Ends with the hourglass: whoever calls it sets the pointer once more things are done.
    platform_.SetMousePointer(MousePointer::kHourglass);
  });
}

void ucProcessLog::ListTasks(NodeId node) {
  const std::string key(controls_.tvMotherList.Key(node));
  const tree::PartOfRun part = tree::ReadPartKey(key);
  PrepareList(list::TaskListHeaders());
  datasource::Quorvel& source = TaskRunSource();
  std::int32_t status = 0;
  source.GetTaskRunsByProcessLog(f_lngConnect, part.run, part.onStation, part.user, status);
  if (status == 0) {
    controls_.lvMotherList.SetRows(
        list::TaskListRows(source.Records(), source.lngCount(), key, platform_, serverMode_));
  }
  source.CloseTaskRuns(f_lngConnect);
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
    const auto source = CreateStepLog();
    std::int32_t status = 0;
    source->GetStepLogByTaskRun(f_lngConnect, task->task, task->run, task->user, status);
    if (status == 0) list.SetRows(list::StepListRows(source->Records(), source->lngCount(), key, platform_));
    source->CloseStepLog(f_lngConnect);
  });
}

void ucProcessLog::lvMotherList_NodeStep(NodeId node) {
  Propagating("Quorvel: ucProcessLog.lvMotherList_NodeStep", [&] {
    const Hourglass hourglass(platform_);
    const std::string key(controls_.tvMotherList.Key(node));
    PrepareList(list::CommandListHeaders());
    const std::int32_t step = tree::StepLogOfKey(key);
    datasource::CommandLog& source = CommandLogSource();
    std::int32_t status = 0;
    source.GetCommandLogByStepLog(f_lngConnect, step, status);
    if (status == 0) {
      controls_.lvMotherList.SetRows(list::CommandListRows(source.Records(), source.lngCount(), key, platform_));
    }
    source.CloseCommandLogByStepLog(f_lngConnect);
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

}  // namespace quorvel
