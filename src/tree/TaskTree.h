// Below a station of a run, in either tree: its tasks, and the steps of a task.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "datasource/Quorvel.h"
#include "datasource/StepLog.h"
#include "widgets/TreeView.h"

namespace quorvel::tree {

// What the node of a station in a run stands for, as the queries want it.
struct PartOfRun {
  std::int32_t run = 0;
  bool onStation = false;
  std::int32_t user = 0;
};

// Reads the key of a station under a run, or of a run under a station. Errors 13 and 6 for fields that are no numbers.
PartOfRun ReadPartKey(std::string_view key);

// What a task node stands for.
struct TaskOfRun {
  std::int32_t task = 0;
  std::int32_t run = 0;
  std::int32_t user = 0;
};

// Reads a task node's key. A connection key names no station: `userOfConnection` stands for it. Nothing for keys of
// other views; errors 13 and 6 for fields that are no numbers.
std::optional<TaskOfRun> ReadTaskKey(std::string_view key, std::int32_t userOfConnection);

// The step that a step node's key stands for. Errors 13 and 6 as above.
std::int32_t StepLogOfKey(std::string_view key);

// Appends a node for each row of GetTaskRunsByProcessLog under `station`, with a placeholder for the steps. What is not
// OK says so in its text and stands out. `serverMode`: the viewer runs on the server. Error 9 when a column lacks rows.
void AppendTaskNodes(const datasource::TaskRunRecords& rows, std::int32_t count, bool serverMode,
                     widgets::NodeId station, widgets::TreeView& tree);

// Appends a node for each row of GetStepLogByTaskRun under `task`. Error 9 as above.
void AppendStepNodes(const datasource::StepLogRecords& rows, std::int32_t count, widgets::NodeId task,
                     widgets::TreeView& tree);

}  // namespace quorvel::tree
