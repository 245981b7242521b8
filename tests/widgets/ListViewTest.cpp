// The list model, sets of rows, and lists of items.
#include "widgets/ListView.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <random>
#include <set>

#include "platform/Error.h"
#include "widgets/ItemList.h"

namespace quorvel::widgets {
namespace {

class NumberRows : public RowSource {
 public:
  explicit NumberRows(std::size_t count) : count_(count) {}
  std::size_t Count() const override { return count_; }
  void AppendKey(std::size_t row, std::string& out) const override { out += std::to_string(row) + "|K"; }
  void AppendCell(std::size_t row, std::size_t column, std::string& out) const override {
    out += std::to_string(row * 10 + column);
  }
  std::string_view Icon(std::size_t) const override { return "User_Ok"; }
  RowLook Look(std::size_t row) const override { return {SystemColour::kWindowText, row == 1}; }

 private:
  std::size_t count_;
};

class Listener : public ListObserver {
 public:
  explicit Listener(ListView& list) { list.ObserveList(this); }
  void ListReset() override { heard += "reset "; }
  void HeadersChanged() override { heard += "headers "; }
  void RowsReordered() override { heard += "order "; }
  void RowsChanged(RowRange rows) override {
    heard += "rows " + std::to_string(rows.first) + "-" + std::to_string(rows.last) + " ";
  }
  void ListSelectionChanged() override { heard += "selection "; }
  void ListScrolled(const ListCorner& corner) override { heard += "scrolled " + std::to_string(corner.row) + " "; }
  ListCorner CornerInSight() const override { return {}; }
  std::string heard;
};

TEST(ListView, MakesRowsOnRequestAndLaysSingleChangesOver) {
  ListView list("list");
  Listener listener(list);
  list.InBatch([&] {
    list.SetHeaders({{.caption = "Name"}, {.caption = "Status"}});
    list.SetRows(std::make_shared<NumberRows>(1'000'000));
  });
  EXPECT_EQ(std::exchange(listener.heard, ""), "reset ");
  EXPECT_EQ(list.Cell(999'999, 1), "9999991");
  EXPECT_EQ(list.RowOfKey("77|K"), 77U);
  EXPECT_FALSE(list.RowOfKey("77"));
  list.InBatch([&] {
    list.SetIcon(3, "User_NoOk");
    list.SetIcon(5, "User_NoOk");
    list.SetLook(1, {SystemColour::kGrayText, false});
  });
  list.SetIcon(3, "User_NoOk");
  EXPECT_EQ(std::exchange(listener.heard, ""), "rows 1-6 ");
  EXPECT_EQ(list.Icon(3), "User_NoOk");
  EXPECT_EQ(list.Icon(4), "User_Ok");
  EXPECT_EQ(list.Look(1).colour, SystemColour::kGrayText);
  EXPECT_THROW(list.Cell(1'000'000, 0), Error);
  EXPECT_THROW(list.Cell(0, 2), Error);
  EXPECT_THROW(list.Icon(1'000'000), Error);
  EXPECT_THROW(list.SetHeaderWidth(2, 100), Error);
}

TEST(ListView, NewRowsForgetSelectionAndMarks) {
  ListView list("list");
  list.SetRows(std::make_shared<NumberRows>(10));
  RowRanges some;
  some.Add({2, 5});
  list.SetSelection(some, 4);
  list.SetIcon(2, "Other");
  EXPECT_EQ(list.SelectedItem(), 4U);
  list.SetSelection(some);
  EXPECT_EQ(list.SelectedItem(), 2U) << "without a wish the first selected row";
  RowRanges outside;
  outside.Add({9, 11});
  EXPECT_THROW(list.SetSelection(outside), Error);
  list.SetRows(std::make_shared<NumberRows>(3));
  EXPECT_TRUE(list.Selection().empty());
  EXPECT_FALSE(list.SelectedItem());
  EXPECT_EQ(list.Icon(2), "User_Ok");
}

// A row as it is seen.
struct SeenRow {
  std::string key;
  std::string cell;
  std::string icon;
  bool bold = false;
  bool selected = false;
  bool item = false;
  friend bool operator==(const SeenRow&, const SeenRow&) = default;
};

std::vector<SeenRow> Seen(const ListView& list) {
  std::vector<SeenRow> rows;
  for (std::size_t row = 0; row < list.Count(); ++row) {
    rows.push_back({list.Key(row), list.Cell(row, 0), std::string(list.Icon(row)), list.Look(row).bold,
                    list.Selection().Contains(row), list.SelectedItem() == row});
  }
  return rows;
}

TEST(ListView, RowsTakeAllTheirsAlongInAnyOrder) {
  std::mt19937 random(5);
  ListView list("list");
  list.SetHeaders({{.caption = "Name"}});
  for (int round = 0; round < 300; ++round) {
    if (round % 20 == 0) list.SetRows(std::make_shared<NumberRows>(1 + random() % 12));
    std::vector<SeenRow> expected = Seen(list);
    const std::size_t at = random() % expected.size();
    if (random() % 2 == 0) {
      list.SetIcon(at, "Other");
      expected[at].icon = "Other";
    } else if (random() % 2 == 0) {
      list.SetLook(at, {SystemColour::kWindowText, true});
      expected[at].bold = true;
    } else {
      RowRanges rows;
      rows.Add({at, expected.size()});
      list.SetSelection(rows, at);
      for (std::size_t row = 0; row < expected.size(); ++row) {
        expected[row].selected = row >= at;
        expected[row].item = row == at;
      }
    }
    std::vector<std::uint32_t> order(expected.size());
    std::iota(order.begin(), order.end(), 0U);
    std::ranges::shuffle(order, random);
    list.Reorder(order);
    std::vector<SeenRow> moved;
    for (const std::uint32_t row : order) moved.push_back(expected[row]);
    ASSERT_TRUE(Seen(list) == moved) << "round " << round;
    ASSERT_EQ(list.RowOfKey(moved[0].key), 0U);
  }
}

TEST(ListView, ReordersAtOnceAndUntilOtherRowsCome) {
  ListView list("list");
  list.SetHeaders({{.caption = "Name", .icon = "ascending"}});
  list.SetRows(std::make_shared<NumberRows>(3));
  RowRanges first;
  first.Add({0, 1});
  list.SetSelection(first);
  Listener listener(list);
  list.InBatch([&] {
    list.SetIcon(1, "Other");
    list.Reorder({2, 1, 0});
  });
  EXPECT_EQ(std::exchange(listener.heard, ""), "order ") << "which tells the rest as well";
  list.Reorder({0, 1, 2});
  EXPECT_EQ(listener.heard, "") << "they stand where they stood";
  EXPECT_THROW(list.Reorder({0, 1}), Error);
  list.SetHeaders({{.caption = "Name", .icon = "ascending"}});
  list.SetSorted(true);
  list.SetRows(std::make_shared<NumberRows>(2));
  EXPECT_EQ(list.Key(0), "0|K");
  EXPECT_FALSE(list.sorted());
  EXPECT_EQ(list.headers()[0].icon, "") << "an arrow would lie";
}

TEST(RowRanges, StayEqualToAPlainSetUnderRandomChanges) {
  std::mt19937 random(7);
  RowRanges ranges;
  std::set<std::size_t> plain;
  for (int step = 0; step < 3000; ++step) {
    const std::size_t first = random() % 60;
    const RowRange range{first, first + random() % 8};
    const bool add = random() % 2 == 0;
    if (add) {
      ranges.Add(range);
    } else {
      ranges.Remove(range);
    }
    for (std::size_t row = range.first; row < range.last; ++row) {
      if (add) {
        plain.insert(row);
      } else {
        plain.erase(row);
      }
    }
    ASSERT_EQ(ranges.Count(), plain.size());
    for (std::size_t row = 0; row < 70; ++row) ASSERT_EQ(ranges.Contains(row), plain.contains(row)) << step;
    for (std::size_t i = 1; i < ranges.ranges().size(); ++i) {
      ASSERT_GT(ranges.ranges()[i].first, ranges.ranges()[i - 1].last) << "ranges that touch are one";
    }
  }
}

TEST(ItemList, KeepsTheSelectionWithItsRow) {
  ListBox list("lstGroupBy");
  list.SetItems({{"a", 0}, {"b", 1}, {"c", 2}});
  list.Select(0);
  list.Exchange(0, 2);
  EXPECT_EQ(list.selectedText(), "a");
  EXPECT_EQ(list.selected(), 2U);
  list.Exchange(0, 1);
  EXPECT_EQ(list.selected(), 2U);
  EXPECT_EQ(list.RowOfData(2), 1U);
  EXPECT_FALSE(list.RowOfText("A"));
  EXPECT_THROW(list.Select(3), Error);
}

}  // namespace
}  // namespace quorvel::widgets
