// What native controls tell the window that holds them.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <optional>
#include <unordered_map>

namespace quorvel::windows {

// Leads each notification to whoever listens to that control.
class Notices {
 public:
  struct Listener {
    std::function<void(UINT code)> command = {};
    std::function<LRESULT(NMHDR&)> notify = {};
    std::function<void(UINT code)> scroll = {};
    std::function<void(const DRAWITEMSTRUCT&)> draw = {};
  };
  void Listen(HWND control, Listener listener) { listeners_[control] = std::move(listener); }

  // For the window procedure of a window that holds controls. Nothing: nobody has a use for the message.
  std::optional<LRESULT> Tell(UINT message, WPARAM wParam, LPARAM lParam) const;

  // A control that is being drawn tells no gestures; only what there is to draw itself.
  void SetDrawn(HWND control) { drawn_ = control; }
  HWND drawn() const { return drawn_; }

 private:
  // Nothing listens to a control that is being drawn.
  Listener Of(HWND control) const;

  std::unordered_map<HWND, Listener> listeners_;
  HWND drawn_ = nullptr;
};

}  // namespace quorvel::windows
