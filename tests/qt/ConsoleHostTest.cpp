// The console as a host: its menus follow the viewer, and it does what the viewer asks for.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <QTextBrowser>

#include "console/HistorySession.h"
#include "console/ReportWindow.h"
#include "qt/ListPane.h"
#include "qt/TreePane.h"
#include "support/SmallHistory.h"

namespace quorvel::console {
namespace {

using testing::HasSubstr;

class ConsoleHostTest : public testing::Test {
 protected:
  ConsoleHostTest() {
    window.resize(1000, 600);
    window.show();
    session.OpenHistory(QString::fromStdString(history.url()));
  }
  qt::ProcessLogWidget& viewer() { return *static_cast<qt::ProcessLogWidget*>(window.centralWidget()); }
  ucProcessLog& control() { return viewer().control(); }
  widgets::ListView& list() { return control().controls().lvMotherList; }
  // The entry of that name in the menu bar.
  QAction* Entry(const char* name) {
    for (QAction* const menu : window.menuBar()->actions()) {
      for (QAction* const entry : menu->menu()->actions()) {
        if (entry->objectName() == name) return entry;
      }
    }
    return nullptr;
  }
  // As a user does, by a click on the row that holds this text.
  void ClickRow(const std::string& text) {
    const QAbstractItemModel& rows = *viewer().list().model();
    for (int row = 0; row < rows.rowCount(); ++row) {
      for (int column = 0; column < rows.columnCount(); ++column) {
        const QModelIndex index = rows.index(row, column);
        if (index.data().toString().toStdString() != text) continue;
        viewer().list().scrollTo(index);
        const QPoint at = viewer().list().visualRect(index).center();
        QTest::mouseClick(viewer().list().viewport(), Qt::LeftButton, {}, at);
        return;
      }
    }
    FAIL() << "no row with " << text;
  }
  void ExpectMenusAsInTheViewer() {
    for (const widgets::Menu* const menu : {&control().controls().mnu_Popup, &control().controls().mnu_PopupTV}) {
      for (const widgets::MenuEntry& entry : menu->entries()) {
        const QAction* const action = Entry(entry.name.c_str());
        ASSERT_NE(action, nullptr) << entry.name;
        EXPECT_EQ(action->isVisible(), entry.visible) << entry.name;
        EXPECT_EQ(action->isSeparator() || action->isEnabled(), entry.enabled) << entry.name;
      }
    }
  }
  std::string SelectedNode() {
    const widgets::TreeView& tree = control().controls().tvMotherList;
    return std::string(tree.Key(tree.Selected()));
  }
  std::string Note() { return window.findChild<QLabel*>("Note")->text().toStdString(); }

  test::SmallHistory history;
  test::TemporaryFolder folder;
  ConsoleWindow window;
  HistorySession session{window, tlFromType::tlOneProcess, -1, Audience::kTerminal};
};

TEST_F(ConsoleHostTest, MenusFollowTheViewer) {
  ExpectMenusAsInTheViewer();
  EXPECT_TRUE(Entry("mnu_report")->isVisible());
  EXPECT_FALSE(Entry("mnu_open")->isEnabled()) << "no row is selected";
  ClickRow("104");
  ExpectMenusAsInTheViewer();
  EXPECT_TRUE(Entry("mnu_open")->isEnabled());
  Entry("mnu_copy")->trigger();
  EXPECT_THAT(QGuiApplication::clipboard()->text().toStdString(), HasSubstr("104\t"));
  ASSERT_TRUE(session.ChooseTab("System"));
  viewer().list().setFocus();
  ExpectMenusAsInTheViewer();
  EXPECT_TRUE(Entry("mnu_open_file")->isVisible());
  EXPECT_FALSE(Entry("mnu_stop_execution")->isVisible());
  control().controls().mnu_Popup.SetEntryEnabled("mnu_copy", false);
  auto* const log = static_cast<QMenu*>(Entry("mnu_copy")->associatedObjects().constFirst());
  log->popup(QPoint(0, 0));
  EXPECT_FALSE(Entry("mnu_copy")->isEnabled()) << "they are looked at when the menu comes up";
  log->hide();
}

TEST_F(ConsoleHostTest, ShowsAReportOfTheSelectedRuns) {
  ClickRow("104");
  ASSERT_TRUE(Entry("mnu_report")->isEnabled());
  Entry("mnu_report")->trigger();
  auto* const report = viewer().findChild<QDialog*>("ReportWindow");
  ASSERT_NE(report, nullptr);
  EXPECT_TRUE(report->isVisible());
  EXPECT_FALSE(report->isModal());
  auto* const paper = report->findChild<QTextBrowser*>();
  EXPECT_TRUE(paper->hasFocus() || report->focusWidget() == paper) << "keys scroll at once";
  EXPECT_THAT(paper->toPlainText().toStdString(), HasSubstr("104"));
  testing::internal::CaptureStderr();
  static_cast<ReportWindow*>(report)->SaveTo("/no/such/folder/report.pdf");
  EXPECT_THAT(testing::internal::GetCapturedStderr(), HasSubstr("/no/such/folder/report.pdf"));
  QTest::keyClick(report, Qt::Key_Escape);
  EXPECT_FALSE(report->isVisible());
}

TEST_F(ConsoleHostTest, GoesFromAnAlarmToItsRun) {
  constexpr const char* kRunOfAlarm = "LPROC|11|0|100";  // not the newest of its process, and long ago
  ASSERT_TRUE(session.ChooseTab("Alarms"));
  std::int32_t viewContext = 22;
  ClickRow("disk full");
  control().m_MenuCall(viewContext);
  EXPECT_THAT(Note(), HasSubstr("nothing to go to")) << "no run raised it";
  EXPECT_EQ(control().controls().sstProcessLog.currentCaption(), "Alarms");
  ClickRow("mail sent");
  control().m_MenuCall(viewContext);
  EXPECT_EQ(SelectedNode(), kRunOfAlarm);
  EXPECT_EQ(control().controls().sstProcessLog.currentCaption(), "Processes");
  EXPECT_EQ(Note(), "");
  ASSERT_TRUE(session.ChooseTab("Alarms"));
  history.Sql("DELETE FROM station_run WHERE process_run_id = 100; DELETE FROM process_run WHERE process_run_id = 100");
  ClickRow("mail sent");
  control().m_MenuCall(viewContext);
  EXPECT_THAT(Note(), HasSubstr("not in the history any more"));
}

TEST_F(ConsoleHostTest, FindsTheProcessesOfAViewerOpenedForAlarms) {
  control().p_FromType(tlFromType::tlAllAlarms);
  control().m_GetLogByAlarms();
  ClickRow("mail sent");
  std::int32_t viewContext = 22;
  control().m_MenuCall(viewContext);
  EXPECT_EQ(SelectedNode(), "LPROC|11|0|100");
  EXPECT_EQ(control().controls().sstProcessLog.currentCaption(), "Processes");
}

}  // namespace
}  // namespace quorvel::console
