// Owners of the handles of Windows.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <memory>
#include <type_traits>

namespace quorvel::windows {

struct GdiRelease {
  void operator()(HGDIOBJ object) const { DeleteObject(object); }
};
template <class Handle>
using UniqueGdi = std::unique_ptr<std::remove_pointer_t<Handle>, GdiRelease>;
using UniqueFont = UniqueGdi<HFONT>;
using UniqueBrush = UniqueGdi<HBRUSH>;
using UniqueBitmap = UniqueGdi<HBITMAP>;

struct ImageListRelease {
  void operator()(HIMAGELIST list) const { ImageList_Destroy(list); }
};
using UniqueImageList = std::unique_ptr<std::remove_pointer_t<HIMAGELIST>, ImageListRelease>;

struct MenuRelease {
  void operator()(HMENU menu) const { DestroyMenu(menu); }
};
using UniqueMenu = std::unique_ptr<std::remove_pointer_t<HMENU>, MenuRelease>;

struct ModuleFree {
  void operator()(HMODULE module) const { FreeLibrary(module); }
};
using UniqueModule = std::unique_ptr<std::remove_pointer_t<HMODULE>, ModuleFree>;

// Ends the window with its owner, unless its parent ended it before.
struct WindowRelease {
  void operator()(HWND window) const {
    if (IsWindow(window) != FALSE) DestroyWindow(window);
  }
};
using UniqueWindow = std::unique_ptr<std::remove_pointer_t<HWND>, WindowRelease>;

// The whole screen, to ask what it is like.
class ScreenDc {
 public:
  ScreenDc() : dc_(GetDC(nullptr)) {}
  ~ScreenDc() { ReleaseDC(nullptr, dc_); }
  ScreenDc(const ScreenDc&) = delete;
  ScreenDc& operator=(const ScreenDc&) = delete;
  HDC get() const { return dc_; }

 private:
  HDC dc_;
};

}  // namespace quorvel::windows
