// The grammar of node keys: a view prefix and fields joined by "|"; a child's key extends its parent's.
//
//   LPROC | process | flag | run | state | user | task | steplog | step     processes, by process
//   LUSR  | user | process | flag | run | task | steplog | step             processes, by station
//   LCOMM | month | day | communication                                     connections
//   LOGALRM | owner | day, and LOGAUSR, LOGA1USR, LOGAALL | owner           alarms
//   LIMP  | import | name | process | run                                   user imports
//   LBCKSR, LBCKST | ...                                                    backups of the server, of stations
//   HSYS  | log                                                             rows of the system log
//
// flag: 1 = the run is on a station, 0 = on the server. state: a StateGroup code. month "yyyy/mm", day "yyyy/mm/dd".
// Keys are the only link between a node and its records; PublicFunctions reads and matches them.
#pragma once

#include <algorithm>
#include <concepts>
#include <string>
#include <string_view>

#include "util/KeyPrefixes.h"
#include "util/PublicFunctions.h"

namespace quorvel::tree {

using util::kCommunicationPrefix;
using util::kProcessPrefix;
using util::kUserPrefix;

// Stands in a key for a "|" that is part of a name.
inline constexpr char kSeparatorInName = '\x1F';

// A name as a field of a key, and the name that a field stands for.
inline std::string FieldOfName(std::string_view name) {
  std::string field(name);
  std::ranges::replace(field, util::kKeySeparator.front(), kSeparatorInName);
  return field;
}
inline std::string NameOfField(std::string_view field) {
  std::string name(field);
  std::ranges::replace(name, kSeparatorInName, util::kKeySeparator.front());
  return name;
}

// Appends "|" and a field.
inline void AppendField(std::string& key, std::string_view field) {
  key.append(util::kKeySeparator).append(field);
}
inline void AppendField(std::string& key, std::integral auto field) {
  AppendField(key, std::to_string(field));
}

// "|"-joined fields, for example MakeKey("LPROC", 12).
template <class... Fields>
std::string MakeKey(std::string_view first, const Fields&... fields) {
  std::string key(first);
  (AppendField(key, fields), ...);
  return key;
}

}  // namespace quorvel::tree
