// The tree model against a reference model, and what its observer hears.
#include "widgets/TreeView.h"

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <string>
#include <vector>

namespace quorvel::widgets {
namespace {

// Writes down what it hears, and fails the test when it hears of a state that is not there yet.
class Listener : public TreeObserver {
 public:
  explicit Listener(TreeView& tree) : tree_(tree) { tree.ObserveTree(this); }
  void TreeReset() override { heard += "reset "; }
  void NodesInserted(NodeId parent, std::size_t first, std::size_t count) override {
    EXPECT_GE(tree_.ChildCount(parent), first + count);
    heard += "inserted " + std::to_string(first) + "+" + std::to_string(count) + " ";
  }
  void ChildrenRemoved(NodeId parent, std::span<const NodeId> children) override {
    EXPECT_EQ(tree_.ChildCount(parent), 0U);
    EXPECT_EQ(tree_.Parent(children.front()), parent);
    heard += "removed " + std::to_string(children.size()) + " ";
  }
  void NodesChanged(std::span<const NodeId> nodes) override {
    heard += "changed " + std::to_string(nodes.size()) + " ";
  }
  void NodeExpansionChanged(NodeId node) override { heard += tree_.IsExpanded(node) ? "opened " : "closed "; }
  void TreeSelectionChanged() override { heard += "selected "; }
  void TreeScrolled(NodeId top) override { heard += "scrolled to " + std::string(tree_.Key(top)) + " "; }
  NodeId TopNode() const override { return NodeId::kNone; }

  std::string heard;

 private:
  TreeView& tree_;
};

TEST(TreeView, TellsABatchOnceAndOnlyWhatTheObserverCannotKnow) {
  TreeView tree("tree");
  Listener listener(tree);
  NodeId root = NodeId::kNone;
  tree.InBatch([&] {
    tree.Clear();
    root = tree.Add(NodeId::kNone, "r", "Root", "Process");
    tree.SetNodeText(root, "Other");
  });
  EXPECT_EQ(std::exchange(listener.heard, ""), "reset ");
  // Children of a node that is itself new come with it, and so does what became of the new ones.
  tree.InBatch([&] {
    for (int i = 0; i < 3; ++i) tree.SetPlaceholder(tree.Add(tree.Add(root, "c", "Child", ""), "g", "", ""), true);
    tree.SetExpanded(root, true);
  });
  EXPECT_EQ(std::exchange(listener.heard, ""), "inserted 0+3 opened ");
  tree.Select(tree.Child(root, 1));
  tree.RemoveChildren(root);
  EXPECT_EQ(std::exchange(listener.heard, ""), "selected removed 3 closed selected ");
  EXPECT_EQ(tree.Selected(), NodeId::kNone);
  // Two changes of structure cannot be told one after the other once both are made.
  tree.InBatch([&] {
    tree.Add(root, "c", "", "");
    tree.Add(NodeId::kNone, "r2", "", "");
  });
  EXPECT_EQ(std::exchange(listener.heard, ""), "reset ");
  tree.SetNodeText(root, "Other");
  tree.SetExpanded(tree.Find("r2"), true);
  EXPECT_EQ(listener.heard, "") << "nothing changed: the text was there, and a leaf cannot open";
  EXPECT_THROW(tree.InBatch([&] {
    tree.SetNodeText(root, "Third");
    throw 1;
  }),
               int);
  EXPECT_EQ(listener.heard, "changed 1 ");
}

TEST(TreeView, PlaceholdersMakeExpandableAndAreNoNodes) {
  TreeView tree("tree");
  const NodeId group = tree.Add(NodeId::kNone, "g", "Group", "");
  tree.SetPlaceholder(group, true);
  EXPECT_TRUE(tree.IsExpandable(group));
  EXPECT_EQ(tree.Count(), 1U);
  EXPECT_EQ(tree.ChildCount(group), 0U);
  EXPECT_EQ(tree.Find("g|"), NodeId::kNone);
}

// The plainest tree that could be right.
struct Reference {
  struct Node {
    std::string key;
    std::string text;
    NodeId parent;
    std::vector<NodeId> children;
    int age;
  };
  std::map<NodeId, Node> nodes;
  std::vector<NodeId> roots;
  int clock = 0;

