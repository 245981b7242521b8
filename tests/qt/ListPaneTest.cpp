// The drawn list: a million rows, columns that change, and a selection that runs both ways.
#include "qt/ListPane.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QAccessible>
#include <QHeaderView>
#include <QProxyStyle>
#include <QScrollBar>
#include <QTest>
#include <algorithm>
#include <memory>
#include <numeric>
#include <random>
#include <string>
#include <utility>

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
  QPoint PlaceOf(int row) { return pane.visualRect(pane.model()->index(row, 1)).center(); }
  void ClickRow(int row, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(pane.viewport(), Qt::LeftButton, modifiers, PlaceOf(row));
  }
  void DragOver(int row) {
    QMouseEvent move(QEvent::MouseMove, PlaceOf(row), pane.viewport()->mapToGlobal(PlaceOf(row)), Qt::NoButton,
                     Qt::LeftButton, {});
    QCoreApplication::sendEvent(pane.viewport(), &move);
  }
  void ReverseRows() {
    std::vector<std::uint32_t> rows(list.Count());
    std::iota(rows.rbegin(), rows.rend(), 0U);
    list.Reorder(std::move(rows));
  }
  std::string Heard() { return std::exchange(heard, ""); }
  std::string Told() { return std::exchange(told, ""); }

  widgets::ListView list{"list"};
  std::string heard;
  std::string told;                     // of presses and selections, which are part of other gestures
  std::function<void()> onDoubleClick;  // what the owner does then
  ListPane pane{list,
                {.columnClick = [this](std::size_t column) { heard += "column " + std::to_string(column) + " "; },
                 .doubleClick =
                     [this] {
                       heard += "double " + std::to_string(list.SelectedItem().value()) + " ";
                       if (onDoubleClick) onDoubleClick();
                     },
                 .keyDown = [this](std::int32_t key) { heard += "key " + std::to_string(key) + " "; },
                 .selectionChanged = [this] { told += "selection "; },
                 .mouseDown =
                     [this](MouseButton button, std::optional<std::size_t> row) {
                       told += button == MouseButton::kLeft ? "left " : "right ";
                       told += row ? std::to_string(*row) + " " : "nowhere ";
                     },
                 .copy = [this] { told += "copy "; },
                 .selectAll =
                     [this] {
                       list.SetSelection(RowRanges(widgets::RowRange{0, list.Count()}));
                     }}};
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

TEST_F(ListPaneTest, TellsWhatTheUserAsksFor) {
  Fill(20);
  auto& header = *pane.horizontalHeader();
  const QPoint inSecond(header.sectionViewportPosition(1) + 20, 5);
  QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, inSecond);
  EXPECT_EQ(Heard(), "column 2 ");
  QTest::mouseClick(header.viewport(), Qt::RightButton, {}, inSecond);
  EXPECT_EQ(Heard(), "");
  ClickRow(7);
  QTest::mouseDClick(pane.viewport(), Qt::LeftButton, {}, PlaceOf(3));
  EXPECT_EQ(Heard(), "double 3 ");
  EXPECT_EQ(list.Selection().Count(), 1U);
  QTest::mouseDClick(pane.viewport(), Qt::RightButton, {}, PlaceOf(4));
  QTest::mouseDClick(pane.viewport(), Qt::LeftButton, {}, {490, 10});
  EXPECT_EQ(Heard(), "") << "beside the rows";
  QTest::keyClick(&pane, Qt::Key_Return);
  QTest::keyClick(&pane, Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(Heard(), "key 13 key 13 ");
  QTest::keyClick(&pane, Qt::Key_Down);
  QTest::keyClick(&pane, Qt::Key_Return, Qt::ControlModifier);
  EXPECT_EQ(Heard(), "");
}

TEST_F(ListPaneTest, ButtonOfADoubleClickSelectsNothingInTheListThatComes) {
  Fill(20);
  const QPoint belowTheNewRows = PlaceOf(15);
  RowRanges first;
  first.Add({0, 1});
  onDoubleClick = [&] {
    Fill(5);
    list.SetSelection(first);
  };
  QTest::mouseClick(pane.viewport(), Qt::LeftButton, {}, PlaceOf(3));
  QMouseEvent second(QEvent::MouseButtonDblClick, PlaceOf(3), pane.viewport()->mapToGlobal(PlaceOf(3)), Qt::LeftButton,
                     Qt::LeftButton, {});
  QCoreApplication::sendEvent(pane.viewport(), &second);
  DragOver(2);
  QTest::mouseRelease(pane.viewport(), Qt::LeftButton, {}, belowTheNewRows);
  EXPECT_EQ(list.Selection(), first);
  ClickRow(4);
  QTest::mousePress(pane.viewport(), Qt::LeftButton, {}, PlaceOf(0));
  DragOver(2);
  QTest::mouseRelease(pane.viewport(), Qt::LeftButton, {}, PlaceOf(2));
  EXPECT_EQ(list.Selection().Count(), 3U) << "the next press drags as ever";
}

