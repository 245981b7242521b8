// Windows of this front end's own making.
#pragma once

#include <windows.h>

#include <optional>

namespace quorvel::windows {

// The program or the library that this code is linked into, which owns its window classes.
HINSTANCE Module();

// What a screen reader says of the native control that is made next in `parent`, where no caption stands before it: the
// text of a label that nobody sees. Gives `parent` back, for the call that makes it.
HWND NameNext(HWND parent, const wchar_t* name);

// A window whose messages an object handles. Whoever ends first, the other stays harmless: without its window the
// object has none to draw on, without its object the window ends.
class Window {
 public:
  Window(const Window&) = delete;
  Window& operator=(const Window&) = delete;

  // Null once it has ended.
  HWND window() const { return window_; }

 protected:
  struct Style {
    DWORD style = 0;
    DWORD extended = 0;
    const wchar_t* caption = L"";
  };
  // Without a size. The derived class gets messages from here on but those of the making.
  Window(const Style& style, HWND parent);
  virtual ~Window() { End(); }
  // Ends the window; nothing is handled any more. For destructors of derived classes, before what `Handle` uses goes.
  void End();

  // Nothing: the message is the system's to handle. What it raises ends at the system.
  virtual std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam) = 0;

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  HWND window_ = nullptr;
};

}  // namespace quorvel::windows
