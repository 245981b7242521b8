#include "console_windows/Picture.h"

#include <dwmapi.h>
#include <objidl.h>

#include <gdiplus.h>

#include <memory>
#include <type_traits>

#include "platform/Error.h"
#include "platform/windows/WideText.h"
#include "windows/GlyphBitmap.h"
#include "windows/Handles.h"

namespace quorvel::console {
namespace {

constexpr CLSID kPng = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0x00, 0x00, 0xF8, 0x1E, 0xF3, 0x2E}};

struct DcRelease {
  void operator()(HDC dc) const { DeleteDC(dc); }
};
using MemoryDc = std::unique_ptr<std::remove_pointer_t<HDC>, DcRelease>;

// As it stands on the screen, with its frame and in front of all others: the call that asks windows to draw themselves
// elsewhere leaves Wine's pictures black.
windows::UniqueBitmap PictureOf(HWND window) {
  SetWindowPos(window, HWND_TOPMOST, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
  RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_ALLCHILDREN | RDW_UPDATENOW | RDW_FRAME);
  DwmFlush();  // until it is on the screen
  RECT place{};
  GetWindowRect(window, &place);
  const int width = place.right - place.left;
  const int height = place.bottom - place.top;
  const windows::ScreenDc screen;
  const MemoryDc memory(CreateCompatibleDC(screen.get()));
  windows::UniqueBitmap picture(CreateCompatibleBitmap(screen.get(), width, height));
  const HGDIOBJ before = SelectObject(memory.get(), picture.get());
  BitBlt(memory.get(), 0, 0, width, height, screen.get(), place.left, place.top, SRCCOPY);
  SelectObject(memory.get(), before);
  return picture;
}

}  // namespace

void WritePicture(HWND window, const std::filesystem::path& file) {
  const windows::GdiPlus running;
  const windows::UniqueBitmap picture = PictureOf(window);
  Gdiplus::Bitmap bitmap(picture.get(), nullptr);
  if (bitmap.Save(file.c_str(), &kPng, nullptr) == Gdiplus::Ok) return;
  throw Error(SystemError::kPathAccess, windows::FromWide(file.wstring()) + ": The picture cannot be written");
}

}  // namespace quorvel::console
