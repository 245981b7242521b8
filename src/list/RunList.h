// The lists of runs: all runs of a process, and those of a process on one station with the station's own outcome.
#pragma once

#include <cstdint>
#include <string_view>

#include "datasource/ProcessLog.h"
#include "list/ListParts.h"

namespace quorvel::list {

// How long something took, "   12:03:59": hours, minutes, seconds, of a width that sorts as text up to 11 years.
// From `start` to `end`; while it is running (`end` 0) to `now`; empty without a start, or without an end otherwise.
std::string DurationText(DateValue start, DateValue end, bool running, DateValue now);

Headers RunListHeaders();

// A row for each row of GetProcessLogByProcess; its key is the run's node key, `nodeKey` being the process's. How a run
// went that went in parts is told in words. Runs that still run have taken until `now`. Error 9 when a column lacks
// rows.
Rows RunListRows(const datasource::ProcessLogRecords& records, std::int32_t count, std::string_view nodeKey,
                 const Platform& platform, DateValue now);

Headers StationRunListHeaders();

// A row for each row of GetProcessLogByUser, all of one station and process; its key is the run's node key, `nodeKey`
// being that of the process on the station. Error 9 when a column lacks rows.
Rows StationRunListRows(const datasource::ProcessLogRecords& records, std::int32_t count, std::string_view nodeKey,
                        const Platform& platform, DateValue now);

}  // namespace quorvel::list
