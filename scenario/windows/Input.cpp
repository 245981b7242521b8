#include "scenario_windows/Input.h"

#include <array>
#include <iterator>

namespace quorvel::scenario {
namespace {

// In the order of KeyCode.
constexpr WORD kVirtualKeys[] = {VK_RETURN, VK_ESCAPE, VK_TAB,   VK_PRIOR, VK_NEXT, VK_HOME, VK_END, VK_UP,
                                 VK_DOWN,   VK_LEFT,   VK_RIGHT, VK_APPS,  VK_F5,   VK_F10,  'A',    'C'};
static_assert(std::size(kVirtualKeys) == static_cast<std::size_t>(KeyCode::kC) + 1);

// Bits of the lParam of key messages.
constexpr LPARAM kPressed = 1;
constexpr LPARAM kReleased = static_cast<LPARAM>(0xC0000001U);

// Controls ask the thread which keys are down; posted messages do not tell it.
class HeldKeys {
 public:
  HeldKeys(bool ctrl, bool shift) {
    GetKeyboardState(before_.data());
    std::array<BYTE, 256> now = before_;
    now[VK_CONTROL] = now[VK_LCONTROL] = ctrl ? kDown : BYTE{};
    now[VK_SHIFT] = now[VK_LSHIFT] = shift ? kDown : BYTE{};
    SetKeyboardState(now.data());
  }
  ~HeldKeys() { SetKeyboardState(before_.data()); }
  HeldKeys(const HeldKeys&) = delete;
  HeldKeys& operator=(const HeldKeys&) = delete;

 private:
  static constexpr BYTE kDown = 0x80;
  std::array<BYTE, 256> before_{};
};

// A script moves the focus by commands of its own; on every front end a mouse button leaves it where it is. The native
// controls would take it when they are pressed. Another window, such as a dialog that comes up, gets it.
class FocusHold {
 public:
  explicit FocusHold(HWND window) : hook_(SetWindowsHookExW(WH_CBT, &Refuse, nullptr, GetCurrentThreadId())) {
    held_ = GetAncestor(window, GA_ROOT);
  }
  ~FocusHold() {
    UnhookWindowsHookEx(hook_);
    held_ = nullptr;
  }
  FocusHold(const FocusHold&) = delete;
  FocusHold& operator=(const FocusHold&) = delete;

 private:
  static LRESULT CALLBACK Refuse(int code, WPARAM wParam, LPARAM lParam) {
    if (code == HCBT_SETFOCUS && IsChild(held_, reinterpret_cast<HWND>(wParam)) != FALSE) return 1;
    return CallNextHookEx(nullptr, code, wParam, lParam);
  }

  static inline HWND held_ = nullptr;
  HHOOK hook_;
};

LPARAM PlaceOf(POINT at) {
  return MAKELPARAM(at.x, at.y);
}

WPARAM HeldFlag(Held held) {
  switch (held) {
    case Held::kCtrl:
      return MK_CONTROL;
    case Held::kShift:
      return MK_SHIFT;
    case Held::kNothing:
      break;
  }
  return 0;
}

// Messages say where the pointer is, too.
void MovePointer(HWND window, POINT to) {
  ClientToScreen(window, &to);
  SetCursorPos(to.x, to.y);
}

// Both are posted before either is handled: native lists wait for the release in a loop of their own.
void PostClick(HWND window, POINT at, UINT press, UINT release, WPARAM button, WPARAM held) {
  PostMessageW(window, press, button | held, PlaceOf(at));
  PostMessageW(window, release, held, PlaceOf(at));
}

}  // namespace

void Input::Press(HWND window, POINT at) {
  const FocusHold hold(window);
  MovePointer(window, at);
  PostMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, PlaceOf(at));
  pump_.Settle();
}

void Input::Drag(HWND window, POINT to) {
  MovePointer(window, to);
  PostMessageW(window, WM_MOUSEMOVE, MK_LBUTTON, PlaceOf(to));
  pump_.Settle();
}

void Input::Release(HWND window, POINT at) {
  PostMessageW(window, WM_LBUTTONUP, 0, PlaceOf(at));
  pump_.Settle();
}

void Input::Click(HWND window, POINT at, MouseButton button, Held held) {
  const FocusHold hold(window);
  const HeldKeys keys(held == Held::kCtrl, held == Held::kShift);
  MovePointer(window, at);
  const bool left = button == MouseButton::kLeft;
  PostClick(window, at, left ? WM_LBUTTONDOWN : WM_RBUTTONDOWN, left ? WM_LBUTTONUP : WM_RBUTTONUP,
            left ? MK_LBUTTON : MK_RBUTTON, HeldFlag(held));
  pump_.Settle();
}

void Input::DoubleClick(HWND window, POINT at) {
  const FocusHold hold(window);
  MovePointer(window, at);
  PostClick(window, at, WM_LBUTTONDOWN, WM_LBUTTONUP, MK_LBUTTON, 0);
  PostClick(window, at, WM_LBUTTONDBLCLK, WM_LBUTTONUP, MK_LBUTTON, 0);
  pump_.Settle();
}

void Input::PressKey(HWND window, const Key& key) {
  const HeldKeys keys(key.ctrl, key.shift);
  PressKey(window, kVirtualKeys[static_cast<std::size_t>(key.code)]);
}

// The release goes to whoever has the keys then: a menu that the press has opened, a dialog.
void Input::PressKey(HWND window, WORD virtualKey) {
  const bool system = virtualKey == VK_F10;
  PostMessageW(window, system ? WM_SYSKEYDOWN : WM_KEYDOWN, virtualKey, kPressed);
  pump_.Settle();
  const HWND focused = GetFocus();
  PostMessageW(focused != nullptr ? focused : window, system ? WM_SYSKEYUP : WM_KEYUP, virtualKey, kReleased);
  pump_.Settle();
}

void Input::Type(HWND window, std::wstring_view text) {
  PostText(window, text);
  pump_.Settle();
}

void Input::PostKey(HWND window, WORD virtualKey) {
  PostMessageW(window, WM_KEYDOWN, virtualKey, kPressed);
  PostMessageW(window, WM_KEYUP, virtualKey, kReleased);
}

void Input::PostText(HWND window, std::wstring_view text) {
  for (const wchar_t unit : text) PostMessageW(window, WM_CHAR, unit, kPressed);
}

}  // namespace quorvel::scenario
