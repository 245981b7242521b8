// The list behind a month or a day of connections: one row for each connection with a station.
#pragma once

#include <cstdint>
#include <string_view>

#include "datasource/CommandLog.h"
#include "list/ListParts.h"

namespace quorvel::list {

Headers ConnectionListHeaders();

// A row for each row of GetCommunications; its key is the connection's node key, `nodeKey` being that of the month or
// the day. Connections in progress have taken until `now`. Error 9 when a column lacks rows.
Rows ConnectionListRows(const datasource::CommandLogRecords& records, std::int32_t count, std::string_view nodeKey,
                        const Platform& platform, DateValue now);

}  // namespace quorvel::list
