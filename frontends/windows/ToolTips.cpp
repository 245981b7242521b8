#include "windows/ToolTips.h"

#include "windows/Window.h"

namespace quorvel::windows {

ToolTips::ToolTips(HWND window)
    : window_(window),
      tips_(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, 0, 0, 0,
                            0, window, nullptr, Module(), nullptr)) {}

void ToolTips::Set(HWND control, const std::wstring& text) {
  const auto known = texts_.find(control);
  if (known == texts_.end() ? text.empty() : known->second == text) return;
  std::wstring& kept = texts_[control] = text;
  TTTOOLINFOW tool{};
  tool.cbSize = sizeof(tool);
  tool.uFlags = TTF_IDISHWND | TTF_SUBCLASS;
  tool.hwnd = window_;
  tool.uId = reinterpret_cast<UINT_PTR>(control);
  SendMessageW(tips_.get(), TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  if (kept.empty()) return;
  tool.lpszText = kept.data();
  SendMessageW(tips_.get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void ToolTips::SetFont(HFONT font) {
  SendMessageW(tips_.get(), WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
}

void ToolTips::SetWidth(int width) {
  SendMessageW(tips_.get(), TTM_SETMAXTIPWIDTH, 0, width);
}

}  // namespace quorvel::windows
