// Draws a list view: a table of whole rows that shows a million of them as fast as ten.
#pragma once

#include <QTableView>

#include "qt/ListModel.h"
#include "widgets/ListView.h"

namespace quorvel::qt {

// Which rows are selected is the list's to say; what the user selects is written to it as ranges.
class ListPane final : public QTableView, public widgets::ListObserver {
 public:
  // `list` must outlive the pane.
  explicit ListPane(widgets::ListView& list, QWidget* parent = nullptr);
  ~ListPane() override;
  ListPane(const ListPane&) = delete;
  ListPane& operator=(const ListPane&) = delete;

  void ListReset() override;
  void HeadersChanged() override;
  void RowsChanged(widgets::RowRange rows) override;
  void ListSelectionChanged() override;

 protected:
  void initViewItemOption(QStyleOptionViewItem* option) const override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void changeEvent(QEvent* event) override;

 private:
  void FollowHeaders();
  void FollowSelection();
  void WriteSelection();
  void FitRowHeight();

  widgets::ListView& list_;
  ListModel model_;
  bool following_ = false;  // what happens now comes from the list, not from the user
};

}  // namespace quorvel::qt
