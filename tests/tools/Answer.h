// The answer of a query as text, for tests that look into a history's file.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

#include "hub/sqlite/Database.h"

namespace quorvel::test {

// One line a row. The query gives a single column.
inline std::string Answer(const std::filesystem::path& file, std::string_view sql) {
  const hub::Database database(file, hub::Access::kReadOnly);
  hub::Statement rows = database.Prepare(sql);
  std::string text;
  while (rows.Step()) text.append(rows.Get<std::string_view>(0)).append("\n");
  return text;
}

}  // namespace quorvel::test
