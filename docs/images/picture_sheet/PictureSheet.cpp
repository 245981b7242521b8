#include "PictureSheet.h"

#include <QColor>
#include <QFont>
#include <QPainter>
#include <QPoint>
#include <QSize>
#include <algorithm>

namespace quorvel::docs {
namespace {

// In pixels.
constexpr int kMargin = 16;
constexpr int kGap = 16;
constexpr int kCaptionHeight = 28;
constexpr int kCaptionSize = 14;

constexpr QRgb kPaper = 0xFFC9CED6;
constexpr QRgb kText = 0xFF1F2933;

// Where each picture's caption begins, and how large a sheet they need.
struct Arrangement {
  std::vector<QPoint> places;
  QSize size;
};

Arrangement Arrange(const std::vector<CaptionedPicture>& pictures) {
  int widest = 0;
  for (const CaptionedPicture& each : pictures) widest = std::max(widest, each.picture.width());
  const int right = kMargin + widest + kGap;
  Arrangement arrangement;
  QPoint at(kMargin, kMargin / 2);
  int rowHeight = 0;
  for (const CaptionedPicture& each : pictures) {
    if (at.x() > kMargin && at.x() + each.picture.width() > right) {
      at = {kMargin, at.y() + rowHeight};
      rowHeight = 0;
    }
    arrangement.places.push_back(at);
    at.rx() += each.picture.width() + kGap;
    rowHeight = std::max(rowHeight, kCaptionHeight + each.picture.height());
  }
  arrangement.size = {right + kMargin, at.y() + rowHeight + kMargin};
  return arrangement;
}

}  // namespace

QImage DrawPictureSheet(const std::vector<CaptionedPicture>& pictures) {
  const Arrangement arrangement = Arrange(pictures);
  QImage sheet(arrangement.size, QImage::Format_RGB32);
  sheet.fill(QColor(kPaper));
  QPainter painter(&sheet);
  QFont font;
  font.setPixelSize(kCaptionSize);
  painter.setFont(font);
  painter.setPen(QColor(kText));
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    const QPoint at = arrangement.places[i];
    const QRect caption(at, QSize(pictures[i].picture.width(), kCaptionHeight));
    painter.drawText(caption, Qt::AlignVCenter, pictures[i].caption);
    painter.drawImage(at + QPoint(0, kCaptionHeight), pictures[i].picture);
  }
  return sheet;
}

}  // namespace quorvel::docs
