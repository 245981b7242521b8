// Icons as bitmaps of Windows, drawn from the vector shapes of the library.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>

#include "widgets/IconGlyphs.h"
#include "windows/Handles.h"

namespace quorvel::windows {

// The colours to draw a picture in: for a dark background or a light one, or with its base in one colour, 0xRRGGBB, as
// it stands on a selected row.
struct IconInk {
  bool dark = false;
  std::optional<std::uint32_t> base = {};
  friend bool operator==(const IconInk&, const IconInk&) = default;
};

// GDI+ runs while one lives. To start it takes a while, so who draws much keeps one; a library must not leave it
// running when it is unloaded.
class GdiPlus {
 public:
  GdiPlus();
  ~GdiPlus();
  GdiPlus(const GdiPlus&) = delete;
  GdiPlus& operator=(const GdiPlus&) = delete;

 private:
  ULONG_PTR token_ = 0;
};

// AlphaBlend, menus and buttons want colours multiplied by their opacity, image lists want them as they are.
enum class BitmapColours { kMultiplied, kStraight };

struct IconForm {
  int pixels = 0;      // how wide and high the picture is
  int airAtRight = 0;  // so much wider is the bitmap
  BitmapColours colours = BitmapColours::kMultiplied;
};

// A bitmap with 32 bits a pixel, transparent around the picture. Error 7 without memory for it.
UniqueBitmap DrawIcon(const widgets::IconPicture& picture, const IconForm& form, const IconInk& ink = {});

}  // namespace quorvel::windows
