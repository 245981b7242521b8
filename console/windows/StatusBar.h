// The status bar of the console's form: a panel that belongs to the viewer, and what the console says beside it.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include <string>
#include <string_view>

#include "platform/windows/ComPtr.h"

namespace quorvel::console {

class StatusBar {
 public:
  // Ends with `parent`.
  explicit StatusBar(HWND parent);

  HWND window() const { return window_; }
  int Height() const;

  // For another size of the form, or another resolution.
  void Fit();

  // Beside the viewer's panel; "" takes no room.
  void ShowNote(std::string_view text);
  // In the last panel; painted at once, while the program works.
  void ShowReading(std::string_view text);

  // What the form shows of itself to a control on it: `Parent.stStatusBar.Panels.Item(1).Text`. It may outlive the bar.
  windows::ComPtr<IDispatch> HostObject() const;

 private:
  void SetText(int part, std::string_view text);
  int WidthOf(const std::wstring& text) const;

  HWND window_;
  std::wstring note_;
};

}  // namespace quorvel::console
