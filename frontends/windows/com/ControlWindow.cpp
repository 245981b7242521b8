#include "com/ControlWindow.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace quorvel::windows {
namespace {

int WidthOf(const RECT& place) {
  return place.right - place.left;
}

int HeightOf(const RECT& place) {
  return place.bottom - place.top;
}

bool IsMove(WPARAM key) {
  constexpr WPARAM kMoves[] = {VK_LEFT, VK_RIGHT, VK_UP, VK_DOWN, VK_HOME, VK_END, VK_PRIOR, VK_NEXT};
  return std::ranges::find(kMoves, key) != std::end(kMoves);
}

}  // namespace

ControlWindow::ControlWindow(ucProcessLog& control, HWND parent, std::function<void()> used)
    : Window({.style = WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, .extended = WS_EX_CONTROLPARENT}, parent),
      used_(std::move(used)),
      viewer_(control, window()) {}

void ControlWindow::Place(const RECT& place, const RECT& clip) {
  RECT seen{};
  if (IntersectRect(&seen, &place, &clip) == FALSE) seen = {place.left, place.top, place.left, place.top};
  SetWindowPos(viewer_.window(), nullptr, place.left - seen.left, place.top - seen.top, WidthOf(place), HeightOf(place),
               SWP_NOZORDER | SWP_NOACTIVATE);
  SetWindowPos(window(), nullptr, seen.left, seen.top, WidthOf(seen), HeightOf(seen), SWP_NOZORDER | SWP_NOACTIVATE);
}

bool ControlWindow::HasFocus() const {
  const HWND focus = GetFocus();
  return focus != nullptr && (focus == window() || IsChild(window(), focus) != FALSE);
}

bool ControlWindow::GiveToField(const MSG& message) const {
  if (message.message != WM_KEYDOWN || IsChild(window(), message.hwnd) == FALSE) return false;
  const bool enter = message.wParam == VK_RETURN;
  if (!enter && !IsMove(message.wParam)) return false;
  const LRESULT wanted = SendMessageW(message.hwnd, WM_GETDLGCODE, message.wParam, reinterpret_cast<LPARAM>(&message));
  if ((wanted & (enter ? DLGC_WANTALLKEYS : DLGC_WANTARROWS | DLGC_WANTALLKEYS)) == 0) return false;
  TranslateMessage(&message);
  DispatchMessageW(&message);
  return true;
}

std::optional<LRESULT> ControlWindow::Handle(UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/) {
  if (message == WM_MOUSEACTIVATE) used_();
  if (message == WM_SETFOCUS) {
    used_();
    viewer_.FocusFirst(false);
    return 0;
  }
  return std::nullopt;
}

}  // namespace quorvel::windows
