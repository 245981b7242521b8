// Draws a tree view and turns gestures on it into the three things that its owner handles.
#pragma once

#include <QTreeView>

#include "control/Gestures.h"
#include "qt/TreeModel.h"
#include "qt/TypeAhead.h"
#include "widgets/TreeView.h"

namespace quorvel::qt {

// Which nodes are open and which is selected is the tree's to say; what is seen follows it.
class TreePane final : public QTreeView, public widgets::TreeObserver {
 public:
  // `tree` must outlive the pane.
  TreePane(widgets::TreeView& tree, TreeGestures gestures, QWidget* parent = nullptr);
  ~TreePane() override;
  TreePane(const TreePane&) = delete;
  TreePane& operator=(const TreePane&) = delete;

  // The model of the items, for look-ups between nodes and places on the screen.
  const TreeModel& nodes() const { return model_; }

  void TreeReset() override;
  void NodesInserted(widgets::NodeId parent, std::size_t first, std::size_t count) override;
  void ChildrenRemoved(widgets::NodeId parent, std::span<const widgets::NodeId> children) override;
  void NodesChanged(std::span<const widgets::NodeId> nodes) override;
  void NodeExpansionChanged(widgets::NodeId node) override;
  void TreeSelectionChanged() override;
  void TreeScrolled(widgets::NodeId top) override;
  widgets::NodeId TopNode() const override;
  bool SeesNode(widgets::NodeId node) override;

  // Where on the screen the menu belongs that was asked for last.
  QPoint menuPlace() const { return menuPlace_; }

  void keyboardSearch(const QString& search) override;

 protected:
  void initViewItemOption(QStyleOptionViewItem* option) const override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index, const QEvent* event) const override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void updateGeometries() override;

 private:
  // What the user did.
  void OpenedByUser(const QModelIndex& index, bool open);
  void OpenLoaded(const QModelIndex& top);
  void Click(const QModelIndex& index);
  void ClickUnlessSelected(const QModelIndex& index);
  void OpenMenuByKey();

  // What the tree says.
  void FollowExpansion(const QModelIndex& index);
  void FollowOpenChildren(widgets::NodeId parent);
  void ShowExpanded(const QModelIndex& index, bool expanded);
  void FollowSelection();
  bool IsShown(widgets::NodeId node) const;

  widgets::TreeView& tree_;
  TreeGestures gestures_;
  TreeModel model_;
  bool following_ = false;  // what happens now comes from the tree, not from the user
  int followed_ = 0;        // nodes opened and closed since the last painting
  QPoint menuPlace_;
  TypedLetters typed_;
  bool inGesture_ = false;  // an event handler says at its end which node was clicked
};

}  // namespace quorvel::qt
