#include "qt/GlyphIcon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "qt/Guard.h"

namespace quorvel::qt {
namespace {

using widgets::IconColour;
using widgets::IconPicture;
using widgets::IconShape;
using widgets::ShapeKind;

// Parts that a base in one colour keeps apart by how much of it they let through.
std::optional<qreal> ShareOfBase(IconColour colour) {
  switch (colour) {
    case IconColour::kInk:
    case IconColour::kAccent:
    case IconColour::kAlarm:
    case IconColour::kNone:
      return 1.0;
    case IconColour::kBody:
      return 0.25;
    case IconColour::kNoneBody:
      return 0.0;
    default:
      return {};
  }
}

QColor ColourOf(IconColour colour, const IconInk& ink) {
  if (const auto share = ShareOfBase(colour); ink.base && share) {
    QColor drawn = *ink.base;
    drawn.setAlphaF(static_cast<float>(*share));
    return drawn;
  }
  return QColor::fromRgb(widgets::IconRgb(colour, ink.dark));
}

QRectF Around(std::span<const float> centreAndRadii) {
  const auto n = centreAndRadii;
  return {n[0] - n[2], n[1] - n[3], 2 * n[2], 2 * n[3]};
}

QPainterPath PathOf(const IconShape& shape) {
  const auto n = shape.numbers();
  QPainterPath path;
  switch (shape.kind) {
    case ShapeKind::kEllipse:
      path.addEllipse(Around(n));
      break;
    case ShapeKind::kArc:
      path.arcMoveTo(Around(n), -n[4]);
      path.arcTo(Around(n), -n[4], -n[5]);
      break;
    case ShapeKind::kBox:
      path.addRoundedRect(QRectF(n[0], n[1], n[2], n[3]), n[4], n[4]);
      break;
    case ShapeKind::kPolygon:
    case ShapeKind::kPolyline:
      path.moveTo(n[0], n[1]);
      for (std::size_t i = 2; i + 1 < n.size(); i += 2) path.lineTo(n[i], n[i + 1]);
      if (shape.kind == ShapeKind::kPolygon) path.closeSubpath();
      break;
  }
  return path;
}

QPen PenOf(const QColor& colour, qreal width) {
  return {colour, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

void DrawGlyph(QPainter& painter, widgets::Glyph glyph, bool quiet, const IconInk& ink) {
  for (const IconShape& shape : glyph) {
    const QColor colour = ColourOf(quiet ? widgets::QuietColour(shape.colour) : shape.colour, ink);
    if (shape.stroke > 0) {
      painter.strokePath(PathOf(shape), PenOf(colour, shape.stroke));
    } else {
      painter.fillPath(PathOf(shape), colour);
    }
  }
}

// The outline, with a rim of that width around it.
void FillWithRim(QPainter& painter, const IconShape& outline, qreal rim, const QColor& colour) {
  const QPainterPath path = PathOf(outline);
  painter.fillPath(path, colour);
  painter.strokePath(path, PenOf(colour, 2 * rim));
}

void CutOut(QPainter& painter, const widgets::IconBadge& badge) {
  painter.setCompositionMode(QPainter::CompositionMode_Clear);
  FillWithRim(painter, badge.outline, widgets::kBadgeGap, Qt::black);
  painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

// On a highlight of its own colour a badge would be lost.
void DrawPlate(QPainter& painter, const widgets::IconBadge& badge, const QColor& colour) {
  FillWithRim(painter, badge.outline, widgets::kBadgeGap / 2, colour);
}

bool IsDark(const QColor& background) {
  return background.lightness() < 128;
}

IconInk InkOn(const QColor& background) {
  return {IsDark(background), {}};
}

// Draws itself where and as large as it is asked to; remembers the last few drawings, which a list repeats row by row.
class GlyphEngine : public QIconEngine {
 public:
  enum Face : std::size_t { kNormal, kOpen, kSelected };
  using Pictures = std::array<IconPicture, 3>;  // by Face

  explicit GlyphEngine(const Pictures& pictures) : pictures_(pictures) {}

  QIconEngine* clone() const override { return new GlyphEngine(*this); }
  QString key() const override { return QStringLiteral("quorvel-glyph"); }

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    Guarded([&] {
      const qreal ratio = painter->device()->devicePixelRatioF();
      const int side = std::min(rect.width(), rect.height());
      QPixmap drawing = Drawing(qRound(side * ratio), mode, state);
      drawing.setDevicePixelRatio(ratio);
      painter->drawPixmap(rect.x() + (rect.width() - side) / 2, rect.y() + (rect.height() - side) / 2, drawing);
    });
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    return GuardedOr(QPixmap(), [&] { return Drawing(std::min(size.width(), size.height()), mode, state); });
  }

 private:
  struct Order {
    Face face = kNormal;
    int pixels = 0;
    bool disabled = false;
    IconInk ink;
    friend bool operator==(const Order&, const Order&) = default;
  };
  struct Drawn {
    Order order;
    QPixmap drawing;
  };

  QPixmap Drawing(int pixels, QIcon::Mode mode, QIcon::State state) {
    constexpr std::size_t kRemembered = 8;
    const Order order = OrderFor(pixels, mode, state);
    const auto found = std::ranges::find(drawn_, order, &Drawn::order);
    if (found != drawn_.end()) return found->drawing;
    if (drawn_.size() == kRemembered) drawn_.erase(drawn_.begin());
    QImage image = DrawIcon(pictures_[order.face], pixels, order.ink);
    if (order.disabled) Fade(image);
    drawn_.push_back({order, QPixmap::fromImage(std::move(image))});
    return drawn_.back().drawing;
  }

  static Order OrderFor(int pixels, QIcon::Mode mode, QIcon::State state) {
    Order order{state == QIcon::On ? kOpen : kNormal, pixels, mode == QIcon::Disabled,
                InkOn(QGuiApplication::palette().color(QPalette::Base))};
    if (mode == QIcon::Selected || mode == QIcon::Active) order.face = kSelected;
    if (mode == QIcon::Selected) order.ink.base = QGuiApplication::palette().color(QPalette::HighlightedText);
    return order;
  }

  static void Fade(QImage& image) {
    QPainter painter(&image);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationIn);
    painter.fillRect(image.rect(), QColor(0, 0, 0, 110));
  }

  Pictures pictures_;
  std::vector<Drawn> drawn_;
};

QIcon MakeIcon(const IconKeys& keys) {
  const auto normal = widgets::FindIcon(keys.normal);
  if (!normal) return {};
  return QIcon(new GlyphEngine(
      {*normal, widgets::FindIcon(keys.open).value_or(*normal), widgets::FindIcon(keys.selected).value_or(*normal)}));
}

}  // namespace

QImage DrawIcon(const IconPicture& picture, int pixels, const IconInk& ink) {
  QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  const qreal scale = pixels / qreal{widgets::kIconGrid};
  painter.scale(scale, scale);
  DrawGlyph(painter, picture.base, picture.quiet, ink);
  for (const widgets::IconBadge* badge : picture.Badges()) {
    if (badge == nullptr) continue;
    CutOut(painter, *badge);
    const bool onPlate = ink.base && !badge->inBaseColours;
    if (onPlate) DrawPlate(painter, *badge, *ink.base);
    DrawGlyph(painter, badge->glyph, picture.quiet, onPlate ? InkOn(*ink.base) : ink);
  }
  return image;
}

const QIcon& GlyphIcons::Of(const IconKeys& keys) {
  const auto found = icons_.find(keys);
  if (found != icons_.end()) return found->second;
  Names names{std::string(keys.normal), std::string(keys.open), std::string(keys.selected)};
  return icons_.emplace(std::move(names), MakeIcon(keys)).first->second;
}

}  // namespace quorvel::qt
