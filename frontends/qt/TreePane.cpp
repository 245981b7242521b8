#include "qt/TreePane.h"

#include <QContextMenuEvent>
#include <QHeaderView>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPersistentModelIndex>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <utility>
#include <vector>

#include "qt/Guard.h"
#include "qt/ItemDelegate.h"
#include "qt/MenuKeys.h"

namespace quorvel::qt {

using widgets::NodeId;

TreePane::TreePane(widgets::TreeView& tree, TreeGestures gestures, QWidget* parent)
    : QTreeView(parent), tree_(tree), gestures_(std::move(gestures)), model_(tree) {
  setItemDelegate(new ItemDelegate(this));
  setModel(&model_);
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setEditTriggers(NoEditTriggers);
  setSelectionMode(SingleSelection);
  setVerticalScrollMode(ScrollPerPixel);
  setIndentation(18);
  // Only what is on the screen is measured.
  header()->setResizeContentsPrecision(0);
  connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { updateGeometries(); });
  connect(this, &QTreeView::expanded, this, [this](const QModelIndex& index) { OpenedByUser(index, true); });
  connect(this, &QTreeView::collapsed, this, [this](const QModelIndex& index) { OpenedByUser(index, false); });
  tree_.ObserveTree(this);
  TreePane::TreeReset();
}

TreePane::~TreePane() {
  tree_.ObserveTree(nullptr);
}

void TreePane::TreeReset() {
  Guarded([&] {
    const QScopedValueRollback following(following_, true);
    model_.Reset();
    header()->setMinimumSectionSize(-1);
    // With a layout due anyway, opening nodes does not make one for each.
    scheduleDelayedItemsLayout();
    FollowOpenChildren(NodeId::kNone);
    FollowSelection();
    // Laid out before anything is painted: the column would otherwise grow after a first painting and cost a second.
    executeDelayedItemsLayout();
  });
}

void TreePane::NodesInserted(NodeId parent, std::size_t first, std::size_t count) {
  Guarded([&] {
    const QScopedValueRollback following(following_, true);
    // A gesture has opened the node before its children came. Rows under an open node make the view lay out all that it
    // shows; with the node closed for the moment, it lays out these rows alone.
    const QModelIndex top = model_.IndexOf(parent);
    const bool isOpened = first == 0 && isExpanded(top);
    if (isOpened) setExpanded(top, false);
    model_.Inserted(parent, first, count);
    if (isOpened) setExpanded(top, true);
    FollowOpenChildren(parent);
  });
}

void TreePane::ChildrenRemoved(NodeId parent, std::span<const NodeId> children) {
  Guarded([&] {
    // The current item may be among them; where it goes to is no choice of the user.
    const QScopedValueRollback following(following_, true);
    model_.Removed(parent, children);
    FollowSelection();
  });
}

void TreePane::NodesChanged(std::span<const NodeId> nodes) {
  Guarded([&] {
    model_.Changed(nodes);
    // A node without children may have lost its expander, which only a layout looks at.
    for (const NodeId node : nodes) {
      if (tree_.ChildCount(node) == 0) return scheduleDelayedItemsLayout();
    }
  });
}

void TreePane::NodeExpansionChanged(NodeId node) {
  Guarded([&] { FollowExpansion(model_.IndexOf(node)); });
}

void TreePane::TreeSelectionChanged() {
  Guarded([&] { FollowSelection(); });
}

void TreePane::TreeScrolled(NodeId top) {
  Guarded([&] {
    if (top == NodeId::kNone) return scrollToTop();
    if (IsShown(top)) scrollTo(model_.IndexOf(top), PositionAtTop);
  });
}

NodeId TreePane::TopNode() const {
  return verticalScrollBar()->value() == 0 ? NodeId::kNone : model_.NodeOf(indexAt({0, 0}));
}

bool TreePane::SeesNode(NodeId node) {
  const QRect line = visualRect(model_.IndexOf(node));
  return line.isValid() && line.top() >= 0 && line.bottom() < viewport()->height();
}

void TreePane::FollowExpansion(const QModelIndex& index) {
  const QScopedValueRollback following(following_, true);
  const NodeId node = model_.NodeOf(index);
  ShowExpanded(index, tree_.IsExpanded(node));
  if (tree_.IsExpanded(node)) FollowOpenChildren(node);
}

void TreePane::FollowOpenChildren(NodeId parent) {
  const QScopedValueRollback following(following_, true);
  for (const NodeId child : tree_.Children(parent)) {
    if (!tree_.IsExpanded(child)) continue;
    ShowExpanded(model_.IndexOf(child), true);
    FollowOpenChildren(child);
  }
}

// A node alone lays out its own rows, and moves all rows below them; of many the rest share one layout of all that is
// shown.
void TreePane::ShowExpanded(const QModelIndex& index, bool expanded) {
  constexpr int kLaidOutAlone = 16;
  if (isExpanded(index) == expanded) return;
  if (++followed_ > kLaidOutAlone) scheduleDelayedItemsLayout();
  setExpanded(index, expanded);
}

void TreePane::FollowSelection() {
  const QScopedValueRollback following(following_, true);
  const NodeId node = tree_.Selected();
  if (node == NodeId::kNone) {
    selectionModel()->clear();
    return;
  }
  // Scrolling to a node would open everything above it; whether that is open is not for the view to say.
  setAutoScroll(IsShown(node));
  selectionModel()->setCurrentIndex(model_.IndexOf(node), QItemSelectionModel::ClearAndSelect);
  setAutoScroll(true);
}

