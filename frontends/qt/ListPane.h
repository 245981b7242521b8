// Draws a list view: a table of whole rows that shows a million of them as fast as ten.
#pragma once

#include <QTableView>
#include <cstddef>
#include <cstdint>
#include <functional>

#include "qt/ListModel.h"
#include "widgets/ListView.h"

namespace quorvel::qt {

// What the user asks for; the owner of the list does it. An empty one means that nobody cares.
struct ListGestures {
  std::function<void(std::size_t)> columnClick = {};  // on a header, counted from 1
  std::function<void()> doubleClick = {};             // on the row that is selected now
  std::function<void(std::int32_t)> keyDown = {};     // Enter, as key code 13; other keys are the list's own
};

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

 private:
  void FollowHeaders();
  void FollowSelection();
  bool IsCurrentInSight() const;
  void WriteSelection();
  void FitRowHeight();

  widgets::ListView& list_;
  ListGestures gestures_;
  ListModel model_;
  bool following_ = false;      // what happens now comes from the list, not from the user
  bool doubleClicked_ = false;  // until the button comes up, which is still down over whatever the list shows now
};

}  // namespace quorvel::qt
