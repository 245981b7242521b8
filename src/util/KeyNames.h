// Names as fields of keys.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

#include "util/PublicFunctions.h"

namespace quorvel::util {

// Stands in a key for a "|" that is part of a name.
inline constexpr char kSeparatorInName = '\x1F';

// A name as a field of a key, and the name that a field stands for.
inline std::string FieldOfName(std::string_view name) {
  std::string field(name);
  std::ranges::replace(field, kKeySeparator.front(), kSeparatorInName);
  return field;
}
inline std::string NameOfField(std::string_view field) {
  std::string name(field);
  std::ranges::replace(name, kSeparatorInName, kKeySeparator.front());
  return name;
}

}  // namespace quorvel::util
