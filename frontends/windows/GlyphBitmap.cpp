#include "windows/GlyphBitmap.h"

// GDI+ expects this one before it.
#include <objidl.h>

#include <gdiplus.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <span>
#include <vector>

#include "platform/Error.h"

namespace quorvel::windows {
namespace {

using widgets::IconColour;
using widgets::IconPicture;
using widgets::IconShape;
using widgets::ShapeKind;

// Parts that a base in one colour keeps apart by how much of it they let through.
std::optional<float> ShareOfBase(IconColour colour) {
  switch (colour) {
    case IconColour::kInk:
    case IconColour::kAccent:
    case IconColour::kAlarm:
    case IconColour::kNone:
      return 1.0F;
    case IconColour::kBody:
      return 0.25F;
    case IconColour::kNoneBody:
      return 0.0F;
    default:
      return {};
  }
}

Gdiplus::Color Opaque(std::uint32_t rgb) {
  return Gdiplus::Color(0xFF000000U | rgb);
}

Gdiplus::Color ColourOf(IconColour colour, const IconInk& ink) {
  if (const auto share = ShareOfBase(colour); ink.base && share) {
    const auto alpha = static_cast<std::uint32_t>(std::lround(*share * 255));
    return Gdiplus::Color((alpha << 24) | *ink.base);
  }
  return Opaque(widgets::IconRgb(colour, ink.dark));
}

void AddRoundedBox(Gdiplus::GraphicsPath& path, std::span<const float> n) {
  const float left = n[0];
  const float top = n[1];
  const float right = n[0] + n[2];
  const float bottom = n[1] + n[3];
  const float side = 2 * n[4];
  if (side <= 0) {
    path.AddRectangle(Gdiplus::RectF(left, top, n[2], n[3]));
    return;
  }
  path.AddArc(left, top, side, side, 180, 90);
  path.AddArc(right - side, top, side, side, 270, 90);
  path.AddArc(right - side, bottom - side, side, side, 0, 90);
  path.AddArc(left, bottom - side, side, side, 90, 90);
  path.CloseFigure();
}

void AddPoints(Gdiplus::GraphicsPath& path, std::span<const float> n) {
  Gdiplus::PointF points[IconShape::kMost / 2];
  int count = 0;
  for (std::size_t i = 0; i + 1 < n.size(); i += 2) points[count++] = Gdiplus::PointF(n[i], n[i + 1]);
  path.AddLines(points, count);
}

void AddShape(Gdiplus::GraphicsPath& path, const IconShape& shape) {
  const auto n = shape.numbers();
  switch (shape.kind) {
    case ShapeKind::kEllipse:
      path.AddEllipse(n[0] - n[2], n[1] - n[3], 2 * n[2], 2 * n[3]);
      break;
    case ShapeKind::kArc:
      path.AddArc(n[0] - n[2], n[1] - n[3], 2 * n[2], 2 * n[3], n[4], n[5]);
      break;
    case ShapeKind::kBox:
      AddRoundedBox(path, n);
      break;
    case ShapeKind::kPolygon:
      AddPoints(path, n);
      path.CloseFigure();
      break;
    case ShapeKind::kPolyline:
      AddPoints(path, n);
      break;
  }
}

void Stroke(Gdiplus::Graphics& graphics, const Gdiplus::GraphicsPath& path, const Gdiplus::Color& colour, float width) {
  Gdiplus::Pen pen(colour, width);
  pen.SetLineCap(Gdiplus::LineCapRound, Gdiplus::LineCapRound, Gdiplus::DashCapRound);
  pen.SetLineJoin(Gdiplus::LineJoinRound);
  graphics.DrawPath(&pen, &path);
}

void Fill(Gdiplus::Graphics& graphics, const Gdiplus::GraphicsPath& path, const Gdiplus::Color& colour) {
  const Gdiplus::SolidBrush brush(colour);
  graphics.FillPath(&brush, &path);
}

void DrawGlyph(Gdiplus::Graphics& graphics, widgets::Glyph glyph, bool quiet, const IconInk& ink) {
  for (const IconShape& shape : glyph) {
    const Gdiplus::Color colour = ColourOf(quiet ? widgets::QuietColour(shape.colour) : shape.colour, ink);
    if (colour.GetAlpha() == 0) continue;
    Gdiplus::GraphicsPath path;
    AddShape(path, shape);
    if (shape.stroke > 0) {
      Stroke(graphics, path, colour, shape.stroke);
    } else {
      Fill(graphics, path, colour);
    }
  }
}

// The outline, with a rim of that width around it.
void FillWithRim(Gdiplus::Graphics& graphics, const IconShape& outline, float rim, const Gdiplus::Color& colour) {
  Gdiplus::GraphicsPath path;
  AddShape(path, outline);
  Fill(graphics, path, colour);
  Stroke(graphics, path, colour, 2 * rim);
}

void CutOut(Gdiplus::Graphics& graphics, const widgets::IconBadge& badge) {
  graphics.SetCompositingMode(Gdiplus::CompositingModeSourceCopy);
  FillWithRim(graphics, badge.outline, widgets::kBadgeGap, Gdiplus::Color(0));
  graphics.SetCompositingMode(Gdiplus::CompositingModeSourceOver);
}

bool IsDark(std::uint32_t rgb) {
  const std::uint32_t channels[] = {(rgb >> 16) & 0xFF, (rgb >> 8) & 0xFF, rgb & 0xFF};
  const auto [least, most] = std::minmax_element(std::begin(channels), std::end(channels));
  return (*least + *most) / 2 < 128;
}

void DrawPicture(Gdiplus::Graphics& graphics, const IconPicture& picture, const IconInk& ink) {
  DrawGlyph(graphics, picture.base, picture.quiet, ink);
  for (const widgets::IconBadge* badge : picture.Badges()) {
    if (badge == nullptr) continue;
    CutOut(graphics, *badge);
    // On a highlight of its own colour a badge would be lost: it stands on a plate.
    const bool onPlate = ink.base && !badge->inBaseColours;
    if (onPlate) FillWithRim(graphics, badge->outline, widgets::kBadgeGap / 2, Opaque(*ink.base));
    DrawGlyph(graphics, badge->glyph, picture.quiet, onPlate ? IconInk{IsDark(*ink.base), {}} : ink);
  }
}

// The picture is drawn this many times as large, and each pixel is the mean of a square of so many.
constexpr int kFiner = 8;

using Pixels = std::vector<std::uint32_t>;

// Not every implementation of GDI+ smooths the edges of what it fills.
Pixels DrawLarge(const IconPicture& picture, int pixels, const IconInk& ink) {
  const int side = pixels * kFiner;
  Pixels drawn(static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
  Gdiplus::Bitmap bitmap(side, side, 4 * side, PixelFormat32bppPARGB, reinterpret_cast<BYTE*>(drawn.data()));
  Gdiplus::Graphics graphics(&bitmap);
  graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
  const float scale = static_cast<float>(side) / widgets::kIconGrid;
  graphics.ScaleTransform(scale, scale);
  DrawPicture(graphics, picture, ink);
  graphics.Flush(Gdiplus::FlushIntentionSync);
  return drawn;
}

std::uint32_t MeanOf(const Pixels& large, std::size_t stride, std::size_t first) {
  std::array<std::uint32_t, 4> sums{};
  for (std::size_t y = 0; y < kFiner; ++y) {
    for (std::size_t x = 0; x < kFiner; ++x) {
      const std::uint32_t pixel = large[first + y * stride + x];
      for (unsigned channel = 0; channel < 4; ++channel) sums[channel] += (pixel >> (8 * channel)) & 0xFF;
    }
  }
  std::uint32_t mean = 0;
  constexpr std::uint32_t kSamples = kFiner * kFiner;
  for (unsigned channel = 0; channel < 4; ++channel)
    mean |= ((sums[channel] + kSamples / 2) / kSamples) << (8 * channel);
  return mean;
}

std::uint32_t Straight(std::uint32_t pixel) {
  const std::uint32_t alpha = pixel >> 24;
  if (alpha == 0) return 0;
  const auto channel = [&](unsigned shift) {
    const std::uint32_t value = (pixel >> shift) & 0xFF;
    return std::min((value * 255 + alpha / 2) / alpha, 255U) << shift;
  };
  return alpha << 24 | channel(16) | channel(8) | channel(0);
}

struct DibSection {
  UniqueBitmap bitmap;
  std::uint32_t* bits;
};

// With its first row at the top.
DibSection NewBitmap(int width, int height) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof(info.bmiHeader);
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  void* bits = nullptr;
  UniqueBitmap bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (!bitmap) throw Error(SystemError::kOutOfMemory, "No memory for an icon");
  return {std::move(bitmap), static_cast<std::uint32_t*>(bits)};
}

}  // namespace

GdiPlus::GdiPlus() {
  const Gdiplus::GdiplusStartupInput input;
  if (Gdiplus::GdiplusStartup(&token_, &input, nullptr) == Gdiplus::Ok) return;
  throw Error(SystemError::kOutOfMemory, "Icons cannot be drawn");
}

GdiPlus::~GdiPlus() {
  Gdiplus::GdiplusShutdown(token_);
}

UniqueBitmap DrawIcon(const IconPicture& picture, const IconForm& form, const IconInk& ink) {
  const GdiPlus running;
  const Pixels large = DrawLarge(picture, form.pixels, ink);
  const int width = form.pixels + form.airAtRight;
  DibSection section = NewBitmap(width, form.pixels);
  const auto side = static_cast<std::size_t>(form.pixels);
  const std::size_t stride = side * kFiner;
  for (std::size_t y = 0; y < side; ++y) {
    std::uint32_t* const line = section.bits + y * static_cast<std::size_t>(width);
    for (std::size_t x = 0; x < side; ++x) {
      const std::uint32_t mean = MeanOf(large, stride, (y * stride + x) * kFiner);
      line[x] = form.colours == BitmapColours::kStraight ? Straight(mean) : mean;
    }
  }
  return std::move(section.bitmap);
}

}  // namespace quorvel::windows
