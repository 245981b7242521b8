// What the viewer tells its host.
#pragma once

#include <string>

namespace quorvel {

// A host derives from it what it wants to hear of and subscribes. Events in declaration order, the first is number 1.
class HostEvents {
 public:
  virtual ~HostEvents() = default;

  // Another node or other rows are selected, or the focus came to tree or list, or left: menus may have changed.
  virtual void MajMenu() {}
  // Never raised; hosts written for it still find it.
  virtual void Update() {}
  // An execution report is asked for, of the runs in this list: their keys, "LPROC|process|flag|run", parted by ";".
  virtual void PrintReport(const std::string& /*f_strCurrentProcessIdList*/) {}
  // Alarms were acknowledged or made active again. The view was built anew, unless that failed.
  virtual void UpdateAlarm() {}
  // Never raised, as Update.
  virtual void lvMouseDown() {}
  // The context of a row is asked for; the key of that row.
  virtual void GoToLog(const std::string& /*f_strKey*/) {}
};

}  // namespace quorvel
