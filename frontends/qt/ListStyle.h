// How the cells and headers of a list are drawn: with air between columns, and the arrow of a sorted column beside its
// caption.
#pragma once

#include <QProxyStyle>

class QStyleOptionHeader;

namespace quorvel::qt {

// The application's style, but for that. For the list and for its header.
class ListStyle final : public QProxyStyle {
 public:
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                         const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;

 private:
  void DrawHeaderLabel(const QStyleOptionHeader& header, QPainter& painter) const;
};

}  // namespace quorvel::qt
