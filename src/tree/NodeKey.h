// The grammar of node keys: a view prefix and fields joined by "|"; a child's key extends its parent's.
//
//   LPROC | process | flag | run | state | user | task | steplog | step     processes, by process
//   LUSR  | user | process | flag | run | task | steplog | step             processes, by station
//   LCOMM | month | day | communication                                     connections
//
// flag: 1 = the run is on a station, 0 = on the server. state: a StateGroup code. Keys are the only link between a node
// and its records; PublicFunctions reads and matches them.
#pragma once

#include <concepts>
#include <string>
#include <string_view>

namespace quorvel::tree {

inline constexpr std::string_view kProcessPrefix = "LPROC";
inline constexpr std::string_view kUserPrefix = "LUSR";
inline constexpr std::string_view kCommunicationPrefix = "LCOMM";

// Appends "|" and a field.
inline void AppendField(std::string& key, std::string_view field) {
  key.append(1, '|').append(field);
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
