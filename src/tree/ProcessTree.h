// The tree grouped by process: processes, their runs, the state groups of each run, and the stations of a group.
#pragma once

#include <cstdint>

#include "datasource/ErrorsProcess.h"
#include "datasource/ProcessLog.h"
#include "platform/Platform.h"
#include "widgets/TreeView.h"

namespace quorvel::tree {

// Appends the nodes for the rows of GetProcessLogs to `tree`, one pass, in their order: a row is one station of a run.
// Groups get a placeholder for their stations. `platform` formats the dates. A run that cannot be labelled goes into
// the log, and the next one is built. Error 9 when a column lacks rows.
void AppendProcessNodes(const datasource::ProcessLogRecords& rows, std::int32_t count, const Platform& platform,
                        datasource::ErrorsProcess& errors, widgets::TreeView& tree);

// Appends a node for each row of GetProcessLogByTask under the state group `group`, with a placeholder for the
// station's tasks. Error 9 as above.
void AppendStationNodes(const datasource::ProcessLogRecords& rows, std::int32_t count, widgets::NodeId group,
                        widgets::TreeView& tree);

}  // namespace quorvel::tree
