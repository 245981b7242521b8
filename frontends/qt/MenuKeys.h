// How a pane is asked for its menu by the keyboard, and where it shows it then.
#pragma once

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>

namespace quorvel::qt {

// Some window systems make a context menu event of these keys, others, and other programs, do not.
inline bool IsMenuKey(const QKeyEvent& key) {
  const bool shifted = key.modifiers() == Qt::ShiftModifier;
  return (key.key() == Qt::Key_Menu && key.modifiers() == Qt::NoModifier) || (key.key() == Qt::Key_F10 && shifted);
}

// So that a key that comes in both ways asks once.
inline bool IsPopupUp() {
  return QApplication::activePopupWidget() != nullptr;
}

// Under the beginning of an item, within the viewport; its corner without an item.
inline QPoint BelowText(const QAbstractItemView& view, const QModelIndex& index) {
  if (!index.isValid()) return {};
  const QRect seen = view.visualRect(index).intersected(view.viewport()->rect());
  return seen.bottomLeft();
}

}  // namespace quorvel::qt
