#include "qt/ListPane.h"

#include <QAccessible>
#include <QContextMenuEvent>
#include <QEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPersistentModelIndex>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include "qt/Convert.h"
#include "qt/Guard.h"
#include "qt/ItemDelegate.h"
#include "qt/ListHeader.h"
#include "qt/ListStyle.h"
#include "qt/MenuKeys.h"

namespace quorvel::qt {
namespace {

// A key alone that goes to another row.
bool IsMove(const QKeyEvent& key) {
  constexpr int kMoves[] = {Qt::Key_Up, Qt::Key_Down, Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown};
  const bool alone = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
  return alone && std::ranges::find(kMoves, key.key()) != std::end(kMoves);
}

}  // namespace

using widgets::RowRange;
using widgets::RowRanges;

// While one lives, the owner does not hear of the selection: a press changes it in several steps.
class ListPane::Gesture {
 public:
  explicit Gesture(ListPane& pane) : pane_(pane) { ++pane_.gestureDepth_; }
  ~Gesture() {
    --pane_.gestureDepth_;
    Guarded([&] { pane_.TellSelection(); });
  }
  Gesture(const Gesture&) = delete;
  Gesture& operator=(const Gesture&) = delete;

 private:
  ListPane& pane_;
};

ListPane::ListPane(widgets::ListView& list, ListGestures gestures, QWidget* parent)
    : QTableView(parent), list_(list), gestures_(std::move(gestures)), model_(list) {
  setItemDelegate(new ItemDelegate(this));
  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setShowGrid(false);
  setWordWrap(false);
  setTabKeyNavigation(false);
  setCornerButtonEnabled(false);
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollMode(ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  setHorizontalHeader(new ListHeader(this));
  horizontalHeader()->setMinimumSectionSize(24);
  auto* const style = new ListStyle;
  style->setParent(this);
  setStyle(style);
  horizontalHeader()->setStyle(style);
  FitRowHeight();
  setModel(&model_);
  connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column, int /*before*/, int width) {
    if (following_) return;
    Guarded([&] { list_.SetHeaderWidth(static_cast<std::size_t>(column), ToTwips(width)); });
  });
  connect(horizontalHeader(), &QHeaderView::sectionClicked, this,
          [this](int column) { Guarded([&] { Tell(gestures_.columnClick, static_cast<std::size_t>(column) + 1); }); });
  list_.ObserveList(this);
  ListPane::ListReset();
}

ListPane::~ListPane() {
  list_.ObserveList(nullptr);
}

void ListPane::ListReset() {
  Guarded([&] {
    const QScopedValueRollback following(following_, true);
    model_.Reset();
    {
      // The layout below places all columns; told of each width, the table would paint a second time for them.
      const QSignalBlocker quiet(horizontalHeader());
      FollowHeaders();
    }
    if (!list_.SelectedItem()) scrollToTop();
    FollowSelection();
    scheduleDelayedItemsLayout();
    executeDelayedItemsLayout();
  });
}

void ListPane::HeadersChanged() {
  Guarded([&] {
    const QScopedValueRollback following(following_, true);
    const bool sameColumns = model_.HeadersChanged();
    FollowHeaders();
    if (!sameColumns) FollowSelection();
  });
}

void ListPane::RowsReordered() {
  Guarded([&] {
    const QScopedValueRollback following(following_, true);
    // A selected row that the user sees stays in sight; else the list stays where it was scrolled to.
    setAutoScroll(IsCurrentInSight());
    // Emptied first: Qt would compare each range of the selection before with each one now.
    selectionModel()->reset();
    model_.RowsChanged({0, list_.Count()});
    FollowSelection();
    setAutoScroll(true);
  });
}

void ListPane::RowsChanged(RowRange rows) {
  Guarded([&] { model_.RowsChanged(rows); });
}

void ListPane::ListSelectionChanged() {
  if (following_) return;
  Guarded([&] { FollowSelection(); });
}

void ListPane::ListScrolled(const widgets::ListCorner& corner) {
  Guarded([&] {
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(verticalHeader()->sectionPosition(static_cast<int>(corner.row)));
    horizontalScrollBar()->setValue(ToPixels(corner.left));
  });
}

