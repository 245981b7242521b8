#include "windows/Parts.h"

#include <windowsx.h>

#include <utility>

namespace quorvel::windows {
namespace {

// The part of a window that is to be painted now.
class Painting {
 public:
  explicit Painting(HWND window) : window_(window), dc_(BeginPaint(window, &paint_)) {}
  ~Painting() { EndPaint(window_, &paint_); }
  Painting(const Painting&) = delete;
  Painting& operator=(const Painting&) = delete;
  HDC dc() const { return dc_; }

 private:
  PAINTSTRUCT paint_{};
  HWND window_;
  HDC dc_;
};

RECT InnerOf(HWND window) {
  RECT inner{};
  GetClientRect(window, &inner);
  return inner;
}

void Fill(HDC dc, const RECT& place, int systemColour) {
  FillRect(dc, &place, GetSysColorBrush(systemColour));
}

}  // namespace

Frame::Frame(Surface& surface, HWND parent, const wchar_t* name)
    : Window({.style = WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS, .extended = WS_EX_CONTROLPARENT, .caption = name},
             parent),
      surface_(surface) {}

std::optional<LRESULT> Frame::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_ERASEBKGND:
      Fill(reinterpret_cast<HDC>(wParam), InnerOf(window()), COLOR_BTNFACE);
      return TRUE;
    case WM_PAINT: {
      const Painting painting(window());
      Paint(painting.dc());
      return 0;
    }
    default:
      return surface_.notices().Tell(message, wParam, lParam);
  }
}

void SectionFrame::SetCaption(std::wstring caption, int height) {
  caption_ = std::move(caption);
  captionHeight_ = height;
  SetWindowTextW(window(), caption_.c_str());
  const RECT head{0, 0, InnerOf(window()).right, height};
  InvalidateRect(window(), &head, TRUE);
}

void SectionFrame::Paint(HDC dc) {
  RECT head = InnerOf(window());
  head.bottom = captionHeight_;
  const FontOn drawing(dc, surface().fonts().head());
  SetBkMode(dc, TRANSPARENT);
  SetTextColor(dc, GetSysColor(COLOR_BTNTEXT));
  DrawTextW(dc, caption_.c_str(), -1, &head, DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

Plain::Plain(HWND parent, int systemColour)
    : Window({.style = WS_CHILD | WS_CLIPSIBLINGS, .extended = 0}, parent), colour_(systemColour) {}

std::optional<LRESULT> Plain::Handle(UINT message, WPARAM wParam, LPARAM /*lParam*/) {
  if (message != WM_ERASEBKGND) return std::nullopt;
  Fill(reinterpret_cast<HDC>(wParam), InnerOf(window()), colour_);
  return TRUE;
}

SplitterGrip::SplitterGrip(Gestures gestures, Surface& surface, HWND parent)
    : Window({.style = WS_CHILD | WS_CLIPSIBLINGS, .extended = 0, .caption = L"Width of the tree"}, parent),
      gestures_(std::move(gestures)),
      surface_(surface) {}

std::optional<LRESULT> SplitterGrip::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SETCURSOR:
      SetCursor(LoadCursorW(nullptr, MAKEINTRESOURCEW(32644)));  // left and right
      return TRUE;
    case WM_LBUTTONDOWN:
      held_ = true;
      SetCapture(window());
      gestures_.begin();
      return 0;
    case WM_MOUSEMOVE:
      if (held_) gestures_.move(GET_X_LPARAM(lParam));
      return 0;
    case WM_LBUTTONUP:
      ReleaseCapture();
      return 0;
    case WM_CAPTURECHANGED:
      Release();
      return 0;
    case WM_KEYDOWN:
      return TakeKey(wParam);
    case WM_GETDLGCODE:
      return DLGC_WANTARROWS | (wParam == VK_RETURN || wParam == VK_ESCAPE ? DLGC_WANTMESSAGE : 0);
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
    case WM_SIZE:
      InvalidateRect(window(), nullptr, FALSE);
      return std::nullopt;
    case WM_ERASEBKGND:
      return TRUE;
    case WM_PAINT:
      Paint();
      return 0;
    default:
      return std::nullopt;
  }
}

std::optional<LRESULT> SplitterGrip::TakeKey(WPARAM key) {
  constexpr int kStep = 16;
  switch (key) {
    case VK_LEFT:
      MoveBy(-surface_.scale().Of96(kStep));
      return 0;
    case VK_RIGHT:
      MoveBy(surface_.scale().Of96(kStep));
      return 0;
    case VK_RETURN:
    case VK_ESCAPE:
      gestures_.leave();
      return 0;
    default:
      return std::nullopt;
  }
}

void SplitterGrip::MoveBy(int pixels) {
  gestures_.begin();
  gestures_.move(pixels);
  gestures_.end();
}

// The button came up, or another window took the pointer.
void SplitterGrip::Release() {
  if (std::exchange(held_, false)) gestures_.end();
}

void SplitterGrip::Paint() const {
  const Painting painting(window());
  const bool focused = GetFocus() == window();
  const RECT all = InnerOf(window());
  Fill(painting.dc(), all, focused ? COLOR_HIGHLIGHT : COLOR_BTNFACE);
  // Three dots: enough to be found, too little to be looked at.
  const int dot = surface_.scale().Of96(2);
  for (const int step : {-1, 0, 1}) {
    const int left = (all.right - dot) / 2;
    const int top = (all.bottom - dot) / 2 + step * surface_.scale().Of96(5);
    Fill(painting.dc(), {left, top, left + dot, top + dot}, focused ? COLOR_HIGHLIGHTTEXT : COLOR_BTNSHADOW);
  }
}

}  // namespace quorvel::windows
