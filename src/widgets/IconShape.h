// What an icon is made of: plain shapes on a small grid, a base picture and badges over it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <span>

#include "widgets/IconColours.h"

namespace quorvel::widgets {

// All measures are units of a grid of 16 x 16, y downwards.
inline constexpr float kIconGrid = 16;

enum class ShapeKind : std::uint8_t {
  kPolygon,   // x, y pairs, closed
  kPolyline,  // x, y pairs, open, round ends
  kEllipse,   // centre x, y, radius x, y
  kArc,       // the same, then where it starts and how far it goes, in degrees clockwise from 3 o'clock; round ends
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
  friend bool operator==(const IconShape&, const IconShape&) = default;

  ShapeKind kind;
  IconColour colour;
  float stroke;  // width of the line, 0 = filled
  std::array<float, kMost> values{};
  std::size_t count;
};

// Shapes, drawn in this order.
using Glyph = std::span<const IconShape>;

// A small picture over a base picture, which is cut away around it so that both stay readable.
struct IconBadge {
  Glyph glyph;
  IconShape outline;           // what the badge covers
  bool inBaseColours = false;  // else it has colours of its own, which a base in one colour must not swallow
};

// How far the base is cut away around the outline of a badge.
inline constexpr float kBadgeGap = 1;

// A base and what stands in its corners, null = nothing. A corner always means the same kind of thing.
struct IconPicture {
  Glyph base;
  const IconBadge* lowerRight = nullptr;  // how it went, or where it runs
  const IconBadge* upperRight = nullptr;  // whom it concerns, or what set it off
  const IconBadge* lowerLeft = nullptr;   // not executed, where the outcome's corner is taken
  bool quiet = false;                     // drawn in the colours that QuietColour gives

  // In the order of drawing.
  constexpr std::array<const IconBadge*, 3> Badges() const { return {lowerRight, upperRight, lowerLeft}; }
};

}  // namespace quorvel::widgets
