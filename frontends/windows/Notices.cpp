#include "windows/Notices.h"

namespace quorvel::windows {

// A copy: what is told may end the listener.
Notices::Listener Notices::Of(HWND control) const {
  const auto found = listeners_.find(control);
  return found == listeners_.end() || control == drawn_ ? Listener() : found->second;
}

std::optional<LRESULT> Notices::Tell(UINT message, WPARAM wParam, LPARAM lParam) const {
  const auto control = [lParam] { return reinterpret_cast<HWND>(lParam); };
  switch (message) {
    case WM_COMMAND:
      if (const auto told = Of(control()).command) return told(HIWORD(wParam)), 0;
      return std::nullopt;
    case WM_HSCROLL:
    case WM_VSCROLL:
      if (const auto told = Of(control()).scroll) return told(LOWORD(wParam)), 0;
      return std::nullopt;
    case WM_NOTIFY: {
      auto& header = *reinterpret_cast<NMHDR*>(lParam);
      if (const auto told = Of(header.hwndFrom).notify) return told(header);
      return std::nullopt;
    }
    case WM_DRAWITEM: {
      const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
      const auto found = listeners_.find(item.hwndItem);
      if (found == listeners_.end() || !found->second.draw) return std::nullopt;
      found->second.draw(item);
      return TRUE;
    }
    default:
      return std::nullopt;
  }
}

}  // namespace quorvel::windows
