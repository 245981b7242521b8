// The tree grouped by station: stations, the processes that ran there, and the runs of each with the station's own
// outcome.
#pragma once

#include <cstdint>
#include <string_view>

#include "datasource/ProcessLog.h"
#include "platform/Platform.h"
#include "widgets/TreeView.h"

namespace quorvel::tree {

// What the node of a process on a station stands for.
struct ProcessOnStation {
  std::int32_t user = 0;
  std::int32_t process = 0;
};

// Reads the key of such a node. Errors 13 and 6 for fields that are no numbers.
ProcessOnStation ReadProcessKey(std::string_view key);

// Appends stations and their processes for the rows of GetProcessLogByUser to `tree`, one pass: a row is a station's
// part in a run. Stations come in the order that `groupBy` arranges, see RootOrder.h. A station and a process show the
// worst that happened in their rows, so that what failed last night is seen from the top. Processes get a placeholder
// for their runs. Error 9 when a column lacks rows.
void AppendUserNodes(const datasource::ProcessLogRecords& rows, std::int32_t count, std::string_view groupBy,
                     widgets::TreeView& tree);

// Appends a node for each row of GetProcessLogByUser under `process`, a process on one station, with a placeholder for
// the tasks. `platform` formats the dates. Error 9 as above.
void AppendRunsOfStation(const datasource::ProcessLogRecords& rows, std::int32_t count, const Platform& platform,
                         widgets::NodeId process, widgets::TreeView& tree);

}  // namespace quorvel::tree
