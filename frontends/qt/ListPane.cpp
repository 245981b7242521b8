#include "qt/ListPane.h"

#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QSignalBlocker>
#include <algorithm>
#include <optional>
#include <utility>

#include "qt/Convert.h"
#include "qt/Guard.h"
#include "qt/ItemDelegate.h"
#include "qt/ListStyle.h"

namespace quorvel::qt {
namespace {

// Calls a handler that may be missing.
template <class Handler, class... Values>
void Tell(const Handler& handler, Values... values) {
  if (handler) handler(values...);
}

}  // namespace

using widgets::RowRange;
using widgets::RowRanges;

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
  horizontalHeader()->setHighlightSections(false);
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
  const QScopedValueRollback following(following_, true);
  list_.SetSelection(std::move(rows), item);
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
    QTableView::selectionChanged(selected, deselected);
    if (!following_) WriteSelection();
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
    QTableView::mousePressEvent(event);
  });
}

void ListPane::mouseMoveEvent(QMouseEvent* event) {
  Guarded([&] {
    if (!doubleClicked_) QTableView::mouseMoveEvent(event);
  });
}

void ListPane::mouseReleaseEvent(QMouseEvent* event) {
  Guarded([&] {
    doubleClicked_ = false;
    QTableView::mouseReleaseEvent(event);
  });
}

void ListPane::mouseDoubleClickEvent(QMouseEvent* event) {
  Guarded([&] {
    const QModelIndex index = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !index.isValid()) return QTableView::mouseDoubleClickEvent(event);
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    doubleClicked_ = true;
    Tell(gestures_.doubleClick);
  });
}

void ListPane::keyPressEvent(QKeyEvent* event) {
  Guarded([&] {
    constexpr std::int32_t kEnter = 13;
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool alone = (event->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (!enter || !alone) return QTableView::keyPressEvent(event);
    event->accept();
    Tell(gestures_.keyDown, kEnter);
  });
}

void ListPane::FitRowHeight() {
  const int height = ItemDelegate::RowHeight(*this);
  verticalHeader()->setMinimumSectionSize(height);
  verticalHeader()->setDefaultSectionSize(height);
}

}  // namespace quorvel::qt
