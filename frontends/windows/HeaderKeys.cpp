#include "windows/HeaderKeys.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "windows/Convert.h"
#include "windows/Input.h"

namespace quorvel::windows {
HeaderKeys::HeaderKeys(HWND header, HWND list, std::function<void(int)> click)
    : header_(header),
      list_(list),
      click_(std::move(click)),
      ear_(header, [this](UINT message, WPARAM wParam, LPARAM lParam) { return Hear(message, wParam, lParam); }) {}

std::optional<LRESULT> HeaderKeys::Hear(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_GETDLGCODE:
      return DLGC_WANTARROWS | DLGC_WANTCHARS | (wParam == VK_RETURN ? DLGC_WANTMESSAGE : 0);
    case WM_KEYDOWN:
      if (Header_GetItemCount(header_) > 0 && TakeKey(wParam)) return 0;
      return std::nullopt;
    case WM_SETFOCUS:
      if (Header_GetItemCount(header_) > 0) Choose(Column());
      InvalidateRect(header_, nullptr, FALSE);
      return std::nullopt;
    case WM_KILLFOCUS:
      InvalidateRect(header_, nullptr, FALSE);
      return std::nullopt;
    case WM_PAINT: {
      const LRESULT answer = ear_.Pass(message, wParam, lParam);
      if (GetFocus() == header_) Frame();
      return answer;
    }
    default:
      return std::nullopt;
  }
}

bool HeaderKeys::TakeKey(WPARAM key) {
  if (IsDown(VK_SHIFT) || IsDown(VK_MENU)) return false;
  if (IsDown(VK_CONTROL)) return Widen(key);
  switch (key) {
    case VK_LEFT:
      Choose(Column() - 1);
      return true;
    case VK_RIGHT:
      Choose(Column() + 1);
      return true;
    case VK_HOME:
      Choose(0);
      return true;
    case VK_END:
      Choose(Header_GetItemCount(header_) - 1);
      return true;
    case VK_SPACE:
    case VK_RETURN:
      click_(Column());
      return true;
    case VK_DOWN:
      SetFocus(list_);
      return true;
    default:
      return false;
  }
}

// As a drag of its edge would: who hears of that hears of this.
bool HeaderKeys::Widen(WPARAM key) {
  constexpr int kStep = 10;  // pixels at 96 dots per inch
  if (key != VK_LEFT && key != VK_RIGHT) return false;
  HDITEMW item{};
  item.mask = HDI_WIDTH;
  const int step = ScaleOf(header_).Of96(kStep);
  item.cxy = ListView_GetColumnWidth(list_, Column()) + (key == VK_RIGHT ? step : -step);
  SendMessageW(header_, HDM_SETITEMW, static_cast<WPARAM>(Column()), reinterpret_cast<LPARAM>(&item));
  return true;
}

void HeaderKeys::Choose(int column) {
  column_ = std::clamp(column, 0, Header_GetItemCount(header_) - 1);
  RECT place{};
  Header_GetItemRect(header_, column_, &place);
  MapWindowPoints(header_, list_, reinterpret_cast<POINT*>(&place), 2);
  RECT room{};
  GetClientRect(list_, &room);
  const int beyond = static_cast<int>(place.right - room.right);
  const int left = static_cast<int>(place.left);
  // Of a column wider than the list its beginning.
  if (left < 0 || beyond > 0) ListView_Scroll(list_, left < 0 ? left : std::min(beyond, left), 0);
  InvalidateRect(header_, nullptr, FALSE);
  NotifyWinEvent(EVENT_OBJECT_FOCUS, header_, OBJID_CLIENT, column_ + 1);
}

int HeaderKeys::Column() const {
  return std::clamp(column_, 0, std::max(Header_GetItemCount(header_) - 1, 0));
}

void HeaderKeys::Frame() const {
  RECT place{};
  if (Header_GetItemRect(header_, Column(), &place) == FALSE) return;
  const HDC dc = GetDC(header_);
  for (int width = 0; width < ScaleOf(header_).Of96(2); ++width) {
    FrameRect(dc, &place, GetSysColorBrush(COLOR_HIGHLIGHT));
    InflateRect(&place, -1, -1);
  }
  ReleaseDC(header_, dc);
}

}  // namespace quorvel::windows
