// Trees opened, closed and emptied whole, however deep and wide.
#include "util/WholeTree.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <span>
#include <utility>
#include <vector>

namespace quorvel::util {
namespace {

using widgets::NodeId;
using widgets::TreeView;

std::size_t OpenNodes(const TreeView& tree, NodeId first, NodeId second) {
  return (tree.IsExpanded(first) ? 1U : 0U) + (tree.IsExpanded(second) ? 1U : 0U);
}

// Counts, each time that it hears of one, how many of two nodes are open.
class Listener : public widgets::TreeObserver {
 public:
  Listener(TreeView& tree, NodeId first, NodeId second) : tree_(tree), first_(first), second_(second) {
    tree.ObserveTree(this);
  }
  void TreeReset() override {}
  void NodesInserted(NodeId /*parent*/, std::size_t /*first*/, std::size_t /*count*/) override {}
  void ChildrenRemoved(NodeId /*parent*/, std::span<const NodeId> /*children*/) override {}
  void NodesChanged(std::span<const NodeId> /*nodes*/) override {}
  void NodeExpansionChanged(NodeId /*node*/) override { open.push_back(OpenNodes(tree_, first_, second_)); }
  void TreeSelectionChanged() override {}
  void TreeScrolled(NodeId /*top*/) override {}
  NodeId TopNode() const override { return NodeId::kNone; }

  std::vector<std::size_t> open;

 private:
  TreeView& tree_;
  NodeId first_;
  NodeId second_;
};

TEST(WholeTree, OpensAndClosesWhatIsLoadedInOneBatch) {
  TreeView tree("tree");
  const NodeId leaf = tree.Add(NodeId::kNone, "a", "", "");
  const NodeId root = tree.Add(NodeId::kNone, "b", "", "");
  const NodeId group = tree.Add(root, "b|1", "", "");
  const NodeId notLoaded = tree.Add(root, "b|2", "", "");
  tree.SetPlaceholder(group, true);
  tree.SetPlaceholder(notLoaded, true);
  tree.Select(tree.Add(group, "b|1|1", "", ""));
  Listener listener(tree, root, group);
  ExpandAll(tree);
  EXPECT_EQ(std::exchange(listener.open, {}), (std::vector<std::size_t>{2, 2})) << "heard when both were open";
  EXPECT_FALSE(tree.IsExpanded(leaf) || tree.IsExpanded(notLoaded));
  CollapseAll(tree);
  EXPECT_EQ(std::exchange(listener.open, {}), (std::vector<std::size_t>{0, 0}));
  EXPECT_EQ(tree.Selected(), tree.Find("b|1|1"));
  ExpandAllRecurse(tree, root);
  EXPECT_TRUE(tree.IsExpanded(group) && !tree.IsExpanded(root));
  tree.SetExpanded(root, true);
  CollapseAllRecurse(tree, root);
  EXPECT_TRUE(!tree.IsExpanded(group) && tree.IsExpanded(root));
  ClearTreeview(tree);
  EXPECT_EQ(tree.Count(), 0U);
}

TEST(WholeTree, NeitherDepthNorWidthIsTooMuch) {
  for (const int depth : {10, 300'000}) {
    TreeView tree("tree");
    const NodeId top = tree.Add(NodeId::kNone, "", "", "");
    NodeId last = top;
    for (int level = 1; level < depth; ++level) last = tree.Add(last, "", "", "");
    for (int i = 0; i < 200'000; ++i) tree.Add(last, "", "", "");
    ExpandAll(tree);
    EXPECT_EQ(OpenNodes(tree, top, last), 2U);
    CollapseAll(tree);
    EXPECT_EQ(OpenNodes(tree, top, last), 0U);
  }
}

}  // namespace
}  // namespace quorvel::util
