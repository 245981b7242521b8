// The list model, sets of rows, and lists of items.
#include "widgets/ListView.h"

#include <gtest/gtest.h>

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
  void RowsChanged(RowRange rows) override {
    heard += "rows " + std::to_string(rows.first) + "-" + std::to_string(rows.last) + " ";
  }
  void ListSelectionChanged() override { heard += "selection "; }
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
