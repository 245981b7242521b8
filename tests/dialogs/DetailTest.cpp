// The detail dialog: what it shows of a row, how it goes from row to row, and what it does where that cannot be.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "dialogs/dlgLVDetail.h"
#include "support/RecordingPlatform.h"
#include "support/TextRows.h"

namespace quorvel {
namespace {

constexpr std::int32_t kEscape = 27;
constexpr std::int32_t kPageUp = 33;
constexpr std::int32_t kPageDown = 34;

// Dates as another region writes them; the clipboard may be out of order.
class RegionalPlatform final : public test::RecordingPlatform {
 public:
  std::string FormatDate(DateValue date, DateFormat format) const override {
    return "on " + StandardPlatform::FormatDate(date, format);
  }
  std::optional<DateValue> ParseDate(std::string_view text) const override {
    return text.starts_with("the ") ? StandardPlatform::ParseDate(text.substr(4)) : std::nullopt;
  }
  void SetClipboardText(std::string_view text) override {
    if (clipboardFails) throw Error(SystemError::kPermissionDenied, "The clipboard is in use");
    RecordingPlatform::SetClipboardText(text);
  }
  bool clipboardFails = false;
};

class DetailTest : public testing::Test {
 protected:
  void Fill(std::vector<std::string> captions, std::shared_ptr<const test::TextRows> rows) {
    std::vector<widgets::ColumnHeader> headers;
    for (std::string& caption : captions) headers.push_back({.caption = std::move(caption)});
    list.SetHeaders(std::move(headers));
    list.SetRows(std::move(rows));
  }
  void Fill(std::vector<std::string> captions, std::vector<test::TextRows::Row> rows) {
    Fill(std::move(captions), std::make_shared<test::TextRows>(std::move(rows)));
  }
  void Select(std::size_t row) { list.SetSelection(widgets::RowRanges({row, row + 1})); }
  bool Show() { return dialog.ShowLVDetail(list, 300, 450, 9000, 6000); }
  // Title, then the buttons that lead somewhere.
  std::string Shown() const {
    return c.lblTitle.text() + (c.cmdPrevious.enabled() ? " <" : "") + (c.cmdNext.enabled() ? " >" : "");
  }

