#include "windows/Icons.h"

#include "platform/Error.h"

namespace quorvel::windows {
namespace {

// Pixels at 96 dots per inch.
constexpr int kSmallIcon = 16;
constexpr int kAirAtRight = 3;

std::uint32_t RgbOf(int systemColour) {
  const COLORREF colour = GetSysColor(systemColour);
  return static_cast<std::uint32_t>(GetRValue(colour)) << 16 | static_cast<std::uint32_t>(GetGValue(colour)) << 8 |
         static_cast<std::uint32_t>(GetBValue(colour));
}

bool IsWindowDark() {
  const COLORREF window = GetSysColor(COLOR_WINDOW);
  return GetRValue(window) + GetGValue(window) + GetBValue(window) < 3 * 128;
}

int AirIn(Icons::Place place, const Scale& scale) {
  return place == Icons::Place::kBesideText ? scale.Of96(kAirAtRight) : 0;
}

}  // namespace

Icons::Icons(const Scale& scale, Place place)
    : place_(place),
      pixels_(scale.Of96(kSmallIcon)),
      air_(AirIn(place, scale)),
      list_(ImageList_Create(pixels_ + air_, pixels_, ILC_COLOR32 | ILC_MASK, 64, 64)) {
  if (!list_) throw Error(SystemError::kOutOfMemory, "No image list");
  TakeSystemColours();
}

int Icons::IndexOf(std::string_view key, Set& set) {
  const auto found = set.numbers.find(key);
  if (found != set.numbers.end()) return found->second;
  const auto picture = widgets::FindIcon(key);
  if (!picture) return I_IMAGENONE;
  const auto added = set.numbers.emplace(key, Append(*picture, set.ink)).first;
  drawn_.push_back({added->first, &set});
  return added->second;
}

int Icons::Append(const widgets::IconPicture& picture, const IconInk& ink) {
  const UniqueBitmap drawing =
      DrawIcon(picture, {.pixels = pixels_, .airAtRight = air_, .colours = BitmapColours::kStraight}, ink);
  const int number = ImageList_Add(list_.get(), drawing.get(), nullptr);
  if (number < 0) throw Error(SystemError::kOutOfMemory, "No memory for an icon");
  return number;
}

void Icons::TakeSystemColours() {
  usual_.ink = {.dark = IsWindowDark(), .base = {}};
  highlighted_.ink = {.dark = usual_.ink.dark, .base = RgbOf(COLOR_HIGHLIGHTTEXT)};
}

void Icons::Redraw(const Scale& scale) {
  TakeSystemColours();
  pixels_ = scale.Of96(kSmallIcon);
  air_ = AirIn(place_, scale);
  // Empties the list too, which keeps its handle.
  ImageList_SetIconSize(list_.get(), pixels_ + air_, pixels_);
  for (const Drawn& icon : drawn_) Append(*widgets::FindIcon(icon.key), icon.set->ink);
}

}  // namespace quorvel::windows
