#include "com/ControlWindow.h"

#include <utility>

namespace quorvel::windows {
namespace {

int WidthOf(const RECT& place) {
  return place.right - place.left;
}

int HeightOf(const RECT& place) {
  return place.bottom - place.top;
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
