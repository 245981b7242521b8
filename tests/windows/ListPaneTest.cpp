// The native list: a million rows without an item, columns that change, and a selection that runs both ways.
#include "windows/ListPane.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <numeric>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "PaneHost.h"
#include "support/RecordingPlatform.h"
#include "support/TextRows.h"
#include "util/ListViewSort.h"
#include "windows/ItemLook.h"

namespace quorvel::windows {
namespace {

using test::LeftClick;
using test::PressKey;
using test::TextRows;
using widgets::ColumnTag;
using widgets::RowRange;
using widgets::RowRanges;

std::string CellIn(HWND list, int row, int column) {
  std::wstring text(70'000, L'\0');
  LVITEMW asked{};
  asked.iSubItem = column;
  asked.pszText = text.data();
  asked.cchTextMax = static_cast<int>(text.size());
  const LRESULT length =
      SendMessageW(list, LVM_GETITEMTEXTW, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&asked));
  return FromWide(std::wstring_view(text).substr(0, static_cast<std::size_t>(length)));
}

class WindowsListPaneTest : public testing::Test {
 protected:
  WindowsListPaneTest() {
    host.notify = [this](NMHDR& header) { return pane.Notify(header); };
    MoveWindow(pane.window(), 0, 0, host.scale.Of96(500), host.scale.Of96(400), TRUE);
    test::PumpMessages();
  }
  ~WindowsListPaneTest() override { host.notify = nullptr; }

  std::shared_ptr<TextRows> Fill(std::size_t count, std::size_t columns = 3) {
    std::vector<std::string> cells;
    for (std::size_t i = 0; i < columns; ++i) cells.push_back("cell " + std::to_string(i));
    auto rows = std::make_shared<TextRows>(std::vector<TextRows::Row>{std::move(cells)}, count);
    list.InBatch([&] {
      list.SetHeaders(std::vector<widgets::ColumnHeader>(columns, {.caption = "Column"}));
      list.SetRows(rows);
    });
    test::PumpMessages();
    UpdateWindow(pane.window());
    return rows;
  }
  // The rows in sight that are drawn on another colour than the list.
  RowRanges Highlighted() {
    test::PumpMessages();
    UpdateWindow(pane.window());
    RowRanges rows;
    const HDC drawn = GetDC(pane.window());
    for (std::size_t row = 0; row < std::min(list.Count(), kInSight); ++row) {
      const POINT place = PlaceOf(static_cast<int>(row));
      if (GetPixel(drawn, 1, place.y) != GetSysColor(COLOR_WINDOW)) rows.Add({row, row + 1});
    }
    ReleaseDC(pane.window(), drawn);
    return rows;
  }
  POINT PlaceOf(int row) {
    RECT place{};
    ListView_GetItemRect(pane.window(), row, &place, LVIR_BOUNDS);
    return {place.left + 40, (place.top + place.bottom) / 2};
  }
  void ReverseRows() {
    std::vector<std::uint32_t> rows(list.Count());
    std::iota(rows.rbegin(), rows.rend(), 0U);
    list.Reorder(std::move(rows));
  }
  std::string Heard() { return std::exchange(heard, ""); }

