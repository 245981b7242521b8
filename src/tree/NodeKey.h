// The grammar of node keys: a view prefix and fields joined by "|"; a child's key extends its parent's.
//
//   LPROC | process | flag | run | state | user | task | steplog | step     processes, by process
//   LUSR  | user | process | flag | run | task | steplog | step             processes, by station
//   LCOMM | month | day | communication                                     connections
//   LOGALRM | owner | day, and LOGAUSR, LOGA1USR, LOGAALL | owner           alarms
//   LIMP  | import | name | process | run                                   user imports
//   LBCKSR, LBCKST | place | user | year | month | day | name | save | time | result | folder
//                                                                           backups of the server, of stations
//   HSYS  | log                                                             rows of the system log
//
// flag, place: 1 = on a station, 0 = on the server. state: a StateGroup code. year "yyyy", month "yyyy/mm", day
// "yyyy/mm/dd". result: 1 = OK, 0 = not. Names and folders are written by FieldOfName.
// Keys are the only link between a node and its records; PublicFunctions reads and matches them.
#pragma once

#include <concepts>
#include <string>
#include <string_view>

#include "util/KeyNames.h"
#include "util/KeyPrefixes.h"
#include "util/PublicFunctions.h"

namespace quorvel::tree {

using util::FieldOfName;
using util::kCommunicationPrefix;
using util::kProcessPrefix;
using util::kServerBackupPrefix;
using util::kStationBackupPrefix;
using util::kUserPrefix;
using util::NameOfField;

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
