#include "tree/TaskTree.h"

#include <string>

#include "datasource/Contract.h"
#include "list/Classification.h"
#include "list/StepList.h"
#include "tree/NodeKey.h"
#include "tree/StateGroups.h"

namespace quorvel::tree {
namespace {

using datasource::kTrue;
using list::StateGroup;
using util::IdentifiantNumber;
using widgets::NodeId;

// Adds a task or a step. Its icon tells its kind, so how it went stands behind the name, unless it went well.
NodeId AddPart(widgets::TreeView& tree, NodeId parent, std::string_view key, std::string_view name,
               std::string_view icon, std::string_view caption) {
  std::string text(name);
  const bool failed = caption == list::kUserNotOkCaption;
  if (failed || caption == list::kInProgressCaption) {
    text.append(" : ").append(StateGroupLabel(failed ? StateGroup::kNotOk : StateGroup::kInProgress));
  }
  const NodeId node = tree.Add(parent, key, text, icon);
  if (failed) tree.SetLook(node, widgets::SystemColour::kWindowText, true);
  return node;
}

}  // namespace

PartOfRun ReadPartKey(std::string_view key) {
  const bool ofUser = util::Identifiant(key, 1) == kUserPrefix;
  return {.run = IdentifiantNumber(key, ofUser ? 5 : 4),
          .onStation = util::Identifiant(key, ofUser ? 4 : 3) == "1",
          .user = IdentifiantNumber(key, ofUser ? 2 : 6)};
}

std::optional<TaskOfRun> ReadTaskKey(std::string_view key, std::int32_t userOfConnection) {
  const std::string_view prefix = util::Identifiant(key, 1);
  if (prefix == kProcessPrefix) {
    return TaskOfRun{
        .task = IdentifiantNumber(key, 7), .run = IdentifiantNumber(key, 4), .user = IdentifiantNumber(key, 6)};
  }
  const bool ofConnection = prefix == kCommunicationPrefix;
  if (prefix != kUserPrefix && !ofConnection) return std::nullopt;
  return TaskOfRun{.task = IdentifiantNumber(key, 6),
                   .run = IdentifiantNumber(key, 5),
                   .user = ofConnection ? userOfConnection : IdentifiantNumber(key, 2)};
}

std::int32_t StepLogOfKey(std::string_view key) {
  return IdentifiantNumber(key, util::Identifiant(key, 1) == kUserPrefix ? 7 : 8);
}

void AppendTaskNodes(const datasource::TaskRunRecords& rows, std::int32_t count, bool serverMode, NodeId station,
                     widgets::TreeView& tree) {
  if (count <= 0) return;
  const auto rowCount = static_cast<std::size_t>(count);
  datasource::RequireColumns("GetTaskRunsByProcessLog", rows, rowCount);
  const std::string stationKey(tree.Key(station));
  tree.InBatch([&] {
    for (std::size_t row = 0; row < rowCount; ++row) {
      const NodeId task = AddPart(
          tree, station, MakeKey(stationKey, rows.lngTaskId[row]), rows.strTaskName[row],
          list::GetLogIconeTask(rows.strTaskType[row], rows.bNotExecuted[row], rows.lngStationScope[row],
                                rows.bWaiting[row], serverMode),
          list::ResultCaption(rows.bInProgress[row] != 0, rows.bResultOk[row] != 0, rows.bResultNotOk[row] != 0));
      tree.SetPlaceholder(task, true);
    }
  });
}

void AppendStepNodes(const datasource::StepLogRecords& rows, std::int32_t count, NodeId task, widgets::TreeView& tree) {
  if (count <= 0) return;
  const auto rowCount = static_cast<std::size_t>(count);
  datasource::RequireColumns("GetStepLogByTaskRun", rows, rowCount);
  const std::string taskKey(tree.Key(task));
  const std::int32_t taskRun = list::TaskRunOfSteps(rows);
  tree.InBatch([&] {
    for (std::size_t row = 0; row < rowCount; ++row) {
      AddPart(tree, task, MakeKey(taskKey, rows.lngStepLogId[row], taskRun), rows.strStepName[row],
              list::GetLogIconeStep(rows.lngStepKind[row], rows.lngStationScope[row]),
              list::ResultCaption(rows.bInProgress[row] == kTrue, rows.bResultOk[row] == kTrue,
                                  rows.bResultNotOk[row] == kTrue));
    }
  });
}

}  // namespace quorvel::tree
