// The tree grouped by process: processes, their runs, the state groups of each run, and the stations of a group.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

#include "datasource/ErrorsProcess.h"
#include "datasource/ProcessLog.h"
#include "list/CurrentRunList.h"
#include "platform/Platform.h"
#include "widgets/TreeView.h"

namespace quorvel::tree {

// Appends the nodes for the rows of GetProcessLogs to `tree`, one pass: a row is one station of a run. Processes come
// in the order that `groupBy` arranges, see RootOrder.h; what is below them in that of the rows. Groups get a
// placeholder for their stations. `platform` formats the dates. A run that cannot be labelled goes into the log, and
// the next one is built. Error 9 when a column lacks rows.
void AppendProcessNodes(const datasource::ProcessLogRecords& rows, std::int32_t count, std::string_view groupBy,
                        const Platform& platform, datasource::ErrorsProcess& errors, widgets::TreeView& tree);

// What the node of a state group stands for.
struct GroupOfRun {
  std::int32_t run = 0;
  std::int32_t state = 0;
};

// Reads the key of such a node, and that of a run's node. Errors 13 and 6 for fields that are no numbers.
GroupOfRun ReadGroupKey(std::string_view key);
std::int32_t ReadRunKey(std::string_view key);

// Appends a node for each row of GetProcessLogByTask under the state group `group`, with a placeholder for the
// station's tasks. Error 9 as above.
void AppendStationNodes(const datasource::ProcessLogRecords& rows, std::int32_t count, widgets::NodeId group,
                        widgets::TreeView& tree);

// Brings the state groups under `run` up to date with its stations as they are by now, where they differ: a group that
// has come up is added, one that is empty goes, and those that were open are open again. The run gets its image.
void UpdateStateGroups(std::span<const list::StationsOfGroup> groups, widgets::NodeId run, widgets::TreeView& tree);

}  // namespace quorvel::tree
