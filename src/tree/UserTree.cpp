#include "tree/UserTree.h"

#include <string>
#include <string_view>

#include "datasource/Contract.h"
#include "list/StationRecord.h"
#include "tree/NodeKey.h"
#include "tree/RootOrder.h"
#include "tree/RunNode.h"
#include "tree/StateGroups.h"

namespace quorvel::tree {
namespace {

using list::StateGroup;
using widgets::NodeId;

// The states in the order in which the worst of them is looked for. Other than in a run's own image a failure comes
// before what is still in progress: a station that is busy again has failed all the same.
constexpr StateGroup kWorstFirst[] = {StateGroup::kNotOk, StateGroup::kInProgress, StateGroup::kUnknown,
                                      StateGroup::kOk, StateGroup::kNotExecuted};

StateGroup WorstOf(const StationCounts& counts) {
  for (const StateGroup group : kWorstFirst) {
    if (counts.Of(group) > 0) return group;
  }
  return StateGroup::kUnknown;
}

// Walks the rows and keeps what is open: the station, the process, and what happened in each.
class UserTreeBuilder {
 public:
  UserTreeBuilder(const datasource::ProcessLogRecords& rows, widgets::TreeView& tree) : rows_(rows), tree_(tree) {}

  // The rows of whole stations.
  void Build(RowSpan span) {
    for (std::size_t row = span.first; row < span.last; ++row) {
      const bool otherStation = row == span.first || rows_.lngUserId[row] != rows_.lngUserId[row - 1];
      const bool otherProcess = otherStation || rows_.lngProcessId[row] != rows_.lngProcessId[row - 1];
      if (otherProcess) CloseProcess();
      if (otherStation) OpenStation(row);
      if (otherProcess) OpenProcess(row);
      CountPart(row);
    }
    CloseProcess();
    CloseStation();
    process_ = station_ = NodeId::kNone;
  }

 private:
  void OpenStation(std::size_t row) {
    CloseStation();
    stationKey_ = MakeKey(kUserPrefix, rows_.lngUserId[row]);
    station_ = tree_.Add(NodeId::kNone, stationKey_, list::StationText(rows_, row), "User");
  }

  void CloseStation() {
    if (station_ == NodeId::kNone) return;
    const std::string_view image = StateGroupImage(WorstOf(ofStation_));
    tree_.SetImages(station_, image, image, image);
    ofStation_ = {};
  }

  void OpenProcess(std::size_t row) {
    process_ = tree_.Add(station_, MakeKey(stationKey_, rows_.lngProcessId[row]), rows_.strProcessName[row],
                         ProcessImage(rows_, row));
    tree_.SetPlaceholder(process_, true);
  }

  void CloseProcess() {
    if (process_ == NodeId::kNone) return;
    SetProcessIcon(tree_, process_, list::PresenceOf(WorstOf(ofProcess_)), waitState_);
    ofProcess_ = {};
  }

  // The newest part in progress, which comes first, tells what the process waits for.
  void CountPart(std::size_t row) {
    const StateGroup group = list::GroupOf(rows_, row);
    if (group == StateGroup::kInProgress && ofProcess_.inProgress == 0) waitState_ = rows_.strWaitState[row];
    ofProcess_.Add(group);
    ofStation_.Add(group);
  }

  const datasource::ProcessLogRecords& rows_;
  widgets::TreeView& tree_;
  std::string stationKey_;
  NodeId station_ = NodeId::kNone;
  NodeId process_ = NodeId::kNone;
  StationCounts ofStation_;
  StationCounts ofProcess_;
  std::string_view waitState_;
};

}  // namespace

ProcessOnStation ReadProcessKey(std::string_view key) {
  return {.user = util::IdentifiantNumber(key, 2), .process = util::IdentifiantNumber(key, 3)};
}

void AppendUserNodes(const datasource::ProcessLogRecords& rows, std::int32_t count, std::string_view groupBy,
                     widgets::TreeView& tree) {
  if (count <= 0) return;
  const auto rowCount = static_cast<std::size_t>(count);
  datasource::RequireColumns("GetProcessLogByUser", rows, rowCount);
  tree.InBatch([&] {
    UserTreeBuilder builder(rows, tree);
    for (const RowSpan span : ArrangeStations(rows, rowCount, groupBy)) builder.Build(span);
  });
}

void AppendRunsOfStation(const datasource::ProcessLogRecords& rows, std::int32_t count, const Platform& platform,
                         NodeId process, widgets::TreeView& tree) {
  if (count <= 0) return;
  const auto rowCount = static_cast<std::size_t>(count);
  datasource::RequireColumns("GetProcessLogByUser", rows, rowCount);
  const std::string processKey(tree.Key(process));
  tree.InBatch([&] {
    for (std::size_t row = 0; row < rowCount; ++row) {
      const NodeId run =
          tree.Add(process, RunKey(processKey, rows, row), RunText(platform, rows, row), list::kPlainProcessImage);
      SetProcessIcon(tree, run, list::PresenceOf(list::GroupOf(rows, row)), rows.strWaitState[row]);
      tree.SetPlaceholder(run, true);
    }
  });
}

}  // namespace quorvel::tree
