#include "tree/ProcessTree.h"

#include <array>
#include <string>

#include "datasource/Contract.h"
#include "list/StationRecord.h"
#include "tree/NodeKey.h"
#include "tree/RunNode.h"
#include "tree/StateGroups.h"

namespace quorvel::tree {
namespace {

using list::StateGroup;
using widgets::NodeId;

// Station number of a row that stands for a run in which no station took part yet.
constexpr std::int32_t kNoStation = -1;

// Walks the rows and keeps what is open: the process, the run and the counts of its stations.
class ProcessTreeBuilder {
 public:
  ProcessTreeBuilder(const datasource::ProcessLogRecords& rows, const Platform& platform,
                     datasource::ErrorsProcess& errors, widgets::TreeView& tree)
      : rows_(rows), platform_(platform), errors_(errors), tree_(tree) {}

  void Build(std::size_t count) {
    for (std::size_t row = 0; row < count; ++row) {
      const bool otherProcess = row == 0 || rows_.lngProcessId[row] != rows_.lngProcessId[row - 1];
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
    run_ = tree_.Add(process_, runKey_, RunText(platform_, rows_, row), list::RunImage({.unknown = 1}));
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
    for (std::size_t i = 0; i < groupsMet_; ++i) {
      const StateGroup group = groups_[i];
      const NodeId node = tree_.Add(run_, MakeKey(runKey_, static_cast<std::int32_t>(group)),
                                    StateGroupText(group, counts_.total, counts_.Of(group)), StateGroupImage(group));
      tree_.SetPlaceholder(node, true);
    }
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

}  // namespace

void AppendProcessNodes(const datasource::ProcessLogRecords& rows, std::int32_t count, const Platform& platform,
                        datasource::ErrorsProcess& errors, widgets::TreeView& tree) {
  if (count <= 0) return;
  const auto rowCount = static_cast<std::size_t>(count);
  datasource::RequireColumns("GetProcessLogs", rows, rowCount);
  tree.InBatch([&] { ProcessTreeBuilder(rows, platform, errors, tree).Build(rowCount); });
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

}  // namespace quorvel::tree
