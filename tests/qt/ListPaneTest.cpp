// The drawn list: a million rows, columns that change, and a selection that runs both ways.
#include "qt/ListPane.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QHeaderView>
#include <QTest>
#include <memory>
#include <random>
#include <string>

#include "PaintCount.h"
#include "qt/ItemDelegate.h"

namespace quorvel::qt {
namespace {

using widgets::RowRanges;

class CountingRows : public widgets::RowSource {
 public:
  explicit CountingRows(std::size_t count) : count_(count) {}
  std::size_t Count() const override { return count_; }
  void AppendKey(std::size_t row, std::string& out) const override { out += std::to_string(row); }
  void AppendCell(std::size_t row, std::size_t column, std::string& out) const override {
    ++asked;
    out += std::to_string(row) + "." + std::to_string(column);
  }
  std::string_view Icon(std::size_t /*row*/) const override { return "User_Ok"; }

  mutable std::size_t asked = 0;

 private:
  std::size_t count_;
};

class ListPaneTest : public testing::Test {
 protected:
  ListPaneTest() {
    pane.resize(500, 400);
    pane.show();
    QCoreApplication::processEvents();
  }
  std::shared_ptr<CountingRows> Fill(std::size_t rows, std::size_t columns = 3) {
    auto source = std::make_shared<CountingRows>(rows);
    list.InBatch([&] {
      std::vector<widgets::ColumnHeader> headers;
      for (std::size_t i = 0; i < columns; ++i) headers.push_back({.caption = "Column " + std::to_string(i)});
      list.SetHeaders(std::move(headers));
      list.SetRows(source);
    });
    return source;
  }
  // The rows that are drawn as selected, read row by row.
  RowRanges Highlighted() {
    RowRanges rows;
    for (int row = 0; row < pane.model()->rowCount(); ++row) {
      const auto at = static_cast<std::size_t>(row);
      if (pane.selectionModel()->isRowSelected(row)) rows.Add({at, at + 1});
    }
    return rows;
  }
  void ClickRow(int row, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(pane.viewport(), Qt::LeftButton, modifiers,
                      pane.visualRect(pane.model()->index(row, 1)).center());
  }

  widgets::ListView list{"list"};
  ListPane pane{list};
};

TEST_F(ListPaneTest, ShowsAMillionRowsAtOnce) {
  test::PaintCount paints(*pane.viewport());
  paints.Take();
  const auto rows = Fill(1'000'000);
  EXPECT_EQ(paints.Take(), 1);
  const std::size_t cellsOnScreen = 3 * 40;
  EXPECT_LE(rows->asked, cellsOnScreen);
  EXPECT_EQ(pane.model()->rowCount(), 1'000'000);
  pane.setFocus();
  QTest::keyClick(&pane, Qt::Key_End);
  EXPECT_EQ(list.SelectedItem(), 999'999U);
  EXPECT_TRUE(pane.viewport()->rect().contains(pane.visualRect(pane.model()->index(999'999, 0)).center()));
  QTest::keyClick(&pane, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(list.Selection().Count(), 1'000'000U);
  EXPECT_EQ(list.Selection().ranges().size(), 1U);
  paints.Take();
  EXPECT_LE(rows->asked, 10 * cellsOnScreen);
}

TEST_F(ListPaneTest, KeepsItsModelSoundWhileColumnsAndRowsChange) {
  const QAbstractItemModelTester tester(pane.model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
  Fill(20, 3);
  list.SetHeaders({{.caption = "Only", .width = 3000}});
  EXPECT_EQ(pane.model()->columnCount(), 1);
  EXPECT_EQ(pane.columnWidth(0), 200);
  list.SetHeaders({{.caption = "Other", .alignment = widgets::Alignment::kRight}});
  EXPECT_EQ(pane.model()->headerData(0, Qt::Horizontal).toString(), "Other");
  pane.horizontalHeader()->resizeSection(0, 150);
  EXPECT_EQ(list.headers()[0].width, 2250) << "what the user drags is kept";
  list.SetLook(19, {.colour = widgets::SystemColour::kGrayText, .bold = true});
  EXPECT_TRUE(pane.model()->index(19, 0).data(Qt::FontRole).value<QFont>().bold());
  Fill(0, 2);
  list.SetRows(nullptr);
  list.SetHeaders({});
  EXPECT_EQ(pane.model()->columnCount(), 0);
}

TEST_F(ListPaneTest, KeepsOneSelectionOnBothSides) {
  Fill(40);
  ClickRow(2);
  ClickRow(5, Qt::ShiftModifier);
  ClickRow(3, Qt::ControlModifier);
  RowRanges expected;
  expected.Add({2, 3});
  expected.Add({4, 6});
  EXPECT_EQ(list.Selection(), expected);
  EXPECT_EQ(list.SelectedItem(), 2U) << "row 3 was clicked last, but it is not selected";
  std::mt19937 random(1);
  for (int step = 0; step < 50; ++step) {
    RowRanges rows;
    for (int i = 0; i < 5; ++i) {
      const std::size_t first = random() % 40;
      rows.Add({first, std::min<std::size_t>(first + random() % 5, 40)});
    }
    list.SetSelection(rows);
    ASSERT_EQ(Highlighted(), rows);
    ASSERT_EQ(list.Selection(), rows) << "drawing it changed it";
  }
  Fill(40);
  EXPECT_TRUE(Highlighted().empty());
}

TEST_F(ListPaneTest, DrawsWhateverACellHolds) {
  const ItemDelegate delegate;
  const auto shown = [&](const QString& text) { return delegate.displayText(text, QLocale()); };
  EXPECT_EQ(shown("one\r\ntwo\tthree"), "one  two three");
  EXPECT_LT(shown(QString(1'000'000, 'x')).size(), 2000);
}

}  // namespace
}  // namespace quorvel::qt
