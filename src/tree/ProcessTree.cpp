#include "tree/ProcessTree.h"

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include "datasource/Contract.h"
#include "list/StationRecord.h"
#include "tree/NodeKey.h"
#include "tree/Place.h"
#include "tree/RootOrder.h"
#include "tree/RunNode.h"
#include "tree/StateGroups.h"

namespace quorvel::tree {
namespace {

using list::StateGroup;
using widgets::NodeId;

// Station number of a row that stands for a run in which no station took part yet.
constexpr std::int32_t kNoStation = -1;

// Adds a state group under its run, closed over its stations.
NodeId AddGroup(widgets::TreeView& tree, NodeId run, StateGroup group, const StationCounts& counts) {
  const NodeId node = tree.Add(run, MakeKey(tree.Key(run), static_cast<std::int32_t>(group)),
                               StateGroupText(group, counts.total, counts.Of(group)), StateGroupImage(group));
  tree.SetPlaceholder(node, true);
  return node;
}

// Walks the rows and keeps what is open: the process, the run and the counts of its stations.
class ProcessTreeBuilder {
 public:
  ProcessTreeBuilder(const datasource::ProcessLogRecords& rows, const Platform& platform,
                     datasource::ErrorsProcess& errors, widgets::TreeView& tree)
      : rows_(rows), platform_(platform), errors_(errors), tree_(tree) {}

  // The rows of whole processes.
  void Build(RowSpan span) {
    for (std::size_t row = span.first; row < span.last; ++row) {
      const bool otherProcess = row == span.first || rows_.lngProcessId[row] != rows_.lngProcessId[row - 1];
      const bool otherRun = otherProcess || rows_.lngProcessLogId[row] != rows_.lngProcessLogId[row - 1];
      if (otherRun) CloseRun();
      if (otherProcess) OpenProcess(row);
      if (otherRun) OpenRun(row);
      CountStation(row);
    }
    CloseRun();
  }

 private:
  void OpenProcess(std::size_t row) {
    processKey_ = MakeKey(kProcessPrefix, rows_.lngProcessId[row]);
    process_ = tree_.Add(NodeId::kNone, processKey_, rows_.strProcessName[row], ProcessImage(rows_, row));
  }

  void OpenRun(std::size_t row) {
    runKey_ = RunKey(processKey_, rows_, row);
    run_ = tree_.Add(process_, runKey_, RunText(platform_, rows_, row), list::ImageOfRun({}));
    counts_ = {};
    groupsMet_ = 0;
  }

  void CountStation(std::size_t row) {
    if (rows_.lngUserId[row] == kNoStation) return;
    const StateGroup group = list::GroupOf(rows_, row);
    if (counts_.Of(group) == 0) groups_[groupsMet_++] = group;
    counts_.Add(group);
  }

  // Groups come in the order in which the rows met them, labelled with what all rows of the run count to.
  void CloseRun() {
    if (counts_.total == 0) return;
    datasource::Logging(errors_, kSetPurcentLabel, [&] { LabelRun(); });
    counts_ = {};
  }

  void LabelRun() {
    for (std::size_t i = 0; i < groupsMet_; ++i) AddGroup(tree_, run_, groups_[i], counts_);
    const std::string_view image = list::RunImage(counts_);
    tree_.SetImages(run_, image, image, image);
  }

