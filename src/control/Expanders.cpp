// The expanders: what loads the children of a node, once.
#include <optional>
#include <utility>

#include "control/Entry.h"
#include "tree/ConnectionTree.h"
#include "tree/ProcessTree.h"
#include "tree/TaskTree.h"
#include "tree/UserTree.h"

namespace quorvel {

using datasource::Propagating;
using widgets::NodeId;

namespace {

std::string_view BackupLabelOf(ExpandRoutine level) {
  if (level == ExpandRoutine::kExpandBackupLevel1) return "Quorvel: ucProcessLog.tvMotherList_ExpandBackupLevel1";
  if (level == ExpandRoutine::kExpandBackupLevel2) return "Quorvel: ucProcessLog.tvMotherList_ExpandBackupLevel2";
  if (level == ExpandRoutine::kExpandBackupLevel3) return "Quorvel: ucProcessLog.tvMotherList_ExpandBackupLevel3";
  return "Quorvel: ucProcessLog.tvMotherList_ExpandBackupLevel4";
}

}  // namespace

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
    case ExpandRoutine::kNodeMonthCommunications:
      return tvMotherList_ExpandComm(node);
    case ExpandRoutine::kExpandCommunications:
      return ExpandDay(node);
    case ExpandRoutine::kExpandImports:
      return tvMotherList_ExpandImports(node);
    case ExpandRoutine::kExpandBackupLevel5:
      return tvMotherList_ExpandBackupLevel5(node);
    case ExpandRoutine::kNone:
      return;
    default:
      return tvMotherList_ExpandBackup(RouteOf(controls_.tvMotherList.Key(node)).expand, node);
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

// A month without days.
void ucProcessLog::tvMotherList_ExpandComm(NodeId node) {
  Propagating("Quorvel: ucProcessLog.tvMotherList_ExpandComm",
              [&] { AppendConnectionsUnder(node, AskAllUnder(node)); });
}

void ucProcessLog::tvMotherList_ExpandCommunications(NodeId node) {
  constexpr std::string_view kLabel = "Quorvel: ucProcessLog.tvMotherList_ExpandCommunications";
  Build(kLabel, [&] {
    std::optional<Hourglass> hourglass;
    Propagating(kLabel, [&] { hourglass.emplace(platform_); });
    ExpandDay(node);
  });
}

void ucProcessLog::ExpandDay(NodeId node) {
  Propagating("Quorvel: ucProcessLog.tvMotherList_ExpandCommunications", [&] {
    if (controls_.tvMotherList.HasPlaceholder(node)) AppendConnectionsUnder(node, AskAllUnder(node));
  });
}

// All of the period, whatever the list is narrowed to.
ucProcessLog::CommandLogAnswer ucProcessLog::AskAllUnder(NodeId node) {
  return AskConnections(tree::PeriodOfConnections(controls_.tvMotherList.Key(node), ShownPeriod()), false);
}

void ucProcessLog::AppendConnectionsUnder(NodeId node, const CommandLogAnswer& connections) {
  ReplaceChildren(node, [&] {
    tree::AppendConnectionNodes(connections.records, connections.count, platform_, node, controls_.tvMotherList);
  });
}

void ucProcessLog::tvMotherList_ExpandImports(NodeId node) {
  Propagating("Quorvel: ucProcessLog.tvMotherList_ExpandImports", [&] {
    widgets::TreeView& tree = controls_.tvMotherList;
    const auto runs = AskImportRuns(tree::ReadImportKey(tree.Key(node)));
    ReplaceChildren(node, [&] { tree::AppendImportRuns(runs.records, runs.count, platform_, node, tree); });
  });
}

void ucProcessLog::tvMotherList_ExpandBackup(ExpandRoutine level, NodeId node) {
  Propagating(BackupLabelOf(level), [&] {
    widgets::TreeView& tree = controls_.tvMotherList;
    const auto saves = AskSaves(tree::ReadBackupKey(tree.Key(node), ShownPeriod()));
    const tree::BackupsShown shown = BackupsWanted();
    ReplaceChildren(node, [&] {
      if (level == ExpandRoutine::kExpandBackupLevel4) {
        tree::AppendBackupsOfDay(saves.records, saves.count, shown, node, tree);
      } else {
        tree::AppendBackupPeriods(saves.records, saves.count, shown, platform_, node, tree);
      }
    });
  });
}

void ucProcessLog::tvMotherList_ExpandBackupLevel5(NodeId node) {
  Propagating("Quorvel: ucProcessLog.tvMotherList_ExpandBackupLevel5",
              [&] { AppendFoldersUnder(node, AskSaveFiles(tree::SaveOfKey(controls_.tvMotherList.Key(node)))); });
}

void ucProcessLog::AppendFoldersUnder(NodeId node, const datasource::Answer<datasource::SavesRecords>& files) {
  ReplaceChildren(node, [&] { tree::AppendBackupFolders(files.records, files.count, node, controls_.tvMotherList); });
}

// Level by level, so that a bound on the work leaves a tree that is open evenly.
void ucProcessLog::LoadAndOpenAll() {
  constexpr int kMostLoads = 5'000;
  widgets::TreeView& tree = controls_.tvMotherList;
  const auto roots = tree.Children(NodeId::kNone);
  std::vector<NodeId> nodes(roots.begin(), roots.end());
  int loads = 0;
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    if (tree.HasPlaceholder(nodes[i])) {
      if (platform_.IsEscapePressed()) return;
      if (loads++ == kMostLoads) {
        platform_.ShowMessage(
            std::to_string(kMostLoads) + " nodes were loaded, and there are more. \"Expand all\" goes on from here.",
            datasource::kProductTitle);
        return;
      }
      LoadNode(nodes[i]);
      tree.SetExpanded(nodes[i], true);
    }
    const auto children = tree.Children(nodes[i]);
    nodes.insert(nodes.end(), children.begin(), children.end());
  }
}

}  // namespace quorvel
