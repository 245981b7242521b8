#include "util/WholeTree.h"

#include <cstddef>
#include <vector>

#include "datasource/ErrorsProcess.h"

namespace quorvel::util {
namespace {

using datasource::Propagating;
using widgets::NodeId;
using widgets::TreeView;

// All nodes under `parent`, each one behind its parent. The list is what is walked, so no depth exhausts the stack.
std::vector<NodeId> NodesUnder(const TreeView& tree, NodeId parent) {
  const auto roots = tree.Children(parent);
  std::vector<NodeId> nodes(roots.begin(), roots.end());
  for (std::size_t i = 0; i < nodes.size(); ++i) {
    const auto children = tree.Children(nodes[i]);
    nodes.insert(nodes.end(), children.begin(), children.end());
  }
  return nodes;
}

}  // namespace

void ExpandAllRecurse(TreeView& tree, NodeId parent) {
  tree.InBatch([&] {
    for (const NodeId node : NodesUnder(tree, parent)) {
      if (tree.ChildCount(node) > 0) tree.SetExpanded(node, true);
    }
  });
}

void CollapseAllRecurse(TreeView& tree, NodeId parent) {
  tree.InBatch([&] {
    for (const NodeId node : NodesUnder(tree, parent)) tree.SetExpanded(node, false);
  });
}

void ExpandAll(TreeView& tree) {
  Propagating("ListViewSort.ExpandAll", [&] { ExpandAllRecurse(tree, NodeId::kNone); });
}

void CollapseAll(TreeView& tree) {
  Propagating("ListViewSort.CollapseAll", [&] { CollapseAllRecurse(tree, NodeId::kNone); });
}

void ClearTreeview(TreeView& tree) {
  Propagating("ListViewSort.ClearTreeview", [&] { tree.Clear(); });
}

}  // namespace quorvel::util
