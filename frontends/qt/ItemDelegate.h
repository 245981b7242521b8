// How an item of tree or list is painted: one line of text, and the whole text as a tool tip where it is cut off.
#pragma once

#include <QStyledItemDelegate>
#include <cstddef>

namespace quorvel::qt {

// The role under which a model gives as much of a text as is ever painted, where the whole may be large; other models
// answer with nothing, and Qt::DisplayRole is painted.
inline constexpr int kPaintedTextRole = Qt::UserRole;
// That much.
inline constexpr std::size_t kPaintedBytes = 4000;

class ItemDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  // The first line that is not blank, tabs as blanks, with an ellipsis where more follows. What no column is wide
  // enough for is left out: a cell may hold a report of a megabyte, whose width nobody should wait for.
  QString displayText(const QVariant& value, const QLocale& locale) const override;

  // The height of a line of text or of an icon, whichever is more, with air around it.
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  static int RowHeight(const QWidget& view);

  // Without the focus a pane shows its selection quietly, so that one sees where the keys go. For initViewItemOption of
  // the pane, which says so for whole rows.
  static void QuietenUnlessFocused(QStyleOptionViewItem& option, const QWidget& view);

  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace quorvel::qt
