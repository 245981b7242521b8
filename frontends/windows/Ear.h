// Ears for native controls.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <optional>

namespace quorvel::windows {

// Hears the messages of a native control before it does, as long as both live; of several ears the newest comes first.
// All on the thread of the window.
//
// SetWindowSubclass does the same, but looks its subclasses up as a property of the window, for each message once and
// once more: where that is a call of another process, as under Wine, a pane spends most of a fill with it.
class Ear {
 public:
  // Nothing: the message is the control's to handle.
  using Hear = std::function<std::optional<LRESULT>(UINT message, WPARAM wParam, LPARAM lParam)>;
  Ear(HWND window, Hear hear);
  ~Ear();
  Ear(const Ear&) = delete;
  Ear& operator=(const Ear&) = delete;

  // What the control itself makes of a message. Older ears hear it before; 0 once the control has ended.
  LRESULT Pass(UINT message, WPARAM wParam, LPARAM lParam) const;

 private:
  class Chain;
  struct Link;

  std::shared_ptr<Link> link_;
};

}  // namespace quorvel::windows
