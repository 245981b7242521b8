// What all viewers of a thread have in common.
#pragma once

namespace quorvel {

// Hosts set these on one viewer and count on it that the others show the same.
struct ProjectFlags {
  bool blnShowUserInfo = false;      // user and station columns, and the other layout of the detail
  bool blnShowProcessAlarm = false;  // the process column of alarm lists
  bool blnShowAlarms = false;        // alarm icons on runs
};

// The flags of the present thread.
inline ProjectFlags& Project() {
  static thread_local ProjectFlags flags;
  return flags;
}

}  // namespace quorvel
