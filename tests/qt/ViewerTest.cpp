// The viewer as a widget: gestures on real widgets reach the control, and what the control says is drawn.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAction>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QStatusBar>
#include <QTabBar>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>
#include <algorithm>
#include <stdexcept>
#include <utility>

#include "qt/Guard.h"
#include "qt/ListPane.h"
#include "qt/ProcessLogWidget.h"
#include "qt/TreePane.h"
#include "support/FakeSources.h"
#include "support/RecordingPlatform.h"

namespace quorvel::qt {
namespace {

using test::StationRows;
using testing::HasSubstr;

class ViewerTest : public testing::Test {
 protected:
  ViewerTest() {
    StationRows rows;
    rows.Station(12, 345, 7, StationRows::kOk).Station(30, 343, 7, StationRows::kNotOk);
    history.processLogs = rows.Records();
    history.processLogsCount = rows.count();
    form.setCentralWidget(viewer);
    viewer->control().p_Connect(1);
    viewer->control().p_FromType(tlFromType::tlOneProcess);
    form.resize(1000, 600);
    form.show();
    viewer->control().m_GetLogByProcess();
    QCoreApplication::processEvents();
  }
  ~ViewerTest() override { delete viewer; }

  template <class Widget>
  Widget& Find(const char* name) {
    auto* const widget = form.findChild<Widget*>(name);
    if (widget == nullptr) throw std::out_of_range(name);
    return *widget;
  }
  ProcessLogControls& controls() { return viewer->control().controls(); }
  void ChooseAll() {
    Find<QComboBox>("cboState").setFocus();
    QTest::keyClick(&Find<QComboBox>("cboState"), Qt::Key_Home);
  }
  std::size_t Queries() {
    return static_cast<std::size_t>(std::ranges::count_if(
        history.calls, [](const std::string& call) { return call.starts_with("GetProcessLogs "); }));
  }

