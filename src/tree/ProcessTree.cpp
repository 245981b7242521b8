#include "tree/ProcessTree.h"

#include <array>
#include <string>

#include "datasource/Contract.h"
#include "list/Classification.h"
#include "tree/NodeKey.h"
#include "tree/StateGroups.h"
#include "util/PublicOstrana.h"

namespace quorvel::tree {
namespace {

using list::StateGroup;
using widgets::NodeId;

// Station number of a row that stands for a run in which no station took part yet.
constexpr std::int32_t kNoStation = -1;

list::UserFlags FlagsOf(const datasource::ProcessLogRecords& rows, std::size_t row) {
  return {rows.bInProgress[row], rows.bResultOk[row], rows.bResultNotOk[row], rows.bResultUnknown[row],
          rows.bExecuted[row]};
}

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
    const bool onStationsAlone = rows_.bProcessOnStation[row] != 0 && rows_.bProcessOnServer[row] == 0;
    process_ = tree_.Add(NodeId::kNone, processKey_, rows_.strProcessName[row],
                         onStationsAlone ? "ProcessStation" : "Process");
  }

  void OpenRun(std::size_t row) {
    const std::string run = std::to_string(rows_.lngProcessLogId[row]);
    runKey_ = MakeKey(processKey_, rows_.bRunOnStation[row] != 0 ? "1" : "0", run);
    // People know the number without a blank before it.
    const std::string text =
        util::strFormatDateTime(platform_, rows_.dtStartDate[row], util::kDateAndTime) + " (Batch No." + run + ")";
    run_ = tree_.Add(process_, runKey_, text, RunImage({.unknown = 1}));
    counts_ = {};
    groupsMet_ = 0;
  }

  void CountStation(std::size_t row) {
    if (rows_.lngUserId[row] == kNoStation) return;
    const StateGroup group = list::GroupOfUser(FlagsOf(rows_, row));
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
    const std::string_view image = RunImage(counts_);
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
      const std::int32_t station = rows.lngUserId[row];
      std::string text(station == 0 ? list::kWithoutPopulation : rows.strUserName[row]);
      text.append(" (").append(rows.strIdentifier[row]).append(")");
      tree.Add(group, MakeKey(groupKey, station), text,
               list::ClassifyUser(FlagsOf(rows, row), rows.strWaitState[row]).icon);
    }
  });
}

}  // namespace quorvel::tree
