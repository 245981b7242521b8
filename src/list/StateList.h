// The list behind a state group: the stations of a run that are in one state.
#pragma once

#include <cstdint>
#include <string_view>

#include "datasource/ProcessLog.h"
#include "list/ListParts.h"

namespace quorvel::list {

Headers StateListHeaders();

// A row for each row of GetProcessLogByTask; its key is the station's identifier, "|", `nodeKey`. Error 9 when a column
// lacks rows.
Rows StateListRows(const datasource::ProcessLogRecords& records, std::int32_t count, std::string_view nodeKey,
                   const Platform& platform);

}  // namespace quorvel::list
