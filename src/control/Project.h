// What all viewers of a thread have in common.
#pragma once

namespace quorvel {

// Hosts set these on one viewer and count on it that the others show the same.
struct ProjectFlags {
  bool blnShowUserInfo = false;      // the layout of the detail, which this version does not have yet
  bool blnShowProcessAlarm = false;  // the process columns of alarm lists
  bool blnShowAlarms = false;        // alarm icons on runs: hosts set it, no view of this version reads it
};

// The flags of the present thread.
inline ProjectFlags& Project() {
  static thread_local ProjectFlags flags;
  return flags;
}

}  // namespace quorvel
