// Going to rows and nodes by what they begin with.
#include "util/TypeAhead.h"

#include <gtest/gtest.h>

#include <memory>
#include <vector>

namespace quorvel::util {
namespace {

using widgets::NodeId;

class Names : public widgets::RowSource {
 public:
  explicit Names(std::vector<std::string> names) : names_(std::move(names)) {}
  std::size_t Count() const override { return names_.size(); }
  void AppendKey(std::size_t row, std::string& out) const override { out += std::to_string(row); }
  void AppendCell(std::size_t row, std::size_t /*column*/, std::string& out) const override { out += names_[row]; }
  std::string_view Icon(std::size_t /*row*/) const override { return ""; }

 private:
  std::vector<std::string> names_;
};

TEST(TypeAhead, GoesFromRowToRow) {
  widgets::ListView list("list");
  TypeAhead typed;
  typed.Type("b", true);
  EXPECT_EQ(typed.FindRow(list, std::nullopt), std::nullopt) << "of a list without columns and rows";
  list.SetHeaders({{.caption = "Name"}});
  list.SetRows(std::make_shared<Names>(std::vector<std::string>{"Beta", "alpha", "beat", "", "ÉTÉ", "b"}));
  EXPECT_EQ(typed.FindRow(list, std::nullopt), 0U);
  EXPECT_EQ(typed.FindRow(list, 0), 2U) << "a first letter leaves the row";
  typed.Type("e", false);
  EXPECT_EQ(typed.FindRow(list, 2), 2U) << "the next one stays while the row fits";
  typed.Type("t", false);
  EXPECT_EQ(typed.FindRow(list, 2), 0U) << "behind the last row comes the first";
  typed.Type("x", false);
  EXPECT_EQ(typed.FindRow(list, 0), std::nullopt);
  for (const std::size_t expected : {2U, 5U, 0U}) {
    typed.Type("B", expected == 2U);
    EXPECT_EQ(typed.FindRow(list, expected == 2U ? 0 : expected == 5U ? 2 : 5), expected) << "the same letter";
  }
  typed.Type("é", true);
  EXPECT_EQ(typed.FindRow(list, 5), 4U);
  EXPECT_EQ(typed.FindRow(list, 4), 4U) << "the only one is also the next one";
}

TEST(TypeAhead, GoesThroughTheNodesThatAreShown) {
  widgets::TreeView tree("tree");
  TypeAhead typed;
  typed.Type("d", true);
  EXPECT_EQ(typed.FindNode(tree, NodeId::kNone), NodeId::kNone);
  const NodeId a = tree.Add(NodeId::kNone, "a", "a", "");
  const NodeId hidden = tree.Add(a, "d1", "d in a", "");
  const NodeId b = tree.Add(NodeId::kNone, "b", "b", "");
  const NodeId open = tree.Add(b, "d2", "Dump", "");
  const NodeId last = tree.Add(NodeId::kNone, "d3", "deploy", "");
  tree.SetExpanded(b, true);
  EXPECT_EQ(typed.FindNode(tree, NodeId::kNone), open);
  EXPECT_EQ(typed.FindNode(tree, open), last);
  EXPECT_EQ(typed.FindNode(tree, last), open) << "round";
  EXPECT_EQ(typed.FindNode(tree, hidden), open) << "from a node that its closed parent hides";
  typed.Type("z", true);
  EXPECT_EQ(typed.FindNode(tree, hidden), NodeId::kNone);
}

}  // namespace
}  // namespace quorvel::util
