// The tool tips of the controls in one window.
#pragma once

#include <windows.h>

#include <string>
#include <unordered_map>

#include "windows/Handles.h"

namespace quorvel::windows {

class ToolTips {
 public:
  explicit ToolTips(HWND window);

  // Without a text the control has no tool tip.
  void Set(HWND control, const std::wstring& text);
  void SetFont(HFONT font);
  // Lines longer than this are broken, in pixels.
  void SetWidth(int width);

 private:
  HWND window_;
  UniqueWindow tips_;
  std::unordered_map<HWND, std::wstring> texts_;
};

}  // namespace quorvel::windows
