// The text of history.sql, which makes a new history.
#pragma once

#include <cstdint>
#include <string_view>

namespace quorvel::hub {

// Marks a SQLite file as a history, and says which schema it has. Both stand in history.sql too.
inline constexpr std::uint32_t kHistoryApplicationId = 0x51564C48;
inline constexpr std::uint32_t kHistoryVersion = 2;

// All statements of history.sql. The view lives as long as the program.
std::string_view HistorySchema();

}  // namespace quorvel::hub
