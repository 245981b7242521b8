// The drawn detail dialog: keys, buttons, sizes, and texts of any length and script.
#include "qt/DetailDialog.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <memory>
#include <string>
#include <vector>

#include "qt/Convert.h"
#include "qt/ListPane.h"
#include "support/RecordingPlatform.h"
#include "support/TextRows.h"

namespace quorvel::qt {
namespace {

constexpr std::size_t kMegabyte = 1'000'000;

std::string Repeated(std::string_view text, std::size_t size) {
  std::string repeated;
  while (repeated.size() < size) repeated += text;
  return repeated;
}

class DetailDialogTest : public testing::Test {
 protected:
  DetailDialogTest() {
    window.resize(800, 600);
    pane.resize(400, 200);
    window.show();
  }
  void Fill(std::vector<test::TextRows::Row> rows, std::size_t count) {
    list.SetHeaders({{.caption = "Step"}, {.caption = "Start"}, {.caption = "Report"}});
    list.SetRows(std::make_shared<test::TextRows>(std::move(rows), count));
    list.SetSelection(widgets::RowRanges({0, 1}));
  }
  // Rows 0, 1, 2, ... of which each fills the page.
  void FillNumbers(std::size_t count) {
    std::vector<test::TextRows::Row> rows;
    for (std::size_t row = 0; row < count; ++row) rows.push_back({std::to_string(row), "", "done"});
    Fill(rows, count);
  }
  bool Open() {
    const bool open = detail.ShowLVDetail(list, 300, 300, 9000, 6000);
    QCoreApplication::processEvents();
    return open;
  }
  void Press(Qt::Key key) { QTest::keyClick(dialog.focusWidget(), key); }
  template <class Widget>
  Widget& Of(const char* name) {
    return *dialog.findChild<Widget*>(QLatin1String(name));
  }
  std::string Title() { return FromQt(Of<QLabel>("lblTitle").text()); }

