// The detail dialog as a window of Windows.
#pragma once

#include <windows.h>

#include <memory>

#include "dialogs/dlgLVDetail.h"

namespace quorvel::windows {

// Opens and closes when its form does. While it is open the window behind takes no input, but nobody waits for it. It
// hears of its keys whatever message loop the host runs.
class DetailWindow final : public widgets::ControlObserver {
 public:
  // `viewer`: the window whose upper left corner the form's place is counted from. `detail` must outlive this.
  DetailWindow(dlgLVDetail& detail, HWND viewer);
  ~DetailWindow() override;
  DetailWindow(const DetailWindow&) = delete;
  DetailWindow& operator=(const DetailWindow&) = delete;

  // The form changed.
  void ControlChanged(widgets::Control& control) override;

  // Null while the dialog is closed.
  HWND window() const;
  // The native window that draws a control of the dialog; null while it is closed, and for others.
  HWND WindowOf(const widgets::Control& control) const;
  // Whether the message was a key for the dialog itself; it needs no more handling then.
  bool TakeKey(const MSG& message);

 private:
  class Body;
  void FollowForm();

  dlgLVDetail& detail_;
  HWND viewer_;
  std::unique_ptr<Body> body_;  // while the dialog is open
};

}  // namespace quorvel::windows
