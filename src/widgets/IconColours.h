// The colours of icons: each stands for a meaning, and follows the theme.
#pragma once

#include <cstdint>

namespace quorvel::widgets {

enum class IconColour : std::uint8_t {
  kInk,       // lines and bodies of a base picture
  kBody,      // the quiet inside of one
  kAccent,    // what tells one subject from another
  kNone,      // in place of these where nothing was done
  kNoneBody,  // the inside of such a picture, and marks on its badges
  kAlarm,     // bells
  kOk,        // badges by meaning
  kError,
  kProgress,
  kWaiting,
  kUnknown,
  kMark,      // badges that tell no outcome
  kOnBadge,   // marks on a coloured badge
  kOnWaiting  // the same on the light colour of waiting
};

// 0xRRGGBB on a light or a dark background.
std::uint32_t IconRgb(IconColour colour, bool dark);

// What stands for `colour` in a picture of something that was not done.
constexpr IconColour QuietColour(IconColour colour) {
  const bool inside = colour == IconColour::kBody || colour == IconColour::kNoneBody || colour == IconColour::kOnBadge;
  return inside ? IconColour::kNoneBody : IconColour::kNone;
}

}  // namespace quorvel::widgets
