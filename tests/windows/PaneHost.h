// A window that holds a pane, and the hands of a user on it.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <functional>
#include <string>

#include "platform/windows/WideText.h"
#include "windows/Convert.h"
#include "windows/Handles.h"
#include "windows/Icons.h"
#include "windows/Window.h"

namespace quorvel::test {

// Passes notifications on to the pane in it.
class PaneHost final : public windows::Window {
 public:
  PaneHost() : Window({.style = WS_OVERLAPPEDWINDOW}, nullptr) {
    SetWindowPos(window(), nullptr, 0, 0, scale.Of96(600), scale.Of96(500), SWP_NOZORDER);
    ShowWindow(window(), SW_SHOW);
  }
  ~PaneHost() override { End(); }

  std::function<LRESULT(NMHDR&)> notify;
  const windows::Scale scale = windows::ScaleOf(window());
  windows::Icons icons{scale};

 protected:
  std::optional<LRESULT> Handle(UINT message, WPARAM /*wParam*/, LPARAM lParam) override {
    if (message != WM_NOTIFY || !notify) return std::nullopt;
    return notify(*reinterpret_cast<NMHDR*>(lParam));
  }
};

inline void PumpMessages() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

// Holds a key down.
class Holding {
 public:
  explicit Holding(int key) : key_(key) { Set(0x80); }
  ~Holding() { Set(0); }
  Holding(const Holding&) = delete;
  Holding& operator=(const Holding&) = delete;

 private:
  void Set(BYTE state) const {
    BYTE keys[256]{};
    GetKeyboardState(keys);
    keys[key_] = state;
    SetKeyboardState(keys);
  }
  int key_;
};

inline void PressKey(HWND window, WPARAM key) {
  SendMessageW(window, WM_KEYDOWN, key, 1);
  PumpMessages();
}
inline void TypeText(HWND window, const wchar_t* text) {
  for (; *text != 0; ++text) SendMessageW(window, WM_CHAR, static_cast<WPARAM>(*text), 1);
}

// Whether the window, asked to erase its background now, does it.
inline bool Erases(HWND window) {
  constexpr COLORREF kBefore = RGB(1, 2, 3);
  constexpr int kSide = 8;
  const windows::ScreenDc screen;
  const HDC dc = CreateCompatibleDC(screen.get());
  const windows::UniqueBitmap bitmap(CreateCompatibleBitmap(screen.get(), kSide, kSide));
  const HGDIOBJ before = SelectObject(dc, bitmap.get());
  SetPixel(dc, kSide / 2, kSide / 2, kBefore);
  SendMessageW(window, WM_ERASEBKGND, reinterpret_cast<WPARAM>(dc), 0);
  const bool erased = GetPixel(dc, kSide / 2, kSide / 2) != kBefore;
  SelectObject(dc, before);
  DeleteDC(dc);
  return erased;
}

// A button goes down and comes up; native controls may wait for the second in the midst of the first.
inline void PressMouse(HWND window, POINT place, UINT down, UINT up, WPARAM held) {
  const LPARAM at = MAKELPARAM(place.x, place.y);
  PostMessageW(window, up, held & (MK_CONTROL | MK_SHIFT), at);
  SendMessageW(window, down, held, at);
  PumpMessages();
}
inline void LeftClick(HWND window, POINT place, WPARAM keys = 0) {
  PressMouse(window, place, WM_LBUTTONDOWN, WM_LBUTTONUP, MK_LBUTTON | keys);
}
inline void RightClick(HWND window, POINT place) {
  PressMouse(window, place, WM_RBUTTONDOWN, WM_RBUTTONUP, MK_RBUTTON);
}
inline void DoubleClick(HWND window, POINT place) {
  LeftClick(window, place);
  PressMouse(window, place, WM_LBUTTONDBLCLK, WM_LBUTTONUP, MK_LBUTTON);
}

}  // namespace quorvel::test