  RegionalPlatform platform;
  datasource::ErrorsProcess errors{platform};
  int moves = 0;
  dlgLVDetail dialog{platform, errors, [this] { ++moves; }};
  const dlgLVDetailControls& c = dialog.controls();
  widgets::ListView list{"lvMotherList"};
};

TEST_F(DetailTest, ShowsARowAsAPageAndCopiesIt) {
  Fill({"Command", "Start", "End", "Report", "Path", "end"},
       {{"copy & go", "the 2026-11-20 23:05:07", "", "line\r\nline", "", "never"}});
  Select(0);
  ASSERT_TRUE(Show());
  EXPECT_EQ(c.form.text(), "History details");
  EXPECT_EQ(c.form.bounds(), (widgets::Rect{300, 450, 8730, 5730}));
  EXPECT_EQ(Shown(), "Command: copy & go");
  EXPECT_TRUE(c.lblDateStart.visible() && c.lblDateStartValue.visible());
  EXPECT_FALSE(c.lblDateEnd.visible() || c.lblDateEndValue.visible());
  dialog.cmdCopytoClipboard_Click();
  EXPECT_EQ(platform.clipboard,
            "Command: copy & go\r\nStart: on 2026-11-20 23:05:07\r\nEnd: \r\n"
            "Description: - Report: line\r\nline\r\n\r\n- end: never\r\n\r\n");

  platform.clipboardFails = true;
  dialog.cmdCopytoClipboard_Click();
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_NE(platform.messages[0].find("dlgLVDetail.cmdCopytoClipboard_Click"), std::string::npos);
  EXPECT_EQ(platform.clipboard, "");
  EXPECT_TRUE(c.form.shown());
}

TEST_F(DetailTest, StaysClosedWhereThereIsNothingToShow) {
  EXPECT_FALSE(Show());
  Fill({"Command", "Start", "End", "Report"}, {{"c", "the 2026-11-20", "the 2026-11-21", ""}, {"d", "", "", "r"}});
  EXPECT_FALSE(Show());
  Select(0);
  EXPECT_FALSE(Show());
  Select(1);
  EXPECT_TRUE(Show());
  Select(0);
  EXPECT_FALSE(Show());
  EXPECT_FALSE(c.form.shown());
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(DetailTest, GoesFromRowToRowUpToTheEnds) {
  Fill({"Row", "Report"}, {{"1", "a"}, {"2", "b"}, {"3", "c"}});
  Select(0);
  Show();
  EXPECT_EQ(Shown(), "Row: 1 >");
  EXPECT_TRUE(dialog.Form_KeyDown(kPageUp));
  EXPECT_EQ(Shown(), "Row: 1 >");
  dialog.cmdNext_Click();
  EXPECT_EQ(Shown(), "Row: 2 < >");
  EXPECT_EQ(list.Selection(), widgets::RowRanges({1, 2}));
  EXPECT_TRUE(dialog.Form_KeyDown(kPageDown));
  EXPECT_EQ(Shown(), "Row: 3 <");
  EXPECT_EQ(c.rtbDetail.text(), "- Report: c\r\n\r\n");
  dialog.cmdNext_Click();
  dialog.cmdPrevious_Click();
  EXPECT_EQ(Shown(), "Row: 2 < >");
  EXPECT_EQ(moves, 3);

  EXPECT_FALSE(dialog.Form_KeyDown(13));
  EXPECT_TRUE(c.form.shown());
  EXPECT_TRUE(dialog.Form_KeyDown(kEscape));
  EXPECT_FALSE(c.form.shown());
  EXPECT_EQ(list.SelectedItem(), 1U);
  dialog.cmdNext_Click();
  EXPECT_EQ(list.SelectedItem(), 1U) << "a closed dialog holds no list";
}

TEST_F(DetailTest, LeavesOtherSelectedRowsAlone) {
  Fill({"Row", "Report"}, {{"1", "a"}, {"2", "b"}, {"3", "c"}, {"4", "d"}});
  list.SetSelection(widgets::RowRanges({1, 4}), 1);
  Show();
  dialog.cmdNext_Click();
  EXPECT_EQ(list.Selection(), widgets::RowRanges({2, 4}));
  EXPECT_EQ(list.SelectedItem(), 2U);
}

TEST_F(DetailTest, KeepsThePageOverARowWithoutDetail) {
  Fill({"Row", "Start", "Report"}, {{"1", "", "a"}, {"2", "the 2026-11-20", ""}, {"3", "", "c"}});
  Select(0);
  Show();
  dialog.cmdNext_Click();
  EXPECT_EQ(Shown(), "Row: 1 < >");
  EXPECT_TRUE(c.lblDateStart.visible());
  dialog.cmdNext_Click();
  EXPECT_EQ(Shown(), "Row: 3 <");
  EXPECT_FALSE(c.lblDateStart.visible());
}

TEST_F(DetailTest, SaysOnceThatACellIsNoDate) {
  Fill({"Row", "Start", "Report"}, {{"1", "", "a"}, {"2", "2026-11-20", "b"}, {"3", "", "c"}});
  Select(1);
  EXPECT_FALSE(Show());
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_NE(platform.messages[0].find("Quorvel: dlgLVDetail.m_SetInformations()"), std::string::npos);
  EXPECT_NE(platform.messages[0].find("Number: 13\r\n"), std::string::npos);
  EXPECT_EQ(platform.messages[0].find("ShowLVDetail"), std::string::npos);

  Select(0);
  ASSERT_TRUE(Show());
  dialog.cmdNext_Click();
  EXPECT_EQ(platform.messages.size(), 2U);
  EXPECT_EQ(c.rtbDetail.text(), "- Report: a\r\n\r\n");
  dialog.cmdNext_Click();
  EXPECT_EQ(Shown(), "Row: 3 <");
}

TEST_F(DetailTest, LooksAtOneRowOfAMillion) {
  const auto rows = std::make_shared<test::TextRows>(std::vector<test::TextRows::Row>{{"1", "a"}}, 1'000'000);
  Fill({"Row", "Report"}, rows);
  Select(999'998);
  Show();
  rows->asked = 0;
  dialog.cmdNext_Click();
  EXPECT_EQ(Shown(), "Row: 1 <");
  EXPECT_EQ(rows->asked, list.headers().size());
}

}  // namespace
}  // namespace quorvel
