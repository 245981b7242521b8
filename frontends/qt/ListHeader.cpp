#include "qt/ListHeader.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QPainter>
#include <QRegion>
#include <QScrollBar>
#include <QTableView>
#include <algorithm>

#include "qt/Guard.h"

namespace quorvel::qt {

ListHeader::ListHeader(QWidget* table) : QHeaderView(Qt::Horizontal, table) {
  setSectionsClickable(true);
  setHighlightSections(false);
  setFocusPolicy(Qt::TabFocus);
}

int ListHeader::column() const {
  return std::clamp(column_, 0, std::max(count() - 1, 0));
}

void ListHeader::keyPressEvent(QKeyEvent* event) {
  Guarded([&] { event->setAccepted(count() > 0 && Handle(*event)); });
}

bool ListHeader::Handle(const QKeyEvent& event) {
  const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
  if (modifiers == Qt::ControlModifier) return Widen(event.key());
  if (modifiers != Qt::NoModifier) return false;
  switch (event.key()) {
    case Qt::Key_Left:
      Choose(column() - 1);
      return true;
    case Qt::Key_Right:
      Choose(column() + 1);
      return true;
    case Qt::Key_Home:
      Choose(0);
      return true;
    case Qt::Key_End:
      Choose(count() - 1);
      return true;
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
      emit sectionClicked(column());
      return true;
    case Qt::Key_Down:
      parentWidget()->setFocus(Qt::OtherFocusReason);
      return true;
    default:
      return false;
  }
}

bool ListHeader::Widen(int key) {
  constexpr int kStep = 10;  // pixels
  if (key != Qt::Key_Left && key != Qt::Key_Right) return false;
  const int width = sectionSize(column()) + (key == Qt::Key_Right ? kStep : -kStep);
  resizeSection(column(), std::max(width, minimumSectionSize()));
  return true;
}

void ListHeader::Choose(int column) {
  column_ = std::clamp(column, 0, count() - 1);
  QScrollBar& bar = *static_cast<QTableView*>(parentWidget())->horizontalScrollBar();
  const int left = sectionViewportPosition(column_);
  const int beyond = left + sectionSize(column_) - viewport()->width();
  // Of a column wider than the list its beginning.
  if (left < 0 || beyond > 0) bar.setValue(bar.value() + (left < 0 ? left : std::min(beyond, left)));
  setAccessibleName(model()->headerData(column_, Qt::Horizontal).toString());
  QAccessibleEvent moved(this, QAccessible::NameChanged);
  QAccessible::updateAccessibility(&moved);
  viewport()->update();
}

void ListHeader::focusInEvent(QFocusEvent* event) {
  Guarded([&] {
    QHeaderView::focusInEvent(event);
    if (count() > 0) Choose(column());
  });
}

void ListHeader::focusOutEvent(QFocusEvent* event) {
  Guarded([&] {
    QHeaderView::focusOutEvent(event);
    viewport()->update();
  });
}

void ListHeader::paintSection(QPainter* painter, const QRect& rect, int logicalIndex) const {
  Guarded([&] {
    // The style leaves a clip behind that lets nothing through.
    painter->save();
    QHeaderView::paintSection(painter, rect, logicalIndex);
    painter->restore();
    if (!hasFocus() || logicalIndex != column()) return;
    // Styles frame a button, but no part of a header.
    constexpr int kFrame = 2;
    QRegion frame(rect);
    frame -= rect.adjusted(kFrame, kFrame, -kFrame, -kFrame);
    for (const QRect& edge : frame) painter->fillRect(edge, palette().color(QPalette::Highlight));
  });
}

}  // namespace quorvel::qt
