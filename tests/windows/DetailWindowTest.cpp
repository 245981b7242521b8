// The detail dialog as a window of Windows: keys, buttons, sizes, and texts of any length and script.
#include "windows/DetailWindow.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "support/RecordingPlatform.h"
#include "support/TextRows.h"
#include "windows/Contents.h"
#include "windows/Convert.h"
#include "windows/Handles.h"

namespace quorvel::windows {
namespace {

constexpr LPARAM kRepeated = 1 << 30;

class DetailWindowTest : public testing::Test {
 protected:
  DetailWindowTest() {
    ShowWindow(form.get(), SW_SHOW);
    SetForegroundWindow(form.get());
  }
  void Fill(std::vector<test::TextRows::Row> rows, std::size_t count) {
    list.SetHeaders({{.caption = "Step"}, {.caption = "Start"}, {.caption = "Report"}});
    list.SetRows(std::make_shared<test::TextRows>(std::move(rows), count));
    list.SetSelection(widgets::RowRanges({0, 1}));
  }
  // Rows 0, 1, 2, ... of which each fills the page.
  void OpenNumbers(std::size_t count) {
    std::vector<test::TextRows::Row> rows;
    for (std::size_t row = 0; row < count; ++row) rows.push_back({std::to_string(row), "", "done"});
    Fill(rows, count);
    ASSERT_TRUE(Open());
  }
  bool Open() {
    const bool open = detail.ShowLVDetail(list, 300, 300, 9000, 6000);
    return open && dialog.window() != nullptr;
  }
  // Through a loop that knows nothing of the dialog.
  void Press(WPARAM key, LPARAM times = 1) {
    PostMessageW(GetFocus(), WM_KEYDOWN, key, times);
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }
  std::string TextIn(const widgets::Control& model) { return FromWide(TextOf(dialog.WindowOf(model))); }
  SIZE Inner() {
    RECT inner{};
    GetClientRect(dialog.window(), &inner);
    return {inner.right, inner.bottom};
  }

