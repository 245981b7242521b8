// The lists behind a step and behind a connection: their commands, and why one failed.
#pragma once

#include <cstdint>
#include <string_view>

#include "datasource/CommandLog.h"
#include "list/ListParts.h"

namespace quorvel::list {

Headers CommandListHeaders();

// A row for each row of GetCommandLogByStepLog; its key is the command's identifier, "|", `nodeKey`. A file transfer is
// judged by its result code, any other command by its flags. Error 9 when a column lacks rows.
Rows CommandListRows(const datasource::CommandLogRecords& records, std::int32_t count, std::string_view nodeKey,
                     const Platform& platform);

Headers ConnectionCommandListHeaders();

// The same for each row of GetCommandLogByCommunication. What a connection did is judged by result codes throughout.
Rows ConnectionCommandListRows(const datasource::CommandLogRecords& records, std::int32_t count,
                               std::string_view nodeKey, const Platform& platform);

}  // namespace quorvel::list