widgets::ListCorner ListPane::CornerInSight() const {
  return {static_cast<std::size_t>(std::max(rowAt(0), 0)), ToTwips(horizontalScrollBar()->value())};
}

void ListPane::FollowHeaders() {
  for (std::size_t column = 0; column < list_.headers().size(); ++column) {
    horizontalHeader()->resizeSection(static_cast<int>(column), ToPixels(list_.headers()[column].width));
  }
  // A single column as wide as the list stands a frame and a scroll bar over; scrolling would bring nothing to light.
  const bool fits = list_.headers().size() == 1 && list_.headers().front().width <= list_.bounds().width;
  setHorizontalScrollBarPolicy(fits ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded);
}

void ListPane::FollowSelection() {
  const QScopedValueRollback following(following_, true);
  const int lastColumn = static_cast<int>(list_.headers().size()) - 1;
  if (lastColumn < 0) return;
  QItemSelection selection;
  for (const RowRange& rows : list_.Selection().ranges()) {
    selection.select(model_.index(static_cast<int>(rows.first), 0),
                     model_.index(static_cast<int>(rows.last) - 1, lastColumn));
  }
  selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect);
  const auto item = list_.SelectedItem();
  // The first cell stands for its row: going to the row does not mean going to its beginning.
  const int scrolledTo = horizontalScrollBar()->value();
  selectionModel()->setCurrentIndex(item ? model_.index(static_cast<int>(*item), 0) : QModelIndex(),
                                    QItemSelectionModel::NoUpdate);
  horizontalScrollBar()->setValue(scrolledTo);
}

bool ListPane::IsCurrentInSight() const {
  if (!currentIndex().isValid()) return false;
  const int top = rowViewportPosition(currentIndex().row());
  return top >= 0 && top + rowHeight(currentIndex().row()) <= viewport()->height();
}

void ListPane::WriteSelection() {
  RowRanges rows;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    rows.Add({static_cast<std::size_t>(range.top()), static_cast<std::size_t>(range.bottom()) + 1});
  }
  std::optional<std::size_t> item;
  if (currentIndex().isValid()) item = static_cast<std::size_t>(currentIndex().row());
  if (item && !rows.Contains(*item)) item.reset();
  const RowRanges rowsBefore = list_.Selection();
  const auto itemBefore = list_.SelectedItem();
  {
    const QScopedValueRollback following(following_, true);
    list_.SetSelection(std::move(rows), item);
  }
  if (list_.Selection() != rowsBefore || list_.SelectedItem() != itemBefore) selectionWritten_ = true;
  TellSelection();
}

void ListPane::TellSelection() {
  if (gestureDepth_ == 0 && std::exchange(selectionWritten_, false)) Tell(gestures_.selectionChanged);
}

void ListPane::MouseDown(MouseButton button, const QModelIndex& index) {
  Tell(gestures_.mouseDown, button,
       index.isValid() ? std::optional(static_cast<std::size_t>(index.row())) : std::nullopt);
}

void ListPane::OpenMenuByKey() {
  const auto item = list_.SelectedItem();
  const QModelIndex index = item ? model_.index(static_cast<int>(*item), 0) : QModelIndex();
  if (index.isValid()) scrollTo(index);
  menuPlace_ = viewport()->mapToGlobal(BelowText(*this, index));
  MouseDown(MouseButton::kRight, index);
}

void ListPane::initViewItemOption(QStyleOptionViewItem* option) const {
  Guarded([&] {
    QTableView::initViewItemOption(option);
    ItemDelegate::QuietenUnlessFocused(*option, *this);
  });
}

QModelIndex ListPane::moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) {
  // Rows are what there is to move among: cells of a row are not.
  switch (action) {
    case MoveHome:
      return model_.index(0, 0);
    case MoveEnd:
      return model_.index(model_.rowCount({}) - 1, 0);
    case MoveLeft:
      horizontalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
      return currentIndex();
    case MoveRight:
      horizontalScrollBar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
      return currentIndex();
    default:
      return QTableView::moveCursor(action, modifiers);
  }
}