  test::RecordingPlatform platform;
  datasource::ErrorsProcess errors{platform};
  dlgLVDetail detail{platform, errors};
  dlgLVDetailControls& c = detail.controls();
  widgets::ListView list{"lvMotherList"};
  UniqueWindow form{CreateWindowExW(0, L"STATIC", L"Form", WS_OVERLAPPEDWINDOW, 10, 10, 900, 700, nullptr, nullptr,
                                    nullptr, nullptr)};
  DetailWindow dialog{detail, form.get()};
};

TEST_F(DetailWindowTest, OpensOverItsOwnerAndDrawsData) {
  const std::string letters = "- Report: a & b \u05e9\u05dc\u05d5\u05dd \U0001F600\r\n\r\n";
  Fill({{"a & b\nsecond line", "2026-11-20 23:05:07", "a & b \u05e9\u05dc\u05d5\u05dd \U0001F600"}}, 1);
  ASSERT_TRUE(Open());
  EXPECT_EQ(FromWide(TextOf(dialog.window())), "History details");
  EXPECT_EQ(TextIn(c.lblTitle), "Step: a & b second line");
  EXPECT_EQ(TextIn(c.lblDateStartValue), "2026-11-20 23:05:07");
  EXPECT_EQ(IsWindowVisible(dialog.WindowOf(c.lblDateEnd)), FALSE);
  EXPECT_EQ(TextIn(c.rtbDetail), letters);
  EXPECT_EQ(GetWindow(dialog.window(), GW_OWNER), form.get());
  EXPECT_EQ(IsWindowEnabled(form.get()), FALSE);
  EXPECT_EQ(GetFocus(), dialog.WindowOf(c.rtbDetail));
  Press(VK_ESCAPE);
  EXPECT_EQ(dialog.window(), nullptr);
  EXPECT_NE(IsWindowEnabled(form.get()), FALSE);
}

TEST_F(DetailWindowTest, TheFormHearsOfKeysFirstInAnyMessageLoop) {
  OpenNumbers(3);
  Press(VK_NEXT);
  Press(VK_NEXT);
  EXPECT_EQ(TextIn(c.lblTitle), "Step: 2");
  EXPECT_EQ(IsWindowEnabled(dialog.WindowOf(c.cmdNext)), FALSE);
  Press(VK_PRIOR);
  EXPECT_EQ(TextIn(c.lblTitle), "Step: 1");
  EXPECT_TRUE(dialog.TakeKey({GetFocus(), WM_KEYDOWN, VK_PRIOR, 1, 0, {}})) << "for loops that ask";
  EXPECT_EQ(TextIn(c.lblTitle), "Step: 0");
  std::vector<HWND> visited;
  for (int i = 0; i < 4; ++i) {
    Press(VK_TAB);
    visited.push_back(GetFocus());
  }
  EXPECT_EQ(visited, (std::vector<HWND>{dialog.WindowOf(c.cmdNext), dialog.WindowOf(c.cmdCopytoClipboard),
                                        dialog.WindowOf(c.cmdClose), dialog.WindowOf(c.rtbDetail)}))
      << "past what is disabled, in a circle";
  EXPECT_FALSE(dialog.TakeKey({form.get(), WM_KEYDOWN, VK_ESCAPE, 1, 0, {}})) << "of another window";
}

TEST_F(DetailWindowTest, ClosesByEnterAndByItsFrameAndOpensAgain) {
  OpenNumbers(2);
  Press(VK_RETURN, 1 | kRepeated);
  EXPECT_TRUE(c.form.shown()) << "the Enter that opened it is down still";
  Press(VK_RETURN);
  EXPECT_FALSE(c.form.shown());
  ASSERT_TRUE(Open());
  SendMessageW(dialog.window(), WM_CLOSE, 0, 0);
  EXPECT_FALSE(c.form.shown());
  ASSERT_TRUE(Open());
  SetFocus(dialog.WindowOf(c.cmdNext));
  Press(VK_RETURN);
  EXPECT_EQ(TextIn(c.lblTitle), "Step: 1") << "the button that has the focus";
  EXPECT_EQ(GetFocus(), dialog.WindowOf(c.rtbDetail)) << "which is disabled then";
  SendMessageW(GetFocus(), WM_SYSCHAR, L'c', 1 << 29);
  EXPECT_FALSE(c.form.shown()) << "by its access key";
  EXPECT_NE(IsWindowEnabled(form.get()), FALSE);
}

TEST_F(DetailWindowTest, TheTextTakesWhatASizeLeavesDownToTheLeastSize) {
  OpenNumbers(1);
  const SIZE before = Inner();
  RECT frame{};
  GetWindowRect(dialog.window(), &frame);
  RECT text{};
  GetClientRect(dialog.WindowOf(c.rtbDetail), &text);
  const LONG width = text.right;
  SetWindowPos(dialog.window(), nullptr, 0, 0, frame.right - frame.left + 100, frame.bottom - frame.top + 50,
               SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_EQ(Inner().cx, before.cx + 100);
  EXPECT_EQ(c.form.bounds().width, (before.cx + 100) * widgets::kTwipsPerPixel);
  GetClientRect(dialog.WindowOf(c.rtbDetail), &text);
  EXPECT_EQ(text.right, width + 100);
  SetWindowPos(dialog.window(), nullptr, 0, 0, 10, 10, SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_EQ(Inner().cx, c.form.leastWidth() / widgets::kTwipsPerPixel);
  EXPECT_EQ(Inner().cy, c.form.leastHeight() / widgets::kTwipsPerPixel);
}

TEST_F(DetailWindowTest, HoldsAReportOfAMegabyte) {
  const std::string report(1'000'000, 'x');
  Fill({{"0", "", report + "end"}}, 1);
  ASSERT_TRUE(Open());
  EXPECT_EQ(TextIn(c.rtbDetail).size(), c.rtbDetail.text().size());
}

TEST_F(DetailWindowTest, GoesWithTheViewer) {
  OpenNumbers(1);
  form.reset();
  EXPECT_EQ(dialog.window(), nullptr) << "its owner ended it";
  EXPECT_EQ(dialog.WindowOf(c.rtbDetail), nullptr);
  detail.cmdClose_Click();
}

}  // namespace
}  // namespace quorvel::windows
