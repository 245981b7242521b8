// The pictures behind icon keys, as vector shapes: any front end draws them, at any size, in its own colours.
#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace quorvel::widgets {

// What a shape stands for; its colour follows the theme.
enum class IconColour : std::uint8_t {
  kInk,   // lines and bodies of a base picture
  kBody,  // the quiet inside of one
  kOk,    // badges by meaning
  kError,
  kProgress,
  kWaiting,
  kUnknown,
  kNone,      // nothing was done
  kOnBadge,   // marks on a coloured badge
  kOnWaiting  // the same on the light colour of waiting
};

// 0xRRGGBB on a light or a dark background.
std::uint32_t IconRgb(IconColour colour, bool dark);

// All measures are units of a grid of 16 x 16, y downwards.
inline constexpr float kIconGrid = 16;

enum class ShapeKind : std::uint8_t {
  kPolygon,   // x, y pairs, closed
  kPolyline,  // x, y pairs, open, round ends
  kCircle,    // centre x, y, radius
  kBox,       // left, top, width, height, corner radius
};

struct IconShape {
  static constexpr std::size_t kMost = 20;

  constexpr IconShape(ShapeKind kindOfShape, IconColour itsColour, float lineWidth, std::initializer_list<float> list)
      : kind(kindOfShape), colour(itsColour), stroke(lineWidth), count(list.size()) {
    std::size_t i = 0;
    for (const float number : list) values[i++] = number;
  }
  constexpr std::span<const float> numbers() const { return {values.data(), count}; }

  ShapeKind kind;
  IconColour colour;
  float stroke;  // width of the line, 0 = filled
  std::array<float, kMost> values{};
  std::size_t count;
};

// Shapes, drawn in this order.
using Glyph = std::span<const IconShape>;

// A small picture over a base picture, which is cut away in a circle around it so that both stay readable.
struct IconBadge {
  Glyph glyph;
  float centreX = 0;
  float centreY = 0;
  float cutRadius = 0;
  bool inBaseColours = false;  // else it has colours of its own, which a base in one colour must not swallow
};

// A picture: one base and up to two badges over it.
struct IconPicture {
  Glyph base;
  std::array<const IconBadge*, 2> badges{};  // null = none
};

// The picture of an icon key, nothing when the key has none. Lives as long as the program.
std::optional<IconPicture> FindIcon(std::string_view key);

// Every key that has a picture.
std::vector<std::string_view> IconKeys();

}  // namespace quorvel::widgets
