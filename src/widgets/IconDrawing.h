// Short names for the shapes that icons are drawn with.
#pragma once

#include <array>
#include <cstddef>
#include <utility>

#include "widgets/IconShape.h"

namespace quorvel::widgets::glyphs {

using enum IconColour;

constexpr IconShape Polygon(IconColour colour, std::initializer_list<float> points) {
  return {ShapeKind::kPolygon, colour, 0, points};
}
constexpr IconShape Closed(IconColour colour, float width, std::initializer_list<float> points) {
  return {ShapeKind::kPolygon, colour, width, points};
}
constexpr IconShape Line(IconColour colour, float width, std::initializer_list<float> points) {
  return {ShapeKind::kPolyline, colour, width, points};
}
constexpr IconShape Disc(IconColour colour, float x, float y, float radius) {
  return {ShapeKind::kEllipse, colour, 0, {x, y, radius, radius}};
}
constexpr IconShape Ring(IconColour colour, float width, float x, float y, float radius) {
  return {ShapeKind::kEllipse, colour, width, {x, y, radius, radius}};
}
constexpr IconShape Oval(IconColour colour, float x, float y, float radiusX, float radiusY) {
  return {ShapeKind::kEllipse, colour, 0, {x, y, radiusX, radiusY}};
}
constexpr IconShape Arc(IconColour colour, float width, std::initializer_list<float> centreRadiiStartLength) {
  return {ShapeKind::kArc, colour, width, centreRadiiStartLength};
}
constexpr IconShape Box(IconColour colour, float x, float y, float width, float height, float corner) {
  return {ShapeKind::kBox, colour, 0, {x, y, width, height, corner}};
}
constexpr IconShape Outline(IconColour colour, float line, float x, float y, float width, float height, float corner) {
  return {ShapeKind::kBox, colour, line, {x, y, width, height, corner}};
}

// A glyph over another.
template <std::size_t N, std::size_t M>
constexpr std::array<IconShape, N + M> Join(const IconShape (&under)[N], const IconShape (&over)[M]) {
  return [&]<std::size_t... I, std::size_t... J>(std::index_sequence<I...>, std::index_sequence<J...>) {
    return std::array<IconShape, N + M>{under[I]..., over[J]...};
  }
  (std::make_index_sequence<N>(), std::make_index_sequence<M>());
}

}  // namespace quorvel::widgets::glyphs