  void Remove(NodeId node) {
    for (const NodeId child : nodes[node].children) Remove(child);
    nodes.erase(node);
  }
  NodeId Newest(const std::string& key) const {
    NodeId newest = NodeId::kNone;
    int age = -1;
    for (const auto& [id, node] : nodes) {
      if (node.key != key || node.age < age) continue;
      newest = id;
      age = node.age;
    }
    return newest;
  }
};

TEST(TreeView, StaysEqualToAPlainTreeUnderRandomChanges) {
  std::mt19937 random(20261120);
  TreeView tree("tree");
  Reference plain;
  const auto pick = [&random](std::size_t below) { return random() % below; };
  const auto anyNode = [&] {
    auto position = plain.nodes.begin();
    std::advance(position, static_cast<std::ptrdiff_t>(pick(plain.nodes.size())));
    return position->first;
  };
  for (int step = 0; step < 6000; ++step) {
    const std::size_t what = pick(20);
    if (what < 14 || plain.nodes.empty()) {
      const NodeId parent = plain.nodes.empty() || pick(5) == 0 ? NodeId::kNone : anyNode();
      const std::string key = "key" + std::to_string(pick(40));  // few keys, so that they repeat
      const std::string text = "text " + std::to_string(step);
      const NodeId id = tree.Add(parent, key, text, "");
      (parent == NodeId::kNone ? plain.roots : plain.nodes[parent].children).push_back(id);
      plain.nodes[id] = {key, text, parent, {}, plain.clock++};
    } else if (what < 18) {
      const NodeId node = anyNode();
      for (const NodeId child : std::exchange(plain.nodes[node].children, {})) plain.Remove(child);
      tree.RemoveChildren(node);
    } else {
      const NodeId node = anyNode();
      plain.nodes[node].text = std::string(1000, 'x');  // long enough to make texts move
      tree.SetNodeText(node, plain.nodes[node].text);
    }
    const std::string key = "key" + std::to_string(pick(40));
    ASSERT_EQ(tree.Find(key), plain.Newest(key)) << step;
  }
  ASSERT_EQ(tree.Count(), plain.nodes.size());
  ASSERT_EQ(tree.ChildCount(NodeId::kNone), plain.roots.size());
  for (const auto& [id, node] : plain.nodes) {
    ASSERT_EQ(tree.Key(id), node.key);
    ASSERT_EQ(tree.Text(id), node.text);
    ASSERT_EQ(tree.Parent(id), node.parent);
    ASSERT_EQ(tree.Child(node.parent, tree.RowOf(id)), id);
    ASSERT_TRUE(std::ranges::equal(tree.Children(id), node.children));
  }
}

TEST(TreeView, KeepsTextsOfAnyLengthApart) {
  TreeView tree("tree");
  std::vector<std::string> texts;
  for (const std::size_t length : {1U, 65535U, 65536U, 65537U, 3U, 1'000'000U, 70'000U, 5U, 131'072U, 0U, 2U}) {
    texts.emplace_back(length, static_cast<char>('a' + texts.size()));
    tree.Add(NodeId::kNone, texts.back(), texts.back(), "");
  }
  for (std::size_t row = 0; row < texts.size(); ++row) {
    EXPECT_TRUE(tree.Text(tree.Child(NodeId::kNone, row)) == texts[row]) << row;
    EXPECT_TRUE(tree.Key(tree.Child(NodeId::kNone, row)) == texts[row]) << row;
  }
}

TEST(TreeView, FindsTheNewestThoughSlotsAreUsedAgain) {
  TreeView tree("tree");
  const NodeId first = tree.Add(NodeId::kNone, "first", "", "");
  tree.Add(first, "gone", "", "");
  tree.Add(NodeId::kNone, "key", "older, in a later slot", "");
  tree.RemoveChildren(first);
  const NodeId newest = tree.Add(NodeId::kNone, "key", "newest, in the first free slot", "");
  EXPECT_EQ(tree.Find("key"), newest);
}

TEST(TreeView, HoldsAMillionNodes) {
  TreeView tree("tree");
  tree.InBatch([&] {
    const NodeId root = tree.Add(NodeId::kNone, "root", "", "");
    for (int i = 0; i < 1'000'000; ++i) tree.Add(root, std::to_string(i), "Station", "User_Ok");
  });
  const NodeId last = tree.Find("999999");
  EXPECT_EQ(tree.RowOf(last), 999'999U);
  EXPECT_EQ(tree.Image(last), "User_Ok");
}

}  // namespace
}  // namespace quorvel::widgets
