// What queries filter by: identifiers, periods, and codes of the state filter.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <string_view>

#include "hub/sqlite/SourceBase.h"
#include "platform/Dates.h"

namespace quorvel::hub {

// An identifier that does not filter.
inline constexpr std::int32_t kAnyId = -1;

// The code of the state filter that asks for the newest of each, instead of an outcome.
inline constexpr std::int32_t kLastExecution = 4;

struct Period {
  DateValue from;
  DateValue to;

  bool valid() const { return std::isfinite(from) && std::isfinite(to) && from != 0 && to != 0 && from <= to; }
};

inline constexpr Period kAlways = {-std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()};

// The statement for a given identifier, in a parameter (":station") whose -1 would not filter. SQLite then finds the
// one thing by its key, where it otherwise looks at one after the other.
inline std::string FilteredBy(std::string_view parameter, std::string_view sql) {
  const std::string choice = std::string(parameter) + " = -1 OR ";
  std::string filtered(sql);
  for (std::size_t at = filtered.find(choice); at != std::string::npos; at = filtered.find(choice, at)) {
    filtered.erase(at, choice.size());
  }
  return filtered;
}

// The statement of one thing, or of all. Only the outermost loop of a statement needs to know, so one filter is enough.
inline Statement PrepareFor(const Database& database, std::string_view sql, const char* parameter, std::int32_t id) {
  Statement rows = id == kAnyId ? database.Prepare(sql) : database.Prepare(FilteredBy(parameter, sql));
  rows.Bind(parameter, id);
  return rows;
}

// Whether a filter names something that does not exist; see Exists.
inline bool IsMissing(const Database& database, std::string_view exists, std::int32_t id) {
  return id != kAnyId && !Exists(database, exists, id);
}

}  // namespace quorvel::hub
