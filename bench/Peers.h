// The same columns in the item widgets of Qt.
#pragma once

#include <cstdint>

#include "datasource/ProcessLog.h"

namespace quorvel::bench {

// Print rows of the table, a widget of Qt against this project's own, from columns to the painted picture.
// `rows`: of GetProcessLogs.
void ComparePeersOfTree(const datasource::ProcessLogRecords& rows, std::int32_t count);
// `rows`: of GetProcessLogByTask, with the bytes that they take.
void ComparePeersOfList(const datasource::ProcessLogRecords& rows, std::int32_t count, double columnBytes);

}  // namespace quorvel::bench
