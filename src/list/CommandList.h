// The list behind a step: its commands, and why one failed.
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

}  // namespace quorvel::list
