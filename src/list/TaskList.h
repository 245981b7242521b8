// The list behind a station of a run: the tasks that the run executed there.
#pragma once

#include <cstdint>
#include <string_view>

#include "datasource/Quorvel.h"
#include "list/ListParts.h"

namespace quorvel::list {

Headers TaskListHeaders();

// A row for each row of GetTaskRunsByProcessLog; its key is the task's identifier, "|", `nodeKey`. `serverMode`: the
// viewer runs on the server. Error 9 when a column lacks rows.
Rows TaskListRows(const datasource::TaskRunRecords& records, std::int32_t count, std::string_view nodeKey,
                  const Platform& platform, bool serverMode);

}  // namespace quorvel::list
