#include "qt/ListStyle.h"

#include <QPainter>
#include <QStyleOption>
#include <algorithm>

#include "qt/Guard.h"

namespace quorvel::qt {
namespace {

// Pixels from a column's edges to its text, where numbers end further from the text that begins beside them.
constexpr int kHeaderMargin = 5;
constexpr int kMoreBesideNumbers = 3;
// The style keeps three pixels free at both sides of a cell; these go on top, so that cells and captions are in line.
constexpr int kMoreBeforeText = kHeaderMargin - 3;
constexpr int kMoreAfterNumbers = kHeaderMargin + kMoreBesideNumbers - 3;

bool IsRightAligned(Qt::Alignment alignment) {
  return alignment.testFlag(Qt::AlignRight);
}

// One sees that a header can be pressed, and that it is.
void ShadeHeader(const QStyleOption& header, QPainter& painter) {
  constexpr int kPressed = 36;
  constexpr int kUnderPointer = 14;
  const bool pressed = header.state.testFlag(QStyle::State_Sunken);
  if (!pressed && !header.state.testFlag(QStyle::State_MouseOver)) return;
  QColor shade = header.palette.color(QPalette::ButtonText);
  shade.setAlpha(pressed ? kPressed : kUnderPointer);
  painter.fillRect(header.rect, shade);
}

}  // namespace

int ListStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  return metric == PM_HeaderMargin ? kHeaderMargin : QProxyStyle::pixelMetric(metric, option, widget);
}

QRect ListStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
  const QRect rect = QProxyStyle::subElementRect(element, option, widget);
  const auto* const item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
  if (element != SE_ItemViewItemText || item == nullptr) return rect;
  return IsRightAligned(item->displayAlignment) ? rect.adjusted(0, 0, -kMoreAfterNumbers, 0)
                                                : rect.adjusted(kMoreBeforeText, 0, 0, 0);
}

QSize ListStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
  const QSize wanted = QProxyStyle::sizeFromContents(type, option, size, widget);
  const int more = type == CT_ItemViewItem    ? std::max(kMoreBeforeText, kMoreAfterNumbers)
                   : type == CT_HeaderSection ? kMoreBesideNumbers
                                              : 0;
  return wanted + QSize(more, 0);
}

void ListStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
  Guarded([&] {
    const auto* const header = qstyleoption_cast<const QStyleOptionHeader*>(option);
    if (element == CE_HeaderLabel && header != nullptr) return DrawHeaderLabel(*header, *painter);
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_HeaderSection) ShadeHeader(*option, *painter);
  });
}

void ListStyle::DrawHeaderLabel(const QStyleOptionHeader& header, QPainter& painter) const {
  const bool right = IsRightAligned(header.textAlignment);
  // What stands at the right may come close to the left edge before it is cut off.
  const QRect room = right ? header.rect.adjusted(1 - kHeaderMargin, 0, -kMoreBesideNumbers, 0) : header.rect;
  const int arrow = header.icon.isNull() ? 0 : pixelMetric(PM_SmallIconSize, &header, nullptr);
  // A quarter of the picture is free at either side of the arrow: one parts it from the caption.
  const int arrowRoom = arrow * 3 / 4;
  const QString caption =
      header.fontMetrics.elidedText(header.text, Qt::ElideRight, std::max(room.width() - arrowRoom, 0));
  const QSize size(header.fontMetrics.horizontalAdvance(caption), room.height());
  const QRect place = alignedRect(Qt::LeftToRight, header.textAlignment, size, room);
  drawItemText(&painter, place, Qt::AlignCenter, header.palette, header.state.testFlag(State_Enabled), caption,
               QPalette::ButtonText);
  // On the side where the caption leaves room, so that it stays in line with the cells.
  const int x = right ? place.left() - arrow : place.right() + 1;
  header.icon.paint(&painter, x, room.top() + (room.height() - arrow) / 2, arrow, arrow);
}

}  // namespace quorvel::qt
