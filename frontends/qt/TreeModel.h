// The nodes of a tree view as an item model of Qt: no item objects, every answer in constant time.
#pragma once

#include <QAbstractItemModel>
#include <cstddef>
#include <optional>
#include <span>

#include "qt/GlyphIcon.h"
#include "widgets/TreeView.h"

namespace quorvel::qt {

// A model index carries the NodeId of its node. The tree tells of changes after it made them, Qt wants to hear of them
// before: until it has, the model answers with the children that it announced last.
class TreeModel final : public QAbstractItemModel {
 public:
  // `tree` must outlive the model; whoever observes it passes on what it hears.
  explicit TreeModel(const widgets::TreeView& tree) : tree_(tree) {}

  // kNone for the invalid index, which is the root.
  widgets::NodeId NodeOf(const QModelIndex& index) const;
  QModelIndex IndexOf(widgets::NodeId node) const;

  // What TreeObserver tells.
  void Reset();
  void Inserted(widgets::NodeId parent, std::size_t first, std::size_t count);
  void Removed(widgets::NodeId parent, std::span<const widgets::NodeId> children);
  void Changed(std::span<const widgets::NodeId> nodes);

  QModelIndex index(int row, int column, const QModelIndex& parent) const override;
  QModelIndex parent(const QModelIndex& index) const override;
  int rowCount(const QModelIndex& parent) const override;
  int columnCount(const QModelIndex& /*parent*/) const override { return 1; }
  bool hasChildren(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  // The header is never seen; a number in its place would only be read out.
  QVariant headerData(int /*section*/, Qt::Orientation /*orientation*/, int /*role*/) const override { return {}; }

 private:
  // A change that the tree has made and Qt has not heard of yet: the children of one node as they were before.
  struct Announced {
    widgets::NodeId parent = widgets::NodeId::kNone;
    std::span<const widgets::NodeId> children;
    bool removing = false;
  };

  std::span<const widgets::NodeId> ChildrenOf(widgets::NodeId parent) const;
  bool IsGone(widgets::NodeId node) const;

  const widgets::TreeView& tree_;
  std::optional<Announced> announced_;
  mutable GlyphIcons icons_;
};

}  // namespace quorvel::qt