  const datasource::ProcessLogRecords& rows_;
  const Platform& platform_;
  datasource::ErrorsProcess& errors_;
  widgets::TreeView& tree_;
  std::string processKey_;
  std::string runKey_;
  NodeId process_ = NodeId::kNone;
  NodeId run_ = NodeId::kNone;
  StationCounts counts_;
  std::array<StateGroup, 5> groups_{};
  std::size_t groupsMet_ = 0;
};

StationCounts CountAll(std::span<const list::StationsOfGroup> groups) {
  StationCounts counts;
  for (const list::StationsOfGroup& each : groups) {
    for (std::int32_t i = 0; i < each.stations.count; ++i) counts.Add(each.group);
  }
  return counts;
}

NodeId FindGroup(const widgets::TreeView& tree, NodeId run, StateGroup group) {
  return ChildAt(tree, run, {MakeKey("", static_cast<std::int32_t>(group))});
}

// Whether a group's node says, and holds as far as it is loaded, what the group has by now.
bool IsCurrent(const widgets::TreeView& tree, NodeId node, const list::StationsOfGroup& now,
               const StationCounts& counts) {
  if (now.stations.count <= 0) return node == NodeId::kNone;
  if (node == NodeId::kNone || tree.Text(node) != StateGroupText(now.group, counts.total, now.stations.count))
    return false;
  if (tree.HasPlaceholder(node)) return true;
  const auto stations = tree.Children(node);
  if (stations.size() != static_cast<std::size_t>(now.stations.count)) return false;
  for (std::size_t row = 0; row < stations.size(); ++row) {
    if (tree.Key(stations[row]) != MakeKey(tree.Key(node), now.stations.records.lngUserId[row])) return false;
  }
  return true;
}

}  // namespace

GroupOfRun ReadGroupKey(std::string_view key) {
  return {.run = ReadRunKey(key), .state = util::IdentifiantNumber(key, 5)};
}

std::int32_t ReadRunKey(std::string_view key) {
  return util::IdentifiantNumber(key, 4);
}

void AppendProcessNodes(const datasource::ProcessLogRecords& rows, std::int32_t count, std::string_view groupBy,
                        const Platform& platform, datasource::ErrorsProcess& errors, widgets::TreeView& tree) {
  if (count <= 0) return;
  const auto rowCount = static_cast<std::size_t>(count);
  datasource::RequireColumns("GetProcessLogs", rows, rowCount);
  tree.InBatch([&] {
    ProcessTreeBuilder builder(rows, platform, errors, tree);
    for (const RowSpan span : ArrangeProcesses(rows, rowCount, groupBy)) builder.Build(span);
  });
}

void AppendStationNodes(const datasource::ProcessLogRecords& rows, std::int32_t count, NodeId group,
                        widgets::TreeView& tree) {
  if (count <= 0) return;
  const auto rowCount = static_cast<std::size_t>(count);
  datasource::RequireColumns("GetProcessLogByTask", rows, rowCount);
  const std::string groupKey(tree.Key(group));
  tree.InBatch([&] {
    for (std::size_t row = 0; row < rowCount; ++row) {
      const NodeId station = tree.Add(group, MakeKey(groupKey, rows.lngUserId[row]), list::StationText(rows, row),
                                      list::ClassifyStation(rows, row).icon);
      tree.SetPlaceholder(station, true);
    }
  });
}

void UpdateStateGroups(std::span<const list::StationsOfGroup> groups, NodeId run, widgets::TreeView& tree) {
  const StationCounts counts = CountAll(groups);
  const bool current = std::ranges::all_of(groups, [&](const list::StationsOfGroup& each) {
    return IsCurrent(tree, FindGroup(tree, run, each.group), each, counts);
  });
  if (current) return;
  std::vector<StateGroup> open;
  for (const list::StationsOfGroup& each : groups) {
    const NodeId node = FindGroup(tree, run, each.group);
    if (node != NodeId::kNone && tree.IsExpanded(node)) open.push_back(each.group);
  }
  const bool runOpen = tree.IsExpanded(run);
  tree.InBatch([&] {
    tree.RemoveChildren(run);
    for (const list::StationsOfGroup& each : groups) {
      if (each.stations.count <= 0) continue;
      const NodeId node = AddGroup(tree, run, each.group, counts);
      if (std::ranges::find(open, each.group) == open.end()) continue;
      AppendStationNodes(each.stations.records, each.stations.count, node, tree);
      tree.SetPlaceholder(node, false);
      tree.SetExpanded(node, true);
    }
    tree.SetExpanded(run, runOpen);
    const std::string_view image = list::ImageOfRun(counts);
    tree.SetImages(run, image, image, image);
  });
}

}  // namespace quorvel::tree
