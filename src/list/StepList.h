// The list behind a task: the steps that it ran.
#pragma once

#include <cstdint>
#include <string_view>

#include "datasource/StepLog.h"
#include "list/ListParts.h"

namespace quorvel::list {

Headers StepListHeaders();

// The column that the list says it is sorted by: "End".
inline constexpr std::int32_t kStepSortKey = 5;

// The second number of a step's node and row keys: the task run that the steps belong to. The first row's serves for
// all, so that keys of one fill differ in the step alone.
std::int32_t TaskRunOfSteps(const datasource::StepLogRecords& records);

// A row for each row of GetStepLogByTaskRun; its key is the step's identifier, "|", the task run, "|", `nodeKey`. Error
// 9 when a column lacks rows.
Rows StepListRows(const datasource::StepLogRecords& records, std::int32_t count, std::string_view nodeKey,
                  const Platform& platform);

}  // namespace quorvel::list