  test::RecordingPlatform platform;
  test::FakeHistory history;
  test::FakeFactory factory{history};
  QMainWindow form;
  ProcessLogWidget* viewer = new ProcessLogWidget(factory, platform);
};

TEST_F(ViewerTest, OptionsAreTypedAndChosenLikeInAnyForm) {
  EXPECT_FALSE(Find<QLineEdit>("txtDuring").isVisible()) << "the last execution needs no period";
  ChooseAll();
  EXPECT_EQ(controls().cboState.selectedText(), "All");
  auto& length = Find<QLineEdit>("txtDuring");
  ASSERT_TRUE(length.isVisible());
  length.selectAll();
  QTest::keyClicks(&length, "150");
  EXPECT_EQ(controls().txtDuring.text(), "150");
  QTest::keyClick(&Find<QComboBox>("cboDuringUnit"), Qt::Key_End);
  EXPECT_EQ(length.text(), "99") << "cut as soon as a unit is chosen";
  Find<QDateTimeEdit>("dtpDate").setDate(QDate(2026, 3, 29));
  Find<QDateTimeEdit>("dtpHour").setTime(QTime(2, 30, 5));  // does not exist where summer time begins on that day
  EXPECT_EQ(FormatFixedDateTime(controls().dtpDate.value() + controls().dtpHour.value()), "2026-03-29 02:30:05");
  const auto buttons = Find<QWidget>("updDuring").findChildren<QToolButton*>();
  QTest::mouseClick(buttons.last(), Qt::LeftButton);
  EXPECT_EQ(length.text(), QString::fromStdString(std::to_string(controls().updDuring.value())));
}

TEST_F(ViewerTest, RefreshByKeyAndButtonKeepsWhatIsDrawnInStep) {
  EXPECT_EQ(Queries(), 1U);
  viewer->tree().setFocus();
  QTest::keyClick(&viewer->tree(), Qt::Key_F5);
  EXPECT_EQ(Queries(), 2U);
  QTest::keyClick(&viewer->tree(), Qt::Key_R, Qt::AltModifier);
  EXPECT_TRUE(QTest::qWaitFor([&] { return Queries() == 3; })) << "by the access key, once the button came up again";
  EXPECT_EQ(viewer->tree().model()->rowCount(), 2);
  QTest::keyClick(&viewer->tree(), Qt::Key_Right);
  QTest::keyClick(&viewer->tree(), Qt::Key_Down);
  EXPECT_EQ(viewer->list().model()->index(0, 0).data().toString(), "OK : 100% (1)");
  QTest::keyClick(&viewer->tree(), Qt::Key_Down);
  EXPECT_EQ(viewer->list().model()->columnCount(), 11) << "the next process lists its runs";
}

TEST_F(ViewerTest, WhatTheControlSaysIsNoGesture) {
  const DateValue oddTime = 0.3 + 1e-7;  // between two seconds
  controls().dtpHour.SetValue(oddTime);
  EXPECT_EQ(controls().dtpHour.value(), oddTime);
  controls().sstProcessLog.SetCurrent(1);
  EXPECT_EQ(Queries(), 1U);
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(ViewerTest, TheSplitterFollowsThePointer) {
  auto& grip = Find<QWidget>("imgSplitter");
  const int before = viewer->tree().width();
  QTest::mousePress(&grip, Qt::LeftButton, {}, QPoint(2, 50));
  QTest::mouseMove(&grip, QPoint(82, 50));
  QMouseEvent move(QEvent::MouseMove, QPointF(82, 50), grip.mapToGlobal(QPointF(82, 50)), Qt::NoButton, Qt::LeftButton,
                   Qt::NoModifier);
  QCoreApplication::sendEvent(&grip, &move);
  EXPECT_TRUE(Find<QWidget>("picSplitter").isVisible());
  QTest::mouseRelease(&grip, Qt::LeftButton, {}, QPoint(82, 50));
  EXPECT_FALSE(Find<QWidget>("picSplitter").isVisible());
  EXPECT_EQ(viewer->tree().width(), before + 82);
}

TEST_F(ViewerTest, ScrollsWhatDoesNotFit) {
  EXPECT_FALSE(Find<QScrollBar>("HScroll").isVisible());
  form.resize(300, 200);
  QCoreApplication::processEvents();
  auto& bar = Find<QScrollBar>("VScroll");
  ASSERT_TRUE(bar.isVisible());
  const int before = Find<QWidget>("fraProcessLog").y();
  bar.setValue(bar.maximum());
  EXPECT_LT(Find<QWidget>("fraProcessLog").y(), before);
}

TEST_F(ViewerTest, TheTabKeyGoesThroughTheOptionsIntoThePanes) {
  ChooseAll();
  QStringList visited;
  QWidget* at = &Find<QComboBox>("cboState");
  for (int i = 0; i < 20 && visited.size() < 8; ++i) {
    QTest::keyClick(at, Qt::Key_Tab);  // in a date it goes from part to part first
    if (at == QApplication::focusWidget()) continue;
    at = QApplication::focusWidget();
    visited.append(at->objectName());
  }
  EXPECT_EQ(visited.join(' ').toStdString(),
            "dtpDate dtpHour txtDuring cboDuringUnit lstGroupBy cmdRefresh tvMotherList lvMotherList");
  for (const char* name : {"tvMotherList", "lvMotherList", "sstProcessLog", "dtpHour"}) {
    EXPECT_FALSE(Find<QWidget>(name).accessibleName().isEmpty()) << name;
  }
}

TEST_F(ViewerTest, EachTabsFieldsHaveAccessKeysOfTheirOwnAndSayWhatTheyAreFor) {
  for (const char* tab : {"Processes", "Users", "Connections", "System", "Alarms", "Backups"}) {
    auto& tabs = Find<QTabBar>("sstProcessLog");
    for (int i = 0; i < tabs.count(); ++i) {
      if (tabs.tabText(i) == tab) controls().sstProcessLog.SetCurrent(static_cast<std::size_t>(i));
    }
    viewer->control().ControlsVisible(0);
    QString keys = "FEVH";  // of the menus of a host
    for (QWidget* field : Find<QWidget>("fraOption").findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
      if (!field->isVisible()) continue;
      const QString caption = field->property("text").toString();
      const qsizetype mark = caption.indexOf('&');
      const bool isLabel = qobject_cast<QLabel*>(field) != nullptr;
      if (mark >= 0) {
        EXPECT_FALSE(keys.contains(caption[mark + 1].toUpper())) << tab << ": " << caption.toStdString();
        keys.append(caption[mark + 1].toUpper());
      } else {
        EXPECT_FALSE(field->toolTip().isEmpty()) << tab << ": " << field->objectName().toStdString();
      }
      EXPECT_TRUE(isLabel || !field->toolTip().isEmpty()) << tab << ": " << field->objectName().toStdString();
    }
  }
}

TEST_F(ViewerTest, KeysChangeTheTabInACircle) {
  viewer->control().p_FromType(tlFromType::tlAllProcess);
  auto& tabs = Find<QTabBar>("sstProcessLog");
  viewer->tree().setFocus();
  const auto after = [&](Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    return tabs.tabText(tabs.currentIndex()).toStdString();
  };
  EXPECT_EQ(after(Qt::Key_PageDown, Qt::ControlModifier), "Users");
  EXPECT_EQ(after(Qt::Key_Tab, Qt::ControlModifier), "Processes") << "the tabs between are not shown";
  EXPECT_EQ(after(Qt::Key_PageUp, Qt::ControlModifier), "Users");
  EXPECT_EQ(after(Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier), "Processes");
}

TEST_F(ViewerTest, TheGroupOrderIsArrangedByKeys) {
  auto& order = Find<QListWidget>("lstGroupBy");
  EXPECT_FALSE(order.verticalScrollBar()->isVisible());
  EXPECT_TRUE(order.viewport()->rect().contains(order.visualItemRect(order.item(3)))) << "no row is cut";
  order.setFocus();
  QTest::keyClick(&order, Qt::Key_Down);
  QTest::keyClick(&order, Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(order.item(0)->text().toStdString(), "- User");
  EXPECT_EQ(order.currentRow(), 0) << "it stays selected";
}

TEST_F(ViewerTest, AComboOpensByKeyAndEscapeLeavesItAsItWas) {
  auto& state = Find<QComboBox>("cboState");
  state.setFocus();
  for (const Qt::Key key : {Qt::Key_F4, Qt::Key_Space}) {
    QTest::keyClick(&state, key);
    ASSERT_TRUE(state.view()->isVisible());
    QTest::keyClick(state.view(), Qt::Key_Home);
    QTest::keyClick(state.view(), Qt::Key_Escape);
    EXPECT_FALSE(state.view()->isVisible());
    EXPECT_EQ(controls().cboState.selectedText(), "Last execution");
  }
}

TEST_F(ViewerTest, TheWheelTurnsOnlyTheFieldThatHasTheFocus) {
  ChooseAll();
  const auto turn = [&](const char* name, int angle) {
    auto& field = Find<QWidget>(name);
    QWheelEvent wheel({5, 5}, field.mapToGlobal(QPointF(5, 5)), {}, {0, angle}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&field, &wheel);
  };
  viewer->tree().setFocus();
  const DateValue date = controls().dtpDate.value();
  for (const char* name : {"cboState", "dtpDate", "dtpHour", "txtDuring", "cboDuringUnit", "lstGroupBy"}) {
    turn(name, -120);
    turn(name, 120);
    turn(name, 120);
  }
  EXPECT_EQ(controls().cboState.selectedText(), "All");
  EXPECT_EQ(controls().dtpDate.value(), date);
  EXPECT_EQ(controls().txtDuring.text(), "1");
  EXPECT_EQ(controls().cboDuringUnit.selectedText(), "Days");
  EXPECT_EQ(controls().lstGroupBy.selected(), 0U);
  Find<QLineEdit>("txtDuring").setFocus();
  turn("txtDuring", 60);
  EXPECT_EQ(controls().txtDuring.text(), "1") << "half a notch of a touch pad";
  turn("txtDuring", 180);
  EXPECT_EQ(controls().txtDuring.text(), "3");
}

TEST_F(ViewerTest, AFieldReachedByKeyIsBroughtIntoSight) {
  form.resize(320, 240);
  QCoreApplication::processEvents();
  auto& refresh = Find<QPushButton>("cmdRefresh");
  const auto inSight = [&] { return refresh.visibleRegion().boundingRect() == refresh.rect(); };
  ASSERT_FALSE(inSight());
  refresh.setFocus(Qt::TabFocusReason);
  EXPECT_TRUE(inSight());
  EXPECT_GT(controls().HScroll.value(), 0);
}

TEST_F(ViewerTest, AMenuComesUpByKeyAndIsUsedByKey) {
  viewer->tree().setFocus();
  QTest::keyClick(&viewer->tree(), Qt::Key_Menu);
  auto& menu = Find<QMenu>("mnu_PopupTV");
  ASSERT_TRUE(menu.isVisible());
  EXPECT_TRUE(controls().mnu_PopupTV.open());
  QTest::keyClick(&menu, Qt::Key_Escape);
  EXPECT_FALSE(controls().mnu_PopupTV.open()) << "it went away by itself";
  QTest::keyClick(&viewer->tree(), Qt::Key_Menu);
  EXPECT_TRUE(menu.isVisible()) << "and comes again";
  controls().mnu_PopupTV.Close();
  EXPECT_FALSE(menu.isVisible());
  QTest::keyClick(&viewer->list(), Qt::Key_F10, Qt::ShiftModifier);
  auto& listMenu = Find<QMenu>("mnu_Popup");
  ASSERT_TRUE(listMenu.isVisible());
  EXPECT_TRUE(controls().lvMotherList.Selection().empty());
  QTest::keyClick(&listMenu, Qt::Key_L);  // the access key of "Select all"
  EXPECT_FALSE(listMenu.isVisible());
  EXPECT_EQ(controls().lvMotherList.Selection().Count(), controls().lvMotherList.Count());
}

TEST_F(ViewerTest, TheSplitterMovesByKey) {
  viewer->list().setFocus();
  const int before = viewer->tree().width();
  QTest::keyClick(&viewer->list(), Qt::Key_F8);
  auto& grip = Find<QWidget>("imgSplitter");
  ASSERT_TRUE(grip.hasFocus());
  QTest::keyClick(&grip, Qt::Key_Right);
  QTest::keyClick(&grip, Qt::Key_Right);
  QTest::keyClick(&grip, Qt::Key_Left);
  EXPECT_EQ(viewer->tree().width(), before + 16);
  QTest::keyClick(&grip, Qt::Key_Escape);
  EXPECT_TRUE(viewer->tree().hasFocus());
}

// Input while the control reads the runs of the second process, which was clicked.
class SecondClickTest : public ViewerTest {
 protected:
  SecondClickTest() {
    viewer->tree().expand(Process(0));
    QCoreApplication::processEvents();
    history.calls.clear();
  }
  QModelIndex Process(int row) { return viewer->tree().model()->index(row, 0); }
  QPoint PlaceOf(const QModelIndex& index) { return viewer->tree().visualRect(index).center(); }
  // As it comes from the window system: it waits until somebody looks.
  void PostClick(const QModelIndex& index) {
    QWidget* const pane = viewer->tree().viewport();
    const QPointF place = PlaceOf(index);
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
      const Qt::MouseButton down = type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
      QCoreApplication::postEvent(
          pane, new QMouseEvent(type, place, pane->mapToGlobal(place), Qt::LeftButton, down, Qt::NoModifier));
    }
  }
  void ClickSecondProcess(const std::function<void()>& meanwhile) {
    bool done = false;
    history.onCall = [&] {
      if (!viewer->control().AtWork() || std::exchange(done, true)) return;
      meanwhile();
    };
    QTest::mouseClick(viewer->tree().viewport(), Qt::LeftButton, {}, PlaceOf(Process(1)));
    EXPECT_TRUE(done);
    history.onCall = nullptr;
  }
  std::ptrdiff_t Asked(const std::string& call) { return std::ranges::count(history.calls, call); }
  std::string_view Selected() { return controls().tvMotherList.Key(controls().tvMotherList.Selected()); }
};

TEST_F(SecondClickTest, IsHandledOnceWhenTheFirstIsDone) {
  ClickSecondProcess([&] { PostClick(Process(0)); });
  EXPECT_EQ(Selected(), "LPROC|30");
  QCoreApplication::processEvents();
  EXPECT_EQ(Selected(), "LPROC|12");
  EXPECT_EQ(viewer->tree().currentIndex(), Process(0));
  EXPECT_EQ(Asked("GetProcessLogByProcess 30"), 1);
  EXPECT_EQ(Asked("GetProcessLogByProcess 12"), 1);
}

TEST_F(SecondClickTest, WaitsWhereTheComponentLetsItThrough) {
  ClickSecondProcess([&] {
    PostClick(Process(0));
    PostClick(Process(0).model()->index(0, 0, Process(0)));
    QCoreApplication::processEvents();
  });
  EXPECT_EQ(Selected(), "LPROC|12|0|345") << "of two clicks the last one";
  EXPECT_EQ(viewer->list().model()->index(0, 0).data().toString(), "OK : 100% (1)");
  EXPECT_EQ(Asked("GetProcessLogByProcess 30"), 1);
  EXPECT_EQ(Asked("GetProcessLogByProcess 12"), 0);
  QCoreApplication::processEvents();
  EXPECT_EQ(Selected(), "LPROC|12|0|345");
}

TEST_F(SecondClickTest, MayBeOnATab) {
  auto& tabs = Find<QTabBar>("sstProcessLog");
  ClickSecondProcess([&] {
    tabs.setCurrentIndex(1);
    EXPECT_EQ(tabs.currentIndex(), 0) << "until the control is done";
  });
  EXPECT_EQ(tabs.currentIndex(), 1);
  EXPECT_EQ(controls().sstProcessLog.currentCaption(), "Users");
  EXPECT_EQ(std::ranges::count_if(history.calls, [](auto& call) { return call.starts_with("GetProcessLogByUser"); }),
            1);
}

TEST(QtPlatform, WritesIntoTheHostsFirstPanelWhenThereIsOne) {
  QMainWindow form;
  auto* const widget = new QWidget(&form);
  QtPlatform platform(*widget);
  try {
    platform.SetHostStatusText("1 element");
    FAIL() << "there is no status bar";
  } catch (const Error& error) {
    EXPECT_EQ(error.number(), 438);
  }
  form.statusBar()->setObjectName("stStatusBar");
  platform.SetHostStatusText("1 element");
  EXPECT_EQ(form.statusBar()->currentMessage(), "1 element");
  auto* const panel = new QLabel;
  form.statusBar()->addWidget(panel);
  platform.SetHostStatusText("2 elements");
  EXPECT_EQ(panel->text(), "2 elements");
  try {
    platform.OpenFile("/no/such/file");
    FAIL() << "there is no such file";
  } catch (const Error& error) {
    EXPECT_EQ(error.number(), 53);
  }
}

TEST(Guard, EndsEveryExceptionAtTheBoundary) {
  static std::string logged;
  const auto before = qInstallMessageHandler(
      [](QtMsgType, const QMessageLogContext&, const QString& text) { logged += text.toStdString() + "\n"; });
  Guarded([] { throw Error(SystemError::kOverflow, "too much"); });
  EXPECT_EQ(GuardedOr(7, []() -> int { throw std::bad_alloc(); }), 7);
  Guarded([] { throw 1; });
  qInstallMessageHandler(before);
  EXPECT_THAT(logged, HasSubstr("too much (6)\n"));
  EXPECT_THAT(logged, HasSubstr("(7)\n"));
}

}  // namespace
}  // namespace quorvel::qt
