// The window that the control has in its host while it is active.
#pragma once

#include <functional>

#include "windows/ProcessLogWindow.h"
#include "windows/Window.h"

namespace quorvel::windows {

// Holds the viewer's own window, clipped to what the host shows of it.
class ControlWindow final : public Window {
 public:
  // `used`: the user clicked into it, or the focus came to it.
  ControlWindow(ucProcessLog& control, HWND parent, std::function<void()> used);
  ~ControlWindow() override { End(); }
  ControlWindow(const ControlWindow&) = delete;
  ControlWindow& operator=(const ControlWindow&) = delete;

  ProcessLogWindow& viewer() { return viewer_; }
  // In pixels of the parent: where the control stands, and the part of it that may be seen.
  void Place(const RECT& place, const RECT& clip);
  bool HasFocus() const;
  // Whether the message was a key that moves within the field it is for, which has handled it.
  bool GiveToField(const MSG& message) const;

 protected:
  std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  std::function<void()> used_;
  ProcessLogWindow viewer_;
};

}  // namespace quorvel::windows
