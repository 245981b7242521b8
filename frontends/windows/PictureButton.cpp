#include "windows/PictureButton.h"

#include <uxtheme.h>

#include <memory>
#include <type_traits>
#include <utility>

#include "windows/GlyphBitmap.h"

namespace quorvel::windows {
namespace {

constexpr int kPicture = 16;  // at 96 dots per inch
constexpr BYTE kOpaque = 255;
constexpr BYTE kPale = 90;

// The numbers of the theme's push button and of its states.
constexpr int kPushButton = 1;
enum class State { kNormal = 1, kHot = 2, kPressed = 3, kDisabled = 4 };

struct ThemeClose {
  void operator()(HTHEME theme) const { CloseThemeData(theme); }
};
using UniqueTheme = std::unique_ptr<std::remove_pointer_t<HTHEME>, ThemeClose>;

// A bitmap in a context of its own, to be copied from.
class BitmapDc {
 public:
  BitmapDc(HDC like, HBITMAP bitmap) : dc_(CreateCompatibleDC(like)), before_(SelectObject(dc_, bitmap)) {}
  ~BitmapDc() {
    SelectObject(dc_, before_);
    DeleteDC(dc_);
  }
  BitmapDc(const BitmapDc&) = delete;
  BitmapDc& operator=(const BitmapDc&) = delete;
  HDC get() const { return dc_; }

 private:
  HDC dc_;
  HGDIOBJ before_;
};

}  // namespace

PictureButton::PictureButton(widgets::Button& model, Surface& surface, HWND parent, const wchar_t* name)
    : model_(model),
      surface_(surface),
      window_(surface.Make(model, WC_BUTTONW, WS_TABSTOP | BS_OWNERDRAW, parent,
                           [](HWND window) { InvalidateRect(window, nullptr, FALSE); })),
      ear_(window_, [this](UINT message, WPARAM, LPARAM lParam) { return Hear(message, lParam); }) {
  SetWindowTextW(window_, name);
}

std::optional<LRESULT> PictureButton::Hear(UINT message, LPARAM lParam) {
  if (message == WM_LBUTTONDBLCLK) {
    // Each of many quick clicks counts.
    return SendMessageW(window_, WM_LBUTTONDOWN, MK_LBUTTON, lParam);
  }
  if (message != WM_MOUSEMOVE && message != WM_MOUSELEAVE) return std::nullopt;
  const bool hot = message == WM_MOUSEMOVE;
  if (std::exchange(hot_, hot) == hot) return std::nullopt;
  InvalidateRect(window_, nullptr, FALSE);
  TRACKMOUSEEVENT track{sizeof(track), TME_LEAVE, window_, 0};
  if (hot) TrackMouseEvent(&track);
  return std::nullopt;
}

void PictureButton::Paint(const DRAWITEMSTRUCT& item) const {
  FillRect(item.hDC, &item.rcItem, GetSysColorBrush(COLOR_BTNFACE));
  PaintFrame(item);
  PaintPicture(item);
  if ((item.itemState & ODS_FOCUS) == 0 || (item.itemState & ODS_NOFOCUSRECT) != 0) return;
  RECT inner = item.rcItem;
  InflateRect(&inner, -surface_.scale().Of96(3), -surface_.scale().Of96(3));
  DrawFocusRect(item.hDC, &inner);
}

void PictureButton::PaintFrame(const DRAWITEMSTRUCT& item) const {
  const bool pressed = (item.itemState & ODS_SELECTED) != 0;
  RECT place = item.rcItem;
  const UniqueTheme theme(OpenThemeData(window_, L"Button"));
  if (!theme) {
    DrawFrameControl(item.hDC, &place, DFC_BUTTON, DFCS_BUTTONPUSH | static_cast<UINT>(pressed ? DFCS_PUSHED : 0));
    return;
  }
  const State state = !model_.enabled() ? State::kDisabled
                      : pressed         ? State::kPressed
                      : hot_            ? State::kHot
                                        : State::kNormal;
  DrawThemeBackground(theme.get(), item.hDC, kPushButton, static_cast<int>(state), &place, nullptr);
}

void PictureButton::PaintPicture(const DRAWITEMSTRUCT& item) const {
  const auto picture = widgets::FindIcon(model_.picture());
  if (!picture) return;
  const int pixels = surface_.scale().Of96(kPicture);
  const COLORREF face = GetSysColor(COLOR_BTNFACE);
  const bool dark = GetRValue(face) + GetGValue(face) + GetBValue(face) < 3 * 128;
  const UniqueBitmap bitmap = DrawIcon(*picture, {.pixels = pixels}, {.dark = dark});
  const BitmapDc from(item.hDC, bitmap.get());
  const int left = item.rcItem.left + (item.rcItem.right - item.rcItem.left - pixels) / 2;
  const int top = item.rcItem.top + (item.rcItem.bottom - item.rcItem.top - pixels) / 2;
  const BLENDFUNCTION blend{AC_SRC_OVER, 0, model_.enabled() ? kOpaque : kPale, AC_SRC_ALPHA};
  GdiAlphaBlend(item.hDC, left, top, pixels, pixels, from.get(), 0, 0, pixels, pixels, blend);
}

}  // namespace quorvel::windows
