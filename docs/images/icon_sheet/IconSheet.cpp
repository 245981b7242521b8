#include "IconSheet.h"

#include <QFont>
#include <QFontMetrics>
#include <QPainter>
#include <QString>
#include <algorithm>
#include <string>
#include <vector>

#include "qt/GlyphIcon.h"
#include "widgets/IconGlyphs.h"

namespace quorvel::docs {
namespace {

// In pixels.
constexpr int kMargin = 24;
constexpr int kColumns = 4;  // the four kinds of a task stand side by side
constexpr int kRowHeight = 42;
constexpr int kCaptionHeight = 46;
constexpr int kPlateWidth = 72;
constexpr int kPlateHeight = 38;
constexpr int kBetweenPlates = 4;
constexpr int kSizes[] = {16, 32};
constexpr int kGap = 8;

constexpr QRgb kPaper = 0xFFF3F4F6;
constexpr QRgb kText = 0xFF1F2933;
constexpr QRgb kLight = 0xFFFFFFFF;
constexpr QRgb kDark = 0xFF1E2228;

QFont FontOf(int pixels, bool bold) {
  QFont font;
  font.setPixelSize(pixels);
  font.setBold(bold);
  return font;
}

QFont KeyFont() {
  return FontOf(11, false);
}

int WidthOfLongest(const std::vector<widgets::IconGroup>& groups) {
  const QFontMetrics metrics(KeyFont());
  int width = 0;
  for (const widgets::IconGroup& group : groups) {
    for (const std::string& key : group.keys) {
      width = std::max(width, metrics.horizontalAdvance(QString::fromStdString(key)));
    }
  }
  return width;
}

int RowsOf(const widgets::IconGroup& group) {
  return (static_cast<int>(group.keys.size()) + kColumns - 1) / kColumns;
}

void DrawPlate(QPainter& painter, QPoint at, const widgets::IconPicture& picture, bool dark) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(dark ? kDark : kLight));
  painter.drawRoundedRect(QRect(at, QSize(kPlateWidth, kPlateHeight)), 4, 4);
  int x = at.x() + kGap;
  for (const int size : kSizes) {
    painter.drawImage(x, at.y() + (kPlateHeight - size) / 2, qt::DrawIcon(picture, size, {.dark = dark, .base = {}}));
    x += size + kGap;
  }
}

void DrawCell(QPainter& painter, const QRect& cell, const std::string& key) {
  const auto picture = widgets::FindIcon(key);
  if (!picture) return;
  DrawPlate(painter, cell.topLeft(), *picture, false);
  DrawPlate(painter, cell.topLeft() + QPoint(kPlateWidth + kBetweenPlates, 0), *picture, true);
  painter.setFont(KeyFont());
  painter.setPen(QColor(kText));
  painter.drawText(cell.adjusted(2 * kPlateWidth + kBetweenPlates + kGap, 0, 0, kPlateHeight - kRowHeight),
                   Qt::AlignVCenter, QString::fromStdString(key));
}

// Returns where the next group begins.
int DrawGroup(QPainter& painter, int top, int cellWidth, const widgets::IconGroup& group) {
  painter.setFont(FontOf(16, true));
  painter.setPen(QColor(kText));
  const QString caption = QString::fromUtf8(group.caption.data(), static_cast<qsizetype>(group.caption.size()));
  painter.drawText(QRect(kMargin, top, cellWidth * kColumns, kCaptionHeight - 8), Qt::AlignBottom, caption);
  top += kCaptionHeight;
  for (std::size_t i = 0; i < group.keys.size(); ++i) {
    const int row = static_cast<int>(i) / kColumns;
    const int column = static_cast<int>(i) % kColumns;
    DrawCell(painter, {kMargin + column * cellWidth, top + row * kRowHeight, cellWidth, kRowHeight}, group.keys[i]);
  }
  return top + RowsOf(group) * kRowHeight;
}

}  // namespace

QImage DrawIconSheet() {
  const auto groups = widgets::IconGroups();
  const int cellWidth = 2 * kPlateWidth + kBetweenPlates + kGap + WidthOfLongest(groups) + 2 * kGap;
  int height = 2 * kMargin;
  for (const widgets::IconGroup& group : groups) height += kCaptionHeight + RowsOf(group) * kRowHeight;
  QImage sheet(2 * kMargin + kColumns * cellWidth, height, QImage::Format_RGB32);
  sheet.fill(QColor(kPaper));
  QPainter painter(&sheet);
  painter.setRenderHint(QPainter::Antialiasing);
  int top = kMargin / 2;
  for (const widgets::IconGroup& group : groups) top = DrawGroup(painter, top, cellWidth, group);
  return sheet;
}

}  // namespace quorvel::docs
