// The order in which the first level of the process trees is shown, as the user arranged it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "datasource/ProcessLog.h"

namespace quorvel::tree {

// What the first level can go by. Its number is its digit in the group order.
enum class RootCriterion : std::int32_t {
  kOrigin = 0,   // as the history has it: by name
  kUser = 1,     // processes: the one that reached the most stations in its newest run first
  kDate = 2,     // the newest execution first
  kProcess = 3,  // stations: the one on which the most processes ran first
};

// Rows that lie together.
struct RowSpan {
  std::size_t first = 0;
  std::size_t last = 0;  // no longer one of them
};

// The rows of GetProcessLogs, root by root of the tree by process, and those of GetProcessLogByUser, root by root of
// the tree by station, in the order in which to show the roots: by each criterion of `groupBy`, digit by digit, where
// those before it leave two alike. At "Origin", or at the criterion of the roots' own kind, that is settled, as the
// rows come by name. So "0123" gives all rows as one span.
std::vector<RowSpan> ArrangeProcesses(const datasource::ProcessLogRecords& rows, std::size_t count,
                                      std::string_view groupBy);
std::vector<RowSpan> ArrangeStations(const datasource::ProcessLogRecords& rows, std::size_t count,
                                     std::string_view groupBy);

}  // namespace quorvel::tree
