// The least that reading a query can cost: a loop of sqlite3_step over its statement.
#pragma once

#include <cstdint>
#include <filesystem>
#include <initializer_list>
#include <memory>
#include <string_view>
#include <variant>

#include "hub/sqlite/Database.h"

namespace quorvel::bench {

class BareLoop {
 public:
  // Opens the history exactly as the hub does.
  explicit BareLoop(const std::filesystem::path& history);

  struct Parameter {
    const char* name;
    std::variant<std::int32_t, double, std::string_view> value;
  };
  // Seconds to prepare the statement, go through its rows and read and discard every column. `types` has a letter for
  // each result column: i integer, d double, t text with its length. Raises error 5 when there are not `rows` rows.
  double Run(std::string_view sql, std::initializer_list<Parameter> parameters, std::string_view types,
             std::int32_t rows) const;

 private:
  std::unique_ptr<hub::Database> database_;
};

}  // namespace quorvel::bench