TEST_F(ListPaneTest, KeepsTheSelectedRowInSightWhenRowsChangePlaces) {
  const QAbstractItemModelTester tester(pane.model(), QAbstractItemModelTester::FailureReportingMode::Fatal);
  Fill(1000, 30);
  pane.horizontalScrollBar()->setValue(700);
  RowRanges rows;
  rows.Add({2, 4});
  list.SetSelection(rows);
  test::PaintCount paints(*pane.viewport());
  paints.Take();
  ReverseRows();
  EXPECT_EQ(paints.Take(), 1);
  EXPECT_EQ(pane.model()->index(0, 0).data().toString(), "999.0");
  RowRanges moved;
  moved.Add({996, 998});
  EXPECT_EQ(Highlighted(), moved);
  EXPECT_EQ(pane.currentIndex().row(), 997);
  EXPECT_TRUE(pane.viewport()->rect().contains(0, pane.rowViewportPosition(997)));
  EXPECT_EQ(pane.horizontalScrollBar()->value(), 700);
  pane.verticalScrollBar()->setValue(5000);
  ReverseRows();
  EXPECT_EQ(pane.verticalScrollBar()->value(), 5000) << "what was not in sight before draws nobody away";
}

// Notes how much text the cells are painted with.
class TextLengths : public QProxyStyle {
 public:
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override {
    const auto* const item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
    if (element == CE_ItemViewItem && item != nullptr) longest = std::max(longest, item->text.size());
    QProxyStyle::drawControl(element, option, painter, widget);
  }
  mutable qsizetype longest = 0;
};

// A report of a megabyte, which is or is not there to be looked at in its place.
class LongRows : public CountingRows {
 public:
  explicit LongRows(bool lies) : CountingRows(3), lies_(lies) {}
  void AppendCell(std::size_t /*row*/, std::size_t /*column*/, std::string& out) const override { out += report_; }
  std::optional<std::string_view> TextOf(std::size_t /*row*/, std::size_t /*column*/) const override {
    return lies_ ? std::optional<std::string_view>(report_) : std::nullopt;
  }

 private:
  bool lies_;
  std::string report_ = std::string(1'000'000, 'x');
};

TEST_F(ListPaneTest, PaintsNoMoreOfATextThanACellCanShow) {
  TextLengths style;
  pane.setStyle(&style);
  for (const bool lies : {true, false}) {
    Fill(0);
    list.SetRows(std::make_shared<LongRows>(lies));
    style.longest = 0;
    pane.grab();
    EXPECT_GT(style.longest, 100);
    EXPECT_LT(style.longest, 1100);
    const QModelIndex cell = pane.model()->index(0, 0);
    EXPECT_EQ(cell.data().toString().size(), 1'000'000) << "the cell itself is whole";
    EXPECT_LE(cell.data(kPaintedTextRole).toString().size(), 4000) << "and only so much is converted";
  }
  pane.setStyle(nullptr);
}

// One cell, which notes what of it is asked for.
class AskedCell : public QAbstractListModel {
 public:
  int rowCount(const QModelIndex& /*parent*/) const override { return 1; }
  QVariant data(const QModelIndex& /*index*/, int role) const override {
    asked.push_back(role);
    return role == kPaintedTextRole ? QVariant("painted") : QVariant();
  }
  mutable std::vector<int> asked;
};

TEST(ItemDelegate, NeverAsksForAWholeTextWhereAPartIsKnown) {
  const ItemDelegate delegate;
  const AskedCell cell;
  EXPECT_GT(delegate.sizeHint(QStyleOptionViewItem(), cell.index(0)).width(), 10);
  EXPECT_EQ(std::ranges::count(cell.asked, Qt::DisplayRole), 0);
}

TEST_F(ListPaneTest, DrawsTheFirstLineOfACell) {
  const ItemDelegate delegate;
  const auto shown = [&](const QString& text) { return delegate.displayText(text, QLocale()); };
  EXPECT_EQ(shown("one\r\ntwo"), "one…");
  EXPECT_EQ(shown("\r\n\none\ttwo\r\n \r\n"), "one two") << "nothing follows";
  EXPECT_EQ(shown("one\u2028two"), "one…");
  EXPECT_EQ(shown("\r\n"), "");
  EXPECT_EQ(shown(QString(1000, 'x')).size(), 1000);
  EXPECT_EQ(shown(QString(1001, 'x')).right(2), "x…");
}

TEST_F(ListPaneTest, TellsOfASelectionOnceAGesture) {
  Fill(10);
  const QPoint below(5, pane.viewport()->height() - 2);
  ClickRow(2);
  EXPECT_EQ(Told(), "selection left 2 ") << "selected first, then told of the button";
  ClickRow(2);
  EXPECT_EQ(Told(), "left 2 ") << "nothing changed";
  ClickRow(4, Qt::ShiftModifier);
  EXPECT_EQ(Told(), "selection left 4 ");
  ClickRow(3, Qt::ControlModifier);
  EXPECT_EQ(Told(), "selection left 3 ");
  QTest::keyClick(&pane, Qt::Key_Home);
  EXPECT_EQ(Told(), "selection ");
  QTest::mouseClick(pane.viewport(), Qt::LeftButton, {}, below);
  EXPECT_EQ(Told(), "left nowhere selection ") << "the selection goes when the button comes up";
  QTest::keyClick(&pane, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Told(), "copy ");
  list.SetSelection(RowRanges(widgets::RowRange{5, 6}));
  EXPECT_EQ(Told(), "") << "what the owner selects it knows";
}

