// What a user made of a list or a tree, taken down and put back after it was filled anew.
#include "control/Standing.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "support/RecordingPlatform.h"
#include "util/ListViewSort.h"

namespace quorvel {
namespace {

using widgets::ListView;
using widgets::NodeId;
using widgets::RowRange;

// Rows whose keys are given and whose one cell is the same.
class KeyRows : public widgets::RowSource {
 public:
  explicit KeyRows(std::vector<std::string> keys) : keys_(std::move(keys)) {}
  std::size_t Count() const override { return keys_.size(); }
  void AppendKey(std::size_t row, std::string& out) const override { out.append(keys_[row]); }
  void AppendCell(std::size_t row, std::size_t, std::string& out) const override { out.append(keys_[row]); }
  std::string_view Icon(std::size_t) const override { return ""; }

 private:
  std::vector<std::string> keys_;
};

class ListStandingTest : public testing::Test {
 protected:
  void Fill(std::vector<std::string> keys, const char* caption = "Name") {
    list.SetHeaders({{.caption = caption}});
    list.SetRows(std::make_shared<KeyRows>(std::move(keys)));
  }
  void Select(const std::vector<std::size_t>& rows, std::size_t item) {
    widgets::RowRanges selection;
    for (const std::size_t row : rows) selection.Add({row, row + 1});
    list.SetSelection(std::move(selection), item);
  }
  // The rows in their order; "*" behind a selected one, "<" behind the one that commands act on.
  std::string Rows() const {
    std::string text;
    for (std::size_t row = 0; row < list.Count(); ++row) {
      text.append(list.Key(row)).append(list.Selection().Contains(row) ? "*" : "");
      text.append(list.SelectedItem() == row ? "< " : " ");
    }
    return text;
  }

  test::RecordingPlatform platform;
  ListView list{"list"};
};

TEST_F(ListStandingTest, FindsRowsByKeyAndWhichOfThatKeyTheyWere) {
  Fill({"a", "b", "a", "c", "a"});
  Select({2, 3}, 3);
  list.ScrollTo({3, 450});
  const ListStanding standing = StandingIn(list);
  Fill({"new", "a", "c", "a", "b"});
  Restore(standing, platform, list);
  EXPECT_EQ(Rows(), "new a c*< a* b ");
  EXPECT_EQ(list.Corner(), (widgets::ListCorner{2, 450}));
  // What is gone is not made up: neither rows nor the one that commands act on.
  Fill({"a", "b"});
  Restore(standing, platform, list);
  EXPECT_EQ(Rows(), "a b ");
  EXPECT_EQ(list.Corner(), (widgets::ListCorner{0, 450}));
  Fill({});
  Restore(standing, platform, list);
  EXPECT_EQ(Rows(), "");
}

TEST_F(ListStandingTest, SortsAgainAsTheUserDidAndOnlyTheSameColumns) {
  Fill({"b", "c", "a"});
  util::SortListViewBy(platform, list, 1, widgets::SortOrder::kDescending);
  list.SetHeaderWidth(0, 4321);
  Select({1}, 1);
  const ListStanding standing = StandingIn(list);
  Fill({"b", "d", "a", "c"});
  Restore(standing, platform, list);
  EXPECT_EQ(Rows(), "d c b*< a ");
  EXPECT_EQ(list.headers().front().width, 4321);
  EXPECT_FALSE(list.headers().front().icon.empty());
  Fill({"b", "d", "a"}, "Other");
  Restore(standing, platform, list);
  EXPECT_EQ(Rows(), "b*< d a ");
  EXPECT_NE(list.headers().front().width, 4321);
}

TEST_F(ListStandingTest, AllRowsAreAllRowsOfWhatIsThereNow) {
  Fill({"a", "b"});
  list.SetSelection(widgets::RowRanges(RowRange{0, 2}), 1);
  const ListStanding standing = StandingIn(list);
  EXPECT_EQ(standing.rows.size(), 1U) << "however many there are";
  Fill({"b", "x", "y"});
  Restore(standing, platform, list);
  EXPECT_EQ(Rows(), "b*< x* y* ");
}

TEST(OpenNodes, AreFoundAgainWhereKeysRepeat) {
  widgets::TreeView tree("tree");
  const auto fill = [&](const std::vector<std::string>& keys) {
    tree.Clear();
    for (const std::string& key : keys) {
      const NodeId node = tree.Add(NodeId::kNone, key, key, "");
      tree.SetPlaceholder(tree.Add(node, key + "|1", "", ""), true);
    }
  };
  fill({"a", "b", "a"});
  const NodeId second = tree.Child(NodeId::kNone, 2);
  tree.SetExpanded(second, true);
  tree.SetExpanded(tree.Child(second, 0), true);
  const std::vector<OpenNode> open = OpenNodesUnder(tree, NodeId::kNone);
  ASSERT_EQ(open.size(), 1U);
  ASSERT_EQ(open[0].below.size(), 1U);
  fill({"x", "a", "a"});
  const std::vector<FoundNode> found = FindNodes(tree, NodeId::kNone, open);
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].node, tree.Child(NodeId::kNone, 2));
  fill({"x", "a"});
  EXPECT_TRUE(FindNodes(tree, NodeId::kNone, open).empty());
}

}  // namespace
}  // namespace quorvel
