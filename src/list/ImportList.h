// The list behind a process of a user import, and behind one run of it: the imported users, each with its result.
#pragma once

#include <cstdint>
#include <string_view>

#include "datasource/UsersImport.h"
#include "list/ListParts.h"

namespace quorvel::list {

Headers ImportListHeaders();

// A row for each row of GetUsersImportByProcess; its key is the run's identifier, "|", `nodeKey`, "|", the user's name
// as a field of a key. Error 9 when a column lacks rows.
Rows ImportListRows(const datasource::UsersImportRecords& records, std::int32_t count, std::string_view nodeKey,
                    const Platform& platform);

}  // namespace quorvel::list