  test::RecordingPlatform platform;
  datasource::ErrorsProcess errors{platform};
  dlgLVDetail detail{platform, errors};
  widgets::ListView list{"lvMotherList"};
  QWidget window;
  ListPane pane{list, {}, &window};
  DetailDialog dialog{detail, &window};
  QPlainTextEdit& text = Of<QPlainTextEdit>("rtbDetail");
};

TEST_F(DetailDialogTest, OpensOverTheListAndDrawsData) {
  Fill({{"<b>a & b</b>\nsecond line", "2026-11-20 23:05:07", "<i>r</i>"}}, 1);
  ASSERT_TRUE(Open());
  EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
  EXPECT_EQ(dialog.windowTitle(), "History details");
  EXPECT_EQ(dialog.pos(), window.mapToGlobal(QPoint(20, 20)));
  EXPECT_EQ(Title(), "Step: <b>a & b</b>\nsecond line");
  EXPECT_EQ(Of<QLabel>("lblTitle").textFormat(), Qt::PlainText);
  EXPECT_TRUE(Of<QLabel>("lblTitle").font().bold());
  EXPECT_EQ(Of<QLabel>("lblDateStartValue").text(), "2026-11-20 23:05:07");
  EXPECT_FALSE(Of<QLabel>("lblDateEnd").isVisible());
  EXPECT_EQ(text.toPlainText(), "- Report: <i>r</i>\n\n");
  EXPECT_TRUE(text.isReadOnly() && text.hasFocus());
  for (const char* const name : {"cmdPrevious", "cmdNext", "cmdCopytoClipboard"}) {
    const auto& button = Of<QPushButton>(name);
    EXPECT_FALSE(button.icon().isNull() || button.toolTip().isEmpty() || button.accessibleName().isEmpty()) << name;
  }
}

TEST_F(DetailDialogTest, CutsATitleThatIsTooLongAndTellsIt) {
  Fill({{Repeated("long <title> ", 2000), "", "r"}, {"short", "", "r"}}, 2);
  Open();
  EXPECT_TRUE(Of<QLabel>("lblTitle").toolTip().contains("&lt;title&gt;"));
  Press(Qt::Key_PageDown);
  EXPECT_EQ(Of<QLabel>("lblTitle").toolTip(), "");
}

TEST_F(DetailDialogTest, TheFormHearsOfKeysFirst) {
  Fill({{"a", "", Repeated("line\n", 5000)}}, 3);
  Open();
  Press(Qt::Key_PageDown);
  EXPECT_EQ(list.SelectedItem(), 1U);
  EXPECT_EQ(text.verticalScrollBar()->value(), 0);
  Press(Qt::Key_Space);
  EXPECT_GT(text.verticalScrollBar()->value(), 0);
  Of<QPushButton>("cmdCopytoClipboard").setFocus();
  Press(Qt::Key_PageUp);
  EXPECT_EQ(list.SelectedItem(), 0U);
  QTest::keyClick(&dialog, Qt::Key_PageDown, Qt::ControlModifier);
  EXPECT_EQ(list.SelectedItem(), 0U);
  Press(Qt::Key_Escape);
  EXPECT_FALSE(dialog.isVisible() || detail.controls().form.shown());
}

TEST_F(DetailDialogTest, ClosesByEnterAndByItsFrameAndOpensAgain) {
  FillNumbers(2);
  Open();
  QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QString(), true);
  QCoreApplication::sendEvent(&text, &held);
  EXPECT_TRUE(dialog.isVisible()) << "the Enter that opened the dialog is held down still";
  Press(Qt::Key_Return);
  EXPECT_FALSE(dialog.isVisible());
  ASSERT_TRUE(Open());
  EXPECT_TRUE(text.hasFocus());
  dialog.close();
  EXPECT_FALSE(detail.controls().form.shown());
  ASSERT_TRUE(Open());
  QTest::mouseClick(&Of<QPushButton>("cmdClose"), Qt::LeftButton);
  EXPECT_FALSE(dialog.isVisible());
}

TEST_F(DetailDialogTest, ButtonsGoFromRowToRowAndKeepItInSightBehind) {
  FillNumbers(300);
  Open();
  auto& next = Of<QPushButton>("cmdNext");
  EXPECT_FALSE(Of<QPushButton>("cmdPrevious").isEnabled());
  for (int step = 0; step < 250; ++step) QTest::mouseClick(&next, Qt::LeftButton);
  EXPECT_EQ(Title(), "Step: 250");
  EXPECT_TRUE(pane.viewport()->rect().contains(pane.visualRect(pane.model()->index(250, 0)).center()));
  QTest::mouseClick(&Of<QPushButton>("cmdPrevious"), Qt::LeftButton);
  EXPECT_EQ(list.SelectedItem(), 249U);
  QTest::mouseClick(&Of<QPushButton>("cmdCopytoClipboard"), Qt::LeftButton);
  EXPECT_TRUE(platform.clipboard.starts_with("Step: 249\r\n"));
}

TEST_F(DetailDialogTest, TheTextTakesWhatASizeLeaves) {
  FillNumbers(1);
  Open();
  const QSize before = text.size();
  dialog.resize(dialog.size() + QSize(100, 50));
  QCoreApplication::processEvents();
  EXPECT_EQ(text.size(), before + QSize(100, 50));
  dialog.resize(10, 10);
  QCoreApplication::processEvents();
  EXPECT_EQ(dialog.size(), dialog.minimumSize());
  EXPECT_TRUE(dialog.rect().contains(Of<QPushButton>("cmdClose").geometry()));
}

TEST_F(DetailDialogTest, LaysALongReportOutOnceAndWhereItCanBeBroken) {
  Fill({{"lines", "", Repeated("A line of the report\r\n", kMegabyte)}, {"code", "", std::string(kMegabyte, 'x')}}, 2);
  Open();
  EXPECT_EQ(text.wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
  EXPECT_GT(text.blockCount(), 40'000);
  const QSignalSpy changes(text.document(), &QTextDocument::contentsChanged);
  dialog.resize(dialog.size() + QSize(10, 10));
  QCoreApplication::processEvents();
  EXPECT_EQ(changes.count(), 0);
  Press(Qt::Key_PageDown);
  EXPECT_EQ(text.wordWrapMode(), QTextOption::WrapAnywhere);
  EXPECT_EQ(text.document()->characterCount(), static_cast<int>(kMegabyte + std::string("- Report: ").size() + 3));
}

TEST_F(DetailDialogTest, KeepsEveryLetterOfOtherScripts) {
  const std::string report = "\u4e2d\u6587\u5831\u544a \u0645\u0631\u062d\u0628\u0627 \u05e9\u05dc\u05d5\u05dd\u00a0.";
  Fill({{"\u0627\u0644\u062e\u0637\u0648\u0629", "", report}}, 1);
  Open();
  EXPECT_EQ(FromQt(text.document()->firstBlock().text()), "- Report: " + report);
  EXPECT_EQ(Title(), "Step: \u0627\u0644\u062e\u0637\u0648\u0629");
  dialog.grab();
}

}  // namespace
}  // namespace quorvel::qt
