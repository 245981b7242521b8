// The first field of a node key: which view the node belongs to.
#pragma once

#include <string_view>

namespace quorvel::util {

inline constexpr std::string_view kProcessPrefix = "LPROC";  // processes, by process
inline constexpr std::string_view kUserPrefix = "LUSR";      // processes, by station
inline constexpr std::string_view kCommunicationPrefix = "LCOMM";
inline constexpr std::string_view kAlarmDayPrefix = "LOGALRM";
inline constexpr std::string_view kAlarmUserPrefix = "LOGAUSR";
inline constexpr std::string_view kAlarmOneUserPrefix = "LOGA1USR";
inline constexpr std::string_view kAlarmAllPrefix = "LOGAALL";
inline constexpr std::string_view kServerBackupPrefix = "LBCKSR";
inline constexpr std::string_view kStationBackupPrefix = "LBCKST";
inline constexpr std::string_view kImportPrefix = "LIMP";
inline constexpr std::string_view kSystemPrefix = "HSYS";

}  // namespace quorvel::util
