// The history viewer as a child window of Windows that any window can hold.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>

#include "control/ucProcessLog.h"

namespace quorvel::windows {

class DetailWindow;
class ListPane;
class PopupMenu;
class TreePane;

// Draws a control that lives without windows too: the window may go and be made again over the same control, which then
// shows the same state. Either side of the window may end it, this object or its parent; ended by its parent it draws
// nothing any more and does no harm. Everything runs on the thread of the parent.
//
// The host gives the window its size, sends it the messages that a child gets, and asks `TakeKey` of each message
// before it translates it.
class ProcessLogWindow {
 public:
  // A visible child of `parent`, without a size yet. `control` must outlive it.
  ProcessLogWindow(ucProcessLog& control, HWND parent);
  ~ProcessLogWindow();
  ProcessLogWindow(const ProcessLogWindow&) = delete;
  ProcessLogWindow& operator=(const ProcessLogWindow&) = delete;

  ucProcessLog& control();
  // Null once the window has ended.
  HWND window() const;
  TreePane& tree();
  ListPane& list();
  // The page of a row, which is a window of its own while it is open.
  DetailWindow& detail();
  // The popup over the list, over the tree.
  PopupMenu& listMenu();
  PopupMenu& treeMenu();

  // The native window that draws a control; null where none does, which is so for menus, the timer and the dialog too.
  HWND WindowOf(const widgets::Control& control) const;

  // Whether the message was a key that the viewer or its dialog had a use for beside the window that it is for: the Tab
  // key, access keys, F5, F8, Ctrl+Tab. It needs no more handling then. The Tab key out of the last field, or out of
  // the first one, is the host's.
  bool TakeKey(const MSG& message);
  // Gives the focus to the first field, or to the last one, as the Tab key does that comes from the host.
  void FocusFirst(bool backwards);

 private:
  class Body;
  std::unique_ptr<Body> body_;
};

}  // namespace quorvel::windows
