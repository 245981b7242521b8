#include "util/TypeAhead.h"

#include "util/TextOrder.h"

namespace quorvel::util {
namespace {

using widgets::NodeId;
using widgets::TreeView;

// The node itself, or what hides it: the outermost closed node above it.
NodeId Shown(const TreeView& tree, NodeId node) {
  NodeId shown = node;
  for (NodeId parent = tree.Parent(node); parent != NodeId::kNone; parent = tree.Parent(parent)) {
    if (!tree.IsExpanded(parent)) shown = parent;
  }
  return shown;
}

// The node below this one on the screen; behind the last one the first.
NodeId NextShown(const TreeView& tree, NodeId node) {
  if (tree.IsExpanded(node) && tree.ChildCount(node) > 0) return tree.Child(node, 0);
  for (; node != NodeId::kNone; node = tree.Parent(node)) {
    const NodeId parent = tree.Parent(node);
    const std::size_t next = tree.RowOf(node) + 1;
    if (next < tree.ChildCount(parent)) return tree.Child(parent, next);
  }
  return tree.Child(NodeId::kNone, 0);
}

}  // namespace

void TypeAhead::Type(std::string_view letter, bool afresh) {
  if (afresh) typed_.clear();
  const bool same = typed_.empty() || letter_ == letter;
  leavesCurrent_ = same;
  typed_ += letter;
  letter_ = same ? letter : std::string_view();
}

bool TypeAhead::Fits(std::string_view text) const {
  return BeginsWith(text, letter_.empty() ? typed_ : letter_);
}

std::optional<std::size_t> TypeAhead::FindRow(const widgets::ListView& list, std::optional<std::size_t> current) const {
  const std::size_t rows = list.Count();
  if (list.headers().empty()) return std::nullopt;
  const std::size_t first = !current ? 0 : *current + (leavesCurrent_ ? 1 : 0);
  std::string made;
  for (std::size_t step = 0; step < rows; ++step) {
    const std::size_t row = (first + step) % rows;
    auto text = list.TextOf(row, 0);
    if (!text) {
      made.clear();
      list.AppendCell(row, 0, made);
      text = made;
    }
    if (Fits(*text)) return row;
  }
  return std::nullopt;
}

NodeId TypeAhead::FindNode(const TreeView& tree, NodeId current) const {
  if (tree.Count() == 0) return NodeId::kNone;
  NodeId node = current == NodeId::kNone ? tree.Child(NodeId::kNone, 0) : Shown(tree, current);
  if (current != NodeId::kNone && leavesCurrent_) node = NextShown(tree, node);
  const NodeId first = node;
  do {
    if (Fits(tree.Text(node))) return node;
    node = NextShown(tree, node);
  } while (node != first);
  return NodeId::kNone;
}

}  // namespace quorvel::util