  static constexpr std::size_t kInSight = 10;  // at least
  test::PaneHost host;
  widgets::ListView list{"list"};
  std::string heard;
  std::function<void()> onDoubleClick;  // what the owner does then
  ListPane pane{list,
                {.columnClick = [this](std::size_t column) { heard += "column " + std::to_string(column) + " "; },
                 .doubleClick =
                     [this] {
                       heard += "double " + std::to_string(list.SelectedItem().value()) + " ";
                       if (onDoubleClick) onDoubleClick();
                     },
                 .keyDown = [this](std::int32_t key) { heard += "key " + std::to_string(key) + " "; },
                 .selectionChanged = [this] { heard += "selection "; },
                 .mouseDown =
                     [this](MouseButton button, std::optional<std::size_t> row) {
                       heard += button == MouseButton::kLeft ? "left " : "right ";
                       heard += row ? std::to_string(*row) + " " : "nowhere ";
                     },
                 .copy = [this] { heard += "copy "; },
                 .selectAll =
                     [this] {
                       list.SetSelection(RowRanges(RowRange{0, list.Count()}));
                     }},
                host.window(),
                host.icons};
};

TEST_F(WindowsListPaneTest, ShowsAMillionRowsWithoutAnItem) {
  int messages = 0;
  const Ear counter(pane.window(), [&](UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/) {
    EXPECT_NE(message, static_cast<UINT>(LVM_INSERTITEMW));
    ++messages;
    return std::optional<LRESULT>();
  });
  const auto rows = Fill(1'000'000);
  EXPECT_EQ(ListView_GetItemCount(pane.window()), 1'000'000);
  EXPECT_FALSE(test::Erases(pane.window())) << "it paints all of itself at once";
  EXPECT_LT(messages, 2000) << "a few for a row on the screen, none for others";
  const std::size_t cellsOnScreen = 3 * 40;
  EXPECT_GT(rows->asked, 0U);
  EXPECT_LE(rows->asked, 2 * cellsOnScreen);
  PressKey(pane.window(), VK_END);
  EXPECT_EQ(list.SelectedItem(), 999'999U);
  EXPECT_GT(list.Corner().row, 999'900U);
  {
    const test::Holding control(VK_CONTROL);
    PressKey(pane.window(), 'A');
  }
  EXPECT_EQ(list.Selection(), RowRanges(RowRange{0, 1'000'000}));
  EXPECT_EQ(ListView_GetSelectedCount(pane.window()), 1'000'000U);
}

TEST_F(WindowsListPaneTest, FollowsColumnsAndTheirWidths) {
  Fill(20, 3);
  list.SetHeaders({{.caption = "Only", .width = 3000}});
  ASSERT_EQ(Header_GetItemCount(pane.header()), 1);
  EXPECT_EQ(ListView_GetColumnWidth(pane.window(), 0), host.scale.Of96(200));
  list.SetHeaders({{.caption = "A", .alignment = widgets::Alignment::kRight, .icon = "ascending"}, {.caption = "B"}});
  HDITEMW shown{};
  shown.mask = HDI_FORMAT | HDI_IMAGE;
  SendMessageW(pane.header(), HDM_GETITEMW, 0, reinterpret_cast<LPARAM>(&shown));
  EXPECT_EQ(shown.fmt & HDF_JUSTIFYMASK, HDF_RIGHT);
  EXPECT_EQ(shown.iImage, host.icons.IndexOf("ascending"));
  HDITEMW dragged{};
  dragged.mask = HDI_WIDTH;
  dragged.cxy = host.scale.Of96(600);
  SendMessageW(pane.header(), HDM_SETITEMW, 1, reinterpret_cast<LPARAM>(&dragged));
  EXPECT_EQ(list.headers()[1].width, 9000) << "what the user drags is kept, though a scroll bar comes up";
  dragged.cxy = 0;
  SendMessageW(pane.header(), HDM_SETITEMW, 1, reinterpret_cast<LPARAM>(&dragged));
  EXPECT_GT(list.headers()[1].width, 0) << "no column is lost";
  list.SetRows(nullptr);
  list.SetHeaders({});
  EXPECT_EQ(Header_GetItemCount(pane.header()), 0);
}

TEST_F(WindowsListPaneTest, KeepsOneSelectionOnBothSides) {
  Fill(40);
  LeftClick(pane.window(), PlaceOf(2));
  {
    const test::Holding shift(VK_SHIFT);
    LeftClick(pane.window(), PlaceOf(5), MK_SHIFT);
  }
  {
    const test::Holding control(VK_CONTROL);
    LeftClick(pane.window(), PlaceOf(3), MK_CONTROL);
  }
  RowRanges expected;
  expected.Add({2, 3});
  expected.Add({4, 6});
  EXPECT_EQ(list.Selection(), expected);
  EXPECT_EQ(list.SelectedItem(), 2U) << "row 3 was clicked last, but it is not selected";
  Fill(kInSight);
  EXPECT_TRUE(Highlighted().empty());
  std::mt19937 random(1);
  for (int step = 0; step < 20; ++step) {
    RowRanges rows;
    for (int i = 0; i < 3; ++i) {
      const std::size_t first = random() % kInSight;
      rows.Add({first, std::min(first + random() % 3, kInSight)});
    }
    list.SetSelection(rows);
    ASSERT_EQ(Highlighted(), rows);
    ASSERT_EQ(list.Selection(), rows) << "drawing it changed it";
  }
  EXPECT_EQ(Heard(), "selection left 2 selection left 5 selection left 3 ") << "what the owner selects it knows";
}

TEST_F(WindowsListPaneTest, SelectsLongRangesByKeyAndBackAgain) {
  Fill(100'000);
  LeftClick(pane.window(), PlaceOf(3));
  {
    const test::Holding shift(VK_SHIFT);
    PressKey(pane.window(), VK_END);
  }
  EXPECT_EQ(list.Selection(), RowRanges(RowRange{3, 100'000}));
  {
    const test::Holding shift(VK_SHIFT);
    PressKey(pane.window(), VK_HOME);
  }
  EXPECT_EQ(list.Selection(), RowRanges(RowRange{0, 4}));
  EXPECT_EQ(Highlighted(), list.Selection());
  PressKey(pane.window(), VK_UP);  // there is nothing above
  EXPECT_EQ(list.Selection(), RowRanges(RowRange{0, 1}));
  EXPECT_EQ(Heard(), "selection left 3 selection selection selection ");
}

TEST_F(WindowsListPaneTest, SelectsWhatThePointerIsDraggedOver) {
  Fill(20);
  const auto move = [&](POINT place) {
    SendMessageW(pane.window(), WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(place.x, place.y));
  };
  const POINT start = PlaceOf(2);
  SendMessageW(pane.window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(start.x, start.y));
  move(PlaceOf(6));
  move(PlaceOf(5));
  EXPECT_EQ(list.Selection(), RowRanges(RowRange{2, 6}));
  SendMessageW(pane.window(), WM_LBUTTONUP, 0, MAKELPARAM(start.x, start.y));
  move(PlaceOf(8));
  EXPECT_EQ(list.Selection(), RowRanges(RowRange{2, 6})) << "the button is up";
  Heard();
  LeftClick(pane.window(), {host.scale.Of96(490), PlaceOf(3).y});
  EXPECT_EQ(Heard(), "left nowhere selection ") << "beside the rows, when the button comes up";
}

TEST_F(WindowsListPaneTest, AnswersForTheSelectionAndTakesItFromOutside) {
  Fill(1000);
  list.SetSelection(RowRanges(RowRange{5, 900}), 7);
  EXPECT_EQ(ListView_GetSelectedCount(pane.window()), 895U);
  EXPECT_EQ(ListView_GetNextItem(pane.window(), -1, LVNI_SELECTED), 5);
  EXPECT_EQ(ListView_GetNextItem(pane.window(), 899, LVNI_SELECTED), -1);
  EXPECT_EQ(ListView_GetNextItem(pane.window(), -1, LVNI_FOCUSED), 7);
  constexpr UINT kBoth = LVIS_SELECTED | LVIS_FOCUSED;
  EXPECT_EQ(ListView_GetItemState(pane.window(), 7, kBoth), kBoth);
  EXPECT_EQ(ListView_GetItemState(pane.window(), 4, LVIS_SELECTED), 0U);
  ListView_SetItemState(pane.window(), -1, 0, LVIS_SELECTED);
  ListView_SetItemState(pane.window(), 4, kBoth, kBoth);
  EXPECT_EQ(list.Selection(), RowRanges(RowRange{4, 5}));
  EXPECT_EQ(Heard(), "selection selection ");
}

TEST_F(WindowsListPaneTest, TellsWhatTheUserAsksFor) {
  Fill(20);
  RECT second{};
  Header_GetItemRect(pane.header(), 1, &second);
  LeftClick(pane.header(), {second.left + 20, 5});
  EXPECT_EQ(Heard(), "column 2 ");
  LeftClick(pane.window(), PlaceOf(7));
  LeftClick(pane.window(), PlaceOf(7));
  EXPECT_EQ(Heard(), "selection left 7 left 7 ") << "nothing changed the second time";
  test::DoubleClick(pane.window(), PlaceOf(3));
  EXPECT_EQ(Heard(), "selection left 3 double 3 ");
  PressKey(pane.window(), VK_RETURN);
  PressKey(pane.window(), VK_DOWN);
  EXPECT_EQ(Heard(), "key 13 selection ");
  const test::Holding control(VK_CONTROL);
  PressKey(pane.window(), VK_RETURN);
  PressKey(pane.window(), 'C');
  EXPECT_EQ(Heard(), "copy ");
}

TEST_F(WindowsListPaneTest, ButtonOfADoubleClickSelectsNothingInTheListThatComes) {
  Fill(20);
  const RowRanges first(RowRange{0, 1});
  onDoubleClick = [&] {
    Fill(5);
    list.SetSelection(first);
  };
  const POINT place = PlaceOf(3);
  test::DoubleClick(pane.window(), place);
  SendMessageW(pane.window(), WM_MOUSEMOVE, 0, MAKELPARAM(place.x, place.y));
  EXPECT_EQ(list.Selection(), first);
  EXPECT_EQ(Highlighted(), first);
}

TEST_F(WindowsListPaneTest, LeavesTheRightButtonToTheOwner) {
  Fill(100);
  list.SetSelection(RowRanges(RowRange{1, 4}));
  for (const int row : {2, 7}) test::RightClick(pane.window(), PlaceOf(row));
  EXPECT_EQ(list.Selection(), RowRanges(RowRange{1, 4}));
  POINT expected = PlaceOf(7);
  ClientToScreen(pane.window(), &expected);
  EXPECT_EQ(pane.menuPlace().y, expected.y);
  list.SetSelection(RowRanges(RowRange{60, 61}));
  list.ScrollTo({});
  SendMessageW(pane.window(), WM_KEYUP, VK_APPS, 1);
  EXPECT_EQ(Heard(), "right 2 right 7 right 60 ");
  POINT place = pane.menuPlace();
  ScreenToClient(pane.window(), &place);
  EXPECT_GT(place.y, 100) << "below the row, which came into sight";
}

TEST_F(WindowsListPaneTest, KeepsTheSelectedRowInSightWhenRowsChangePlaces) {
  Fill(1000, 30);
  list.ScrollTo({.row = 0, .left = 3000});
  EXPECT_EQ(list.Corner(), (widgets::ListCorner{0, 3000}));
  list.SetSelection(RowRanges(RowRange{2, 4}));
  ReverseRows();
  EXPECT_EQ(list.SelectedItem(), 997U);
  EXPECT_GT(list.Corner().row, 900U);
  EXPECT_EQ(list.Corner().left, 3000);
  list.ScrollTo({.row = 100, .left = 0});
  ReverseRows();
  EXPECT_EQ(list.Corner().row, 100U) << "what was not in sight before draws nobody away";
}

TEST_F(WindowsListPaneTest, GoesToARowByWhatItBeginsWith) {
  list.SetHeaders({{.caption = "Name"}});
  list.SetRows(std::make_shared<TextRows>(std::vector<TextRows::Row>{{"anna"}, {"ben"}, {"bill"}, {"carl"}}));
  test::TypeText(pane.window(), L"bi");
  EXPECT_EQ(list.SelectedItem(), 2U);
  EXPECT_EQ(Heard(), "selection selection ");
}

TEST_F(WindowsListPaneTest, CellsAreWholeAndLinesAreShort) {
  const std::string report(64'000, 'x');
  list.SetHeaders({{.caption = "Text"}, {.caption = "Report"}});
  list.SetRows(
      std::make_shared<TextRows>(std::vector<TextRows::Row>{{std::string("a\0b\r\n\tc", 7), report}, {"", "\xFF"}}));
  UpdateWindow(pane.window());
  EXPECT_EQ(CellIn(pane.window(), 0, 0), "a b\r\n\tc");
  EXPECT_EQ(CellIn(pane.window(), 0, 1), report);
  EXPECT_EQ(CellIn(pane.window(), 1, 1), "\xEF\xBF\xBD");
  EXPECT_EQ(LineOf(L"\r\n\none\ttwo\r\n \r\n"), L"one two") << "nothing follows";
  EXPECT_EQ(LineOf(L"one\x2028two"), L"one\x2026");
  EXPECT_EQ(LineOf(std::wstring(1001, L'x')).size(), 1001U) << "the last one is the ellipsis";
}

TEST_F(WindowsListPaneTest, SaysAllOfACellThatIsCutOff) {
  list.SetHeaders({{.caption = "Text", .width = 1500}});
  list.SetRows(std::make_shared<TextRows>(
      std::vector<TextRows::Row>{{"short"}, {"one\ntwo"}, {"longer than any column of a hundred pixels can show"}}));
  RowPainter painter(list, host.icons);
  painter.Prepare(FontOf(pane.window()), ScaleOf(pane.window()));
  EXPECT_EQ(painter.TextIfCut(0, 0, pane.header()), L"");
  EXPECT_EQ(painter.TextIfCut(1, 0, pane.header()), L"one\ntwo");
  EXPECT_EQ(painter.TextIfCut(2, 0, pane.header()).substr(0, 11), L"longer than");
}

TEST_F(WindowsListPaneTest, ShowsTheTipOfACellThatThePointerRestsOn) {
  const auto visibleTip = [&] {
    for (HWND tip = nullptr; (tip = FindWindowExW(nullptr, tip, TOOLTIPS_CLASSW, nullptr)) != nullptr;) {
      if (GetWindow(tip, GW_OWNER) == host.window() && IsWindowVisible(tip) != FALSE) return true;
    }
    return false;
  };
  list.SetHeaders({{.caption = "Text", .width = 1500}});
  list.SetRows(
      std::make_shared<TextRows>(std::vector<TextRows::Row>{{"longer than any column of a hundred pixels can show"}}));
  UpdateWindow(pane.window());
  RECT row{};
  ListView_GetItemRect(pane.window(), 0, &row, LVIR_BOUNDS);
  POINT place{row.left + 20, (row.top + row.bottom) / 2};
  ClientToScreen(pane.window(), &place);
  POINT pointer{};
  GetCursorPos(&pointer);
  SetCursorPos(place.x, place.y);
  const DWORD begin = GetTickCount();
  while (!visibleTip() && GetTickCount() - begin < 5000) {
    test::PumpMessages();
    Sleep(10);
  }
  EXPECT_TRUE(visibleTip());
  SetCursorPos(pointer.x, pointer.y);
}

TEST_F(WindowsListPaneTest, ItsHeaderIsUsedByKey) {
  Fill(5, 8);
  SetFocus(pane.header());
  PressKey(pane.header(), VK_RIGHT);
  PressKey(pane.header(), VK_RIGHT);
  PressKey(pane.header(), VK_SPACE);
  EXPECT_EQ(Heard(), "column 3 ");
  const widgets::Twips width = list.headers()[2].width;
  {
    const test::Holding control(VK_CONTROL);
    PressKey(pane.header(), VK_RIGHT);
  }
  EXPECT_EQ(list.headers()[2].width, width + 10 * widgets::kTwipsPerPixel);
  PressKey(pane.header(), VK_END);
  EXPECT_GT(list.Corner().left, 0);
  PressKey(pane.header(), VK_HOME);
  EXPECT_EQ(list.Corner().left, 0);
  list.SetHeaders({});
  PressKey(pane.header(), VK_END);
  PressKey(pane.header(), VK_SPACE);
  EXPECT_EQ(Heard(), "") << "there is no column";
}

// What a list sorts by that holds its rows itself.
struct Compare {
  std::int32_t (*routine)(std::size_t, std::size_t, std::int32_t);
  static int CALLBACK Rows(LPARAM first, LPARAM second, LPARAM compare) {
    return reinterpret_cast<const Compare*>(compare)->routine(static_cast<std::size_t>(first),
                                                              static_cast<std::size_t>(second), 1);
  }
};

class PlainList {
 public:
  PlainList(HWND parent, const std::vector<TextRows::Row>& rows)
      : window_(CreateWindowExW(0, WC_LISTVIEWW, L"", WS_CHILD | LVS_REPORT, 0, 0, 100, 100, parent, nullptr, nullptr,
                                nullptr)) {
    LVCOLUMNW column{};
    SendMessageW(window_.get(), LVM_INSERTCOLUMNW, 0, reinterpret_cast<LPARAM>(&column));
    for (std::size_t row = 0; row < rows.size(); ++row) {
      std::wstring text = ToWide(rows[row][0]);
      LVITEMW item{};
      item.mask = LVIF_TEXT | LVIF_PARAM;
      item.iItem = static_cast<int>(row);
      item.pszText = text.data();
      item.lParam = static_cast<LPARAM>(row);
      SendMessageW(window_.get(), LVM_INSERTITEMW, 0, reinterpret_cast<LPARAM>(&item));
    }
  }
  void Sort(const Compare& compare) {
    SendMessageW(window_.get(), LVM_SORTITEMS, reinterpret_cast<WPARAM>(&compare),
                 reinterpret_cast<LPARAM>(Compare::Rows));
  }
  HWND window() const { return window_.get(); }

 private:
  UniqueWindow window_;
};

std::vector<TextRows::Row> AllCells(HWND list) {
  std::vector<TextRows::Row> rows;
  for (int row = 0; row < ListView_GetItemCount(list); ++row) rows.push_back({CellIn(list, row, 0)});
  return rows;
}

TEST_F(WindowsListPaneTest, SortsAsANativeListDoesThatHoldsItsRows) {
  const test::RecordingPlatform platform;
  std::mt19937 random(1);
  for (const ColumnTag tag : {ColumnTag::kDates, ColumnTag::kNumbers}) {
    std::vector<TextRows::Row> cells;
    for (int i = 0; i < 300; ++i) {
      const DateValue date = 46000 + static_cast<DateValue>(random() % 50) / 7;
      cells.push_back({tag == ColumnTag::kDates ? platform.FormatDate(date, DateFormat::kGeneralDate)
                                                : std::to_string(random() % 90)});
    }
    list.SetHeaders({{.caption = "Column", .tag = tag}});
    list.SetSortKey(-1);
    list.SetRows(std::make_shared<TextRows>(cells));
    for (const auto order : {widgets::SortOrder::kAscending, widgets::SortOrder::kDescending}) {
      const std::vector<TextRows::Row> before = AllCells(pane.window());
      PlainList plain(host.window(), before);
      widgets::ListView copy("copy");
      copy.SetHeaders({{.caption = "Column"}});
      copy.SetRows(std::make_shared<TextRows>(before));
      {
        const util::CustomSort sort(platform, copy, order);
        plain.Sort({tag == ColumnTag::kDates ? util::CompareDates : util::CompareNumbers});
      }
      util::ListViewSortColumn(platform, list, 1);
      ASSERT_EQ(list.sortOrder(), order);
      EXPECT_EQ(AllCells(pane.window()), AllCells(plain.window()));
      EXPECT_NE(AllCells(pane.window()), before);
    }
  }
}

}  // namespace
}  // namespace quorvel::windows
