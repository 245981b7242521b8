#include "qt/TreeModel.h"

#include "qt/Convert.h"
#include "qt/Guard.h"
#include "qt/ItemLook.h"

namespace quorvel::qt {

using widgets::NodeId;

NodeId TreeModel::NodeOf(const QModelIndex& index) const {
  return index.isValid() ? static_cast<NodeId>(index.internalId()) : NodeId::kNone;
}

QModelIndex TreeModel::IndexOf(NodeId node) const {
  if (node == NodeId::kNone) return {};
  return createIndex(static_cast<int>(tree_.RowOf(node)), 0, static_cast<quintptr>(node));
}

void TreeModel::Reset() {
  beginResetModel();
  endResetModel();
}

void TreeModel::Inserted(NodeId parent, std::size_t first, std::size_t count) {
  announced_ = {parent, tree_.Children(parent).first(first), false};
  beginInsertRows(IndexOf(parent), static_cast<int>(first), static_cast<int>(first + count) - 1);
  announced_.reset();
  endInsertRows();
}

void TreeModel::Removed(NodeId parent, std::span<const NodeId> children) {
  announced_ = {parent, children, true};
  beginRemoveRows(IndexOf(parent), 0, static_cast<int>(children.size()) - 1);
  announced_.reset();
  endRemoveRows();
}

void TreeModel::Changed(std::span<const NodeId> nodes) {
  for (const NodeId node : nodes) {
    const QModelIndex index = IndexOf(node);
    emit dataChanged(index, index);
  }
}

std::span<const NodeId> TreeModel::ChildrenOf(NodeId parent) const {
  return announced_ && announced_->parent == parent ? announced_->children : tree_.Children(parent);
}

bool TreeModel::IsGone(NodeId node) const {
  if (!announced_ || !announced_->removing) return false;
  while (node != NodeId::kNone && tree_.Parent(node) != announced_->parent) node = tree_.Parent(node);
  return node != NodeId::kNone;
}

QModelIndex TreeModel::index(int row, int column, const QModelIndex& parent) const {
  const auto children = ChildrenOf(NodeOf(parent));
  if (row < 0 || column != 0 || static_cast<std::size_t>(row) >= children.size()) return {};
  return createIndex(row, 0, static_cast<quintptr>(children[static_cast<std::size_t>(row)]));
}

QModelIndex TreeModel::parent(const QModelIndex& index) const {
  return index.isValid() ? IndexOf(tree_.Parent(NodeOf(index))) : QModelIndex();
}

int TreeModel::rowCount(const QModelIndex& parent) const {
  return static_cast<int>(ChildrenOf(NodeOf(parent)).size());
}

bool TreeModel::hasChildren(const QModelIndex& parent) const {
  const NodeId node = NodeOf(parent);
  return !ChildrenOf(node).empty() || (node != NodeId::kNone && tree_.HasPlaceholder(node));
}

QVariant TreeModel::data(const QModelIndex& index, int role) const {
  return GuardedOr(QVariant(), [&]() -> QVariant {
    const NodeId node = NodeOf(index);
    if (node == NodeId::kNone || IsGone(node)) return {};
    switch (role) {
      case Qt::DisplayRole:
        return ToQt(tree_.Text(node));
      case Qt::AccessibleTextRole:
        return SpokenText(tree_.Text(node), tree_.Image(node));
      case Qt::DecorationRole:
        return icons_.Of({tree_.Image(node), tree_.ExpandedImage(node), tree_.SelectedImage(node)});
      case Qt::ForegroundRole:
        return ForegroundOf(tree_.ForeColour(node));
      case Qt::FontRole:
        return FontOf(tree_.IsBold(node));
      default:
        return {};
    }
  });
}

}  // namespace quorvel::qt
