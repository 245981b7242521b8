// The list behind a run that is still running: all its stations, those first that keep it running.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

#include "datasource/ProcessLog.h"
#include "list/Classification.h"
#include "list/ListParts.h"

namespace quorvel::list {

// The state groups in the order of the list: what still runs, what went wrong, what is open, what is done.
inline constexpr std::array kCurrentRunGroups{StateGroup::kInProgress, StateGroup::kNotOk, StateGroup::kUnknown,
                                              StateGroup::kNotExecuted, StateGroup::kOk};

Headers CurrentRunListHeaders();

// One state group of the run, as GetProcessLogByTask gave it.
struct StationsOfGroup {
  StateGroup group = StateGroup::kUnknown;
  datasource::Answer<datasource::ProcessLogRecords> stations;
};

// A row for each station, group by group; its key is the station's identifier, "|", `nodeKey`, the run's. Error 9 when
// a column lacks rows.
Rows CurrentRunListRows(std::span<const StationsOfGroup> groups, std::string_view nodeKey, const Platform& platform);

}  // namespace quorvel::list