void ListPane::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  Guarded([&] {
    // QTableView itself would make an index of every selected cell, to tell a screen reader of the first one.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QAbstractItemView::selectionChanged(selected, deselected);
    QAccessibleEvent told(this, QAccessible::SelectionWithin);
    QAccessible::updateAccessibility(&told);
    if (following_) return;
    WriteSelection();
    // A screen reader selects without going anywhere; the keys go on from there.
    if (gestureDepth_ == 0) FollowSelection();
  });
}

void ListPane::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  Guarded([&] {
    QTableView::currentChanged(current, previous);
    if (!following_) WriteSelection();
  });
}

void ListPane::changeEvent(QEvent* event) {
  Guarded([&] {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) FitRowHeight();
  });
}

void ListPane::mousePressEvent(QMouseEvent* event) {
  Guarded([&] {
    doubleClicked_ = false;
    // The owner selects what the right button is pressed on.
    if (event->button() != Qt::RightButton) {
      const Gesture gesture(*this);
      QTableView::mousePressEvent(event);
    }
    menuPlace_ = event->globalPosition().toPoint();
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() == Qt::LeftButton) MouseDown(MouseButton::kLeft, index);
    if (event->button() == Qt::RightButton) MouseDown(MouseButton::kRight, index);
  });
}

void ListPane::mouseMoveEvent(QMouseEvent* event) {
  Guarded([&] {
    const Gesture gesture(*this);
    if (!doubleClicked_) QTableView::mouseMoveEvent(event);
  });
}

void ListPane::mouseReleaseEvent(QMouseEvent* event) {
  Guarded([&] {
    const Gesture gesture(*this);
    doubleClicked_ = false;
    if (event->button() != Qt::RightButton) QTableView::mouseReleaseEvent(event);
  });
}

void ListPane::mouseDoubleClickEvent(QMouseEvent* event) {
  Guarded([&] {
    const QModelIndex index = indexAt(event->position().toPoint());
    // The second press of a quick pair is a press like any other there.
    if (event->button() != Qt::LeftButton) return mousePressEvent(event);
    if (!index.isValid()) return QTableView::mouseDoubleClickEvent(event);
    {
      const Gesture gesture(*this);
      selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    }
    doubleClicked_ = true;
    Tell(gestures_.doubleClick);
  });
}

void ListPane::keyPressEvent(QKeyEvent* event) {
  Guarded([&] {
    constexpr std::int32_t kEnter = 13;
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool alone = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    event->accept();
    if (enter && alone) return Tell(gestures_.keyDown, kEnter);
    if (event->matches(QKeySequence::Copy)) return Tell(gestures_.copy);
    if (event->matches(QKeySequence::SelectAll)) return Tell(gestures_.selectAll);
    if (IsMenuKey(*event)) return OpenMenuByKey();
    const Gesture gesture(*this);
    BeginAtTheFirstRow(*event);
    const QPersistentModelIndex before(currentIndex());
    QTableView::keyPressEvent(event);
    // At the end of its way a key still means that one row.
    if (!IsMove(*event) || currentIndex() != before) return;
    selectionModel()->select(before, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  });
}

void ListPane::keyboardSearch(const QString& search) {
  Guarded([&] {
    const auto row = typed_.Type(search).FindRow(list_, list_.SelectedItem());
    if (!row) return;
    const Gesture gesture(*this);
    selectionModel()->setCurrentIndex(model_.index(static_cast<int>(*row), 0),
                                      QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
  });
}

// With the focus the first row becomes the current one without being selected; going down from it would pass it over.
void ListPane::BeginAtTheFirstRow(const QKeyEvent& key) {
  if (!IsMove(key)) return;
  if (list_.SelectedItem() || currentIndex().row() != 0) return;
  const QScopedValueRollback following(following_, true);
  selectionModel()->clearCurrentIndex();
}

void ListPane::contextMenuEvent(QContextMenuEvent* event) {
  Guarded([&] {
    if (event->reason() == QContextMenuEvent::Keyboard && !IsPopupUp()) OpenMenuByKey();
  });
}

void ListPane::FitRowHeight() {
  const int height = ItemDelegate::RowHeight(*this);
  verticalHeader()->setMinimumSectionSize(height);
  verticalHeader()->setDefaultSectionSize(height);
}

}  // namespace quorvel::qt