TEST_F(ListPaneTest, LeavesTheRightButtonToTheOwner) {
  Fill(10);
  ClickRow(1);
  ClickRow(3, Qt::ShiftModifier);
  Told();
  for (const int row : {2, 7}) QTest::mouseClick(pane.viewport(), Qt::RightButton, {}, PlaceOf(row));
  QTest::mouseDClick(pane.viewport(), Qt::RightButton, {}, PlaceOf(8));
  EXPECT_EQ(Told(), "right 2 right 7 right 8 ");
  EXPECT_EQ(list.Selection(), RowRanges(widgets::RowRange{1, 4}));
  EXPECT_EQ(pane.menuPlace(), pane.viewport()->mapToGlobal(PlaceOf(8)));
  // By key on the selected item, which comes into sight; a window system may send both the key and an event of its own.
  Fill(100);
  list.SetSelection(RowRanges(widgets::RowRange{60, 61}));
  pane.scrollToTop();
  QTest::keyClick(&pane, Qt::Key_Menu);
  QTest::keyClick(&pane, Qt::Key_F10, Qt::ShiftModifier);
  EXPECT_EQ(Told(), "right 60 right 60 ");
  EXPECT_TRUE(pane.viewport()->rect().contains(pane.viewport()->mapFromGlobal(pane.menuPlace())));
}

TEST_F(ListPaneTest, GoesToARowByWhatItBeginsWith) {
  const auto rows = Fill(1'000'000);
  pane.setFocus();
  QTest::keyClicks(&pane, "4321");
  EXPECT_EQ(list.SelectedItem(), 4321U);
  EXPECT_LE(rows->asked, 5000U) << "from the present row on, the first column alone";
  rows->asked = 0;
  QTest::keyClicks(&pane, "x");
  EXPECT_EQ(list.SelectedItem(), 4321U);
  EXPECT_LE(rows->asked, 1'000'100U) << "each row once";
  EXPECT_EQ(Told(), "selection selection selection selection ");
}

TEST_F(ListPaneTest, ItsHeaderIsReachedAndUsedByKey) {
  Fill(5, 8);
  pane.activateWindow();
  pane.setFocus();
  QTest::keyClick(&pane, Qt::Key_Tab);
  QHeaderView& header = *pane.horizontalHeader();
  ASSERT_TRUE(header.hasFocus());
  const QImage onTheFirst = header.grab().toImage();
  QTest::keyClick(&header, Qt::Key_Right);
  EXPECT_NE(header.grab().toImage(), onTheFirst) << "one sees where one is";
  QTest::keyClick(&header, Qt::Key_Right);
  QTest::keyClick(&header, Qt::Key_Space);
  EXPECT_EQ(Heard(), "column 3 ");
  EXPECT_EQ(header.accessibleName(), "Column 2") << "its caption is said";
  const int width = header.sectionSize(2);
  QTest::keyClick(&header, Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(header.sectionSize(2), width + 10);
  EXPECT_EQ(list.headers()[2].width, (width + 10) * widgets::kTwipsPerPixel);
  QTest::keyClick(&header, Qt::Key_End);
  EXPECT_GT(pane.horizontalScrollBar()->value(), 0);
  QTest::keyClick(&header, Qt::Key_Home);
  EXPECT_EQ(pane.horizontalScrollBar()->value(), 0);
  list.SetHeaders({});
  QTest::keyClick(&header, Qt::Key_End);
  QTest::keyClick(&header, Qt::Key_Space);
  EXPECT_EQ(Heard(), "") << "there is no column";
}

TEST_F(ListPaneTest, SaysWhatTheIconsShow) {
  const auto rows = Fill(1'000'000);
  list.SetSelection(RowRanges(widgets::RowRange{1, 1'000'000}));
  QAccessibleInterface& table = *QAccessible::queryAccessibleInterface(&pane);
  QAccessibleInterface& cell = *table.tableInterface()->cellAt(999'999, 0);
  EXPECT_EQ(cell.text(QAccessible::Name), "999999.0, OK") << "with what the icon shows";
  EXPECT_TRUE(cell.state().selected);
  EXPECT_EQ(table.tableInterface()->cellAt(0, 1)->text(QAccessible::Name), "0.1");
  EXPECT_FALSE(table.tableInterface()->cellAt(0, 1)->state().selected);
  EXPECT_LE(rows->asked, 1000U) << "of what is not on the screen no more than that";
}

}  // namespace
}  // namespace quorvel::qt