bool TreePane::IsShown(NodeId node) const {
  for (node = tree_.Parent(node); node != NodeId::kNone; node = tree_.Parent(node)) {
    if (!tree_.IsExpanded(node)) return false;
  }
  return true;
}

void TreePane::OpenedByUser(const QModelIndex& index, bool open) {
  if (following_) return;
  Guarded([&] {
    const QPersistentModelIndex place(index);
    (open ? gestures_.expand : gestures_.collapse)(model_.NodeOf(index));
    // The owner may have refused, or rebuilt the tree.
    if (place.isValid()) FollowExpansion(place);
  });
}

void TreePane::OpenLoaded(const QModelIndex& top) {
  setExpanded(top, true);
  if (!isExpanded(top)) return;
  std::vector<QPersistentModelIndex> open{top};
  while (!open.empty()) {
    const QModelIndex parent = open.back();
    open.pop_back();
    for (int row = 0; row < model_.rowCount(parent); ++row) {
      const QModelIndex child = model_.index(row, 0, parent);
      if (model_.rowCount(child) == 0) continue;
      setExpanded(child, true);
      open.emplace_back(child);
    }
  }
}

void TreePane::Click(const QModelIndex& index) {
  const NodeId node = model_.NodeOf(index);
  if (node == NodeId::kNone) return;
  gestures_.click(node);
  FollowSelection();
}

void TreePane::ClickUnlessSelected(const QModelIndex& index) {
  if (!following_ && !inGesture_ && model_.NodeOf(index) != tree_.Selected()) Click(index);
}

// On the node that is selected, which was clicked when it became so.
void TreePane::OpenMenuByKey() {
  if (currentIndex().isValid()) scrollTo(currentIndex());
  menuPlace_ = viewport()->mapToGlobal(BelowText(*this, currentIndex()));
  if (gestures_.mouseUp) gestures_.mouseUp(MouseButton::kRight, NodeId::kNone);
}

void TreePane::initViewItemOption(QStyleOptionViewItem* option) const {
  Guarded([&] {
    QTreeView::initViewItemOption(option);
    ItemDelegate::QuietenUnlessFocused(*option, *this);
  });
}

void TreePane::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  Guarded([&] {
    QTreeView::currentChanged(current, previous);
    ClickUnlessSelected(current);
  });
}

// Screen readers select without going anywhere.
void TreePane::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) {
  Guarded([&] {
    QTreeView::selectionChanged(selected, deselected);
    if (!selected.isEmpty()) ClickUnlessSelected(selected.first().topLeft());
  });
}

QItemSelectionModel::SelectionFlags TreePane::selectionCommand(const QModelIndex& index,
                                                               const QEvent* /*event*/) const {
  // Always exactly the current node: Ctrl does not take the selection away, nor does a click on empty space.
  return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

void TreePane::mousePressEvent(QMouseEvent* event) {
  Guarded([&] {
    // The owner selects what the right button comes up over.
    if (event->button() == Qt::RightButton) return;
    const QPersistentModelIndex before(currentIndex());
    {
      const QScopedValueRollback gesture(inGesture_, true);
      QTreeView::mousePressEvent(event);
    }
    const QModelIndex now = currentIndex();
    if (now != before || visualRect(now).contains(event->position().toPoint())) Click(now);
  });
}

void TreePane::mouseMoveEvent(QMouseEvent* event) {
  // A press that drifts to the next row has chosen its node already.
  if (event->buttons() == Qt::NoButton) QTreeView::mouseMoveEvent(event);
}

void TreePane::mouseReleaseEvent(QMouseEvent* event) {
  Guarded([&] {
    if (event->button() != Qt::RightButton) return QTreeView::mouseReleaseEvent(event);
    menuPlace_ = event->globalPosition().toPoint();
    const NodeId node = model_.NodeOf(indexAt(event->position().toPoint()));
    if (gestures_.mouseUp) gestures_.mouseUp(MouseButton::kRight, node);
  });
}

void TreePane::keyboardSearch(const QString& search) {
  Guarded([&] {
    const NodeId node = typed_.Type(search).FindNode(tree_, tree_.Selected());
    if (node != NodeId::kNone) setCurrentIndex(model_.IndexOf(node));
  });
}

void TreePane::contextMenuEvent(QContextMenuEvent* event) {
  Guarded([&] {
    if (event->reason() == QContextMenuEvent::Keyboard && !IsPopupUp()) OpenMenuByKey();
  });
}

void TreePane::keyPressEvent(QKeyEvent* event) {
  Guarded([&] {
    if (IsMenuKey(*event)) return OpenMenuByKey();
    // Copying is for the rows of the list; the view would put the text of the node on the clipboard.
    if (event->matches(QKeySequence::Copy)) return event->ignore();
    // Opens what there is: to load a whole history level by level is nothing that one key should start.
    if (event->key() == Qt::Key_Asterisk && currentIndex().isValid()) return OpenLoaded(currentIndex());
    const QPersistentModelIndex before(currentIndex());
    {
      const QScopedValueRollback gesture(inGesture_, true);
      QTreeView::keyPressEvent(event);
    }
    if (currentIndex() != before) Click(currentIndex());
  });
}

void TreePane::paintEvent(QPaintEvent* event) {
  Guarded([&] {
    followed_ = 0;
    QTreeView::paintEvent(event);
  });
}

void TreePane::updateGeometries() {
  Guarded([&] {
    // The one column fills the pane and grows with the longest text seen, so that deep nodes can be scrolled to.
    header()->setMinimumSectionSize(std::max(header()->minimumSectionSize(), sizeHintForColumn(0)));
    QTreeView::updateGeometries();
  });
}

}  // namespace quorvel::qt
