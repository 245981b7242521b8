// Draws a list view: a table of whole rows that shows a million of them as fast as ten.
#pragma once

#include <QTableView>
#include <cstddef>

#include "control/Gestures.h"
#include "qt/ListModel.h"
#include "qt/TypeAhead.h"
#include "widgets/ListView.h"

namespace quorvel::qt {

// Which rows are selected is the list's to say; what the user selects is written to it as ranges.
class ListPane final : public QTableView, public widgets::ListObserver {
 public:
  // `list` must outlive the pane.
  explicit ListPane(widgets::ListView& list, ListGestures gestures = {}, QWidget* parent = nullptr);
  ~ListPane() override;
  ListPane(const ListPane&) = delete;
  ListPane& operator=(const ListPane&) = delete;

  void ListReset() override;
  void HeadersChanged() override;
  void RowsReordered() override;
  void RowsChanged(widgets::RowRange rows) override;
  void ListSelectionChanged() override;
  void ListScrolled(const widgets::ListCorner& corner) override;
  widgets::ListCorner CornerInSight() const override;

  // Where on the screen the menu belongs that was asked for last.
  QPoint menuPlace() const { return menuPlace_; }

  void keyboardSearch(const QString& search) override;

 protected:
  void initViewItemOption(QStyleOptionViewItem* option) const override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void changeEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  class Gesture;

  void FollowHeaders();
  void FollowSelection();
  bool IsCurrentInSight() const;
  void WriteSelection();
  void TellSelection();
  void MouseDown(MouseButton button, const QModelIndex& index);
  void OpenMenuByKey();
  void BeginAtTheFirstRow(const QKeyEvent& key);
  void FitRowHeight();

  widgets::ListView& list_;
  ListGestures gestures_;
  ListModel model_;
  bool following_ = false;  // what happens now comes from the list, not from the user
  int gestureDepth_ = 0;
  bool selectionWritten_ = false;  // by the user; the owner hears of it when the gesture ends
  QPoint menuPlace_;
  TypedLetters typed_;
  bool doubleClicked_ = false;  // until the button comes up, which is still down over whatever the list shows now
};

}  // namespace quorvel::qt
