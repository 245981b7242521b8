// Turns what SQLite refuses into errors of this library.
#pragma once

#include <string>
#include <string_view>

struct sqlite3;

namespace quorvel::hub {

// Raises the error for a SQLite result code that is none of OK, ROW and DONE. `file` names the history in the
// description, `database` gives SQLite's own text and may be null.
[[noreturn]] void RaiseSqliteError(int code, sqlite3* database, std::string_view file);

// `History "FILE" WHAT`, the form of all descriptions.
std::string DescribeHistory(std::string_view file, std::string_view what);

}  // namespace quorvel::hub
