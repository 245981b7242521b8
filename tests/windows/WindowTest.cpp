// The viewer as a window of Windows: messages to native controls reach the control, and what the control says is drawn.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <memory>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "support/FakeSources.h"
#include "support/RecordingPlatform.h"
#include "windows/Contents.h"
#include "windows/Convert.h"
#include "windows/DetailWindow.h"
#include "windows/Guard.h"
#include "windows/Handles.h"
#include "windows/ListPane.h"
#include "windows/PopupMenu.h"
#include "windows/ProcessLogWindow.h"
#include "windows/TreePane.h"

namespace quorvel::windows {
namespace {

using test::StationRows;
using testing::ElementsAre;

// Keys that are held down while one lives.
class Held {
 public:
  explicit Held(std::vector<BYTE> keys) {
    GetKeyboardState(before_);
    BYTE now[256];
    std::copy(std::begin(before_), std::end(before_), std::begin(now));
    for (const BYTE key : keys) now[key] = 0x80;
    SetKeyboardState(now);
  }
  ~Held() { SetKeyboardState(before_); }
  Held(const Held&) = delete;
  Held& operator=(const Held&) = delete;

 private:
  BYTE before_[256];
};

class WindowTest : public testing::Test {
 protected:
  WindowTest() {
    StationRows rows;
    rows.Station(12, 345, 7, StationRows::kOk).Station(30, 343, 7, StationRows::kNotOk);
    history.processLogs = rows.Records();
    history.processLogsCount = rows.count();
    control.p_Connect(1);
    control.p_FromType(tlFromType::tlOneProcess);
    Make();
    ShowWindow(form.get(), SW_SHOW);
    SetForegroundWindow(form.get());
    control.m_GetLogByProcess();
    Pump();
  }

  void Make() {
    viewer = std::make_unique<ProcessLogWindow>(control, form.get());
    Resize(1000, 600);
  }
  void Resize(int width, int height) { SetWindowPos(viewer->window(), nullptr, 0, 0, width, height, SWP_NOZORDER); }
  // As a host handles its messages.
  void Handle(const MSG& message) {
    if (viewer && viewer->TakeKey(message)) return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  void Pump() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) Handle(message);
  }
  void Press(WPARAM key, std::vector<BYTE> held = {}) {
    const Held down(std::move(held));
    Handle({GetFocus(), WM_KEYDOWN, key, 1, 0, {}});
    Pump();
  }
  void PressAlt(wchar_t letter) {
    Handle({GetFocus(), WM_SYSCHAR, letter, 1 << 29, 0, {}});
    Pump();
  }
  void Click(HWND window, int x = 3, int y = 3) {
    SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
    SendMessageW(window, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
    Pump();
  }

  ProcessLogControls& controls() { return control.controls(); }
  HWND Of(const widgets::Control& model) {
    const HWND window = viewer->WindowOf(model);
    if (window == nullptr) throw std::out_of_range(model.name());
    return window;
  }
  std::string TextIn(const widgets::Control& model) { return FromWide(TextOf(Of(model))); }
  bool Sees(const widgets::Control& model) { return IsWindowVisible(Of(model)) != FALSE; }
  RECT PlaceOf(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, viewer->window(), reinterpret_cast<POINT*>(&place), 2);
    return place;
  }
  int WidthOf(const widgets::Control& model) {
    const RECT place = PlaceOf(Of(model));
    return static_cast<int>(place.right - place.left);
  }
  void Choose(const widgets::ComboBox& combo, WPARAM key) {
    SetFocus(Of(combo));
    Press(key);
  }
  std::ptrdiff_t Queries() {
    return std::ranges::count_if(history.calls, [](auto& call) { return call.starts_with("GetProcessLogs "); });
  }
  std::string FocusName() {
    const HWND focus = GetFocus();
    const auto& c = controls();
    for (const widgets::Control* const each : std::initializer_list<const widgets::Control*>{
             &c.sstProcessLog, &c.cboState, &c.dtpDate, &c.dtpHour, &c.txtDuring, &c.cboDuringUnit, &c.lstGroupBy,
             &c.cmdRefresh, &c.tvMotherList, &c.lvMotherList, &c.imgSplitter}) {
      if (viewer->WindowOf(*each) == focus) return each->name();
    }
    return focus == viewer->list().header() ? "header" : "";
  }

  test::RecordingPlatform platform;
  test::FakeHistory history;
  test::FakeFactory factory{history};
  ucProcessLog control{platform, factory};
  UniqueWindow form{CreateWindowExW(0, L"STATIC", L"Form", WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN, 10, 10, 1100, 700,
                                    nullptr, nullptr, nullptr, nullptr)};
  std::unique_ptr<ProcessLogWindow> viewer;
};

TEST_F(WindowTest, OptionsAreTypedAndChosenLikeInAnyForm) {
  EXPECT_FALSE(Sees(controls().txtDuring)) << "the last execution needs no period";
  Choose(controls().cboState, VK_HOME);
  EXPECT_EQ(controls().cboState.selectedText(), "All");
  ASSERT_TRUE(Sees(controls().txtDuring));
  const HWND length = Of(controls().txtDuring);
  SetFocus(length);
  SendMessageW(length, EM_SETSEL, 0, -1);
  for (const wchar_t digit : {L'1', L'5', L'0'}) SendMessageW(length, WM_CHAR, digit, 1);
  EXPECT_EQ(controls().txtDuring.text(), "150");
  Choose(controls().cboDuringUnit, VK_END);
  EXPECT_EQ(TextIn(controls().txtDuring), "99") << "cut as soon as a unit is chosen";
  SetFocus(length);
  Press(VK_DOWN);
  EXPECT_EQ(TextIn(controls().txtDuring), "98");
  RECT buttons{};
  GetClientRect(Of(controls().updDuring), &buttons);
  Click(Of(controls().updDuring), 5, 4);
  EXPECT_EQ(TextIn(controls().txtDuring), "99") << "the upper button";
  Click(Of(controls().updDuring), 5, static_cast<int>(buttons.bottom) - 4);
  EXPECT_EQ(TextIn(controls().txtDuring), "98");
}

TEST_F(WindowTest, PickersShowAndTellDaysAndTimes) {
  Choose(controls().cboState, VK_HOME);
  const auto pick = [&](const widgets::Control& picker, SYSTEMTIME value) {
    SendMessageW(Of(picker), DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&value));
    NMDATETIMECHANGE change{};
    change.nmhdr = {Of(picker), 0, DTN_DATETIMECHANGE};
    SendMessageW(GetParent(Of(picker)), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&change));
  };
  pick(controls().dtpDate, {2026, 3, 0, 29, 1, 2, 3, 4});
  pick(controls().dtpHour, {2020, 1, 0, 1, 2, 30, 5, 6});
  EXPECT_EQ(FormatFixedDateTime(controls().dtpDate.value() + controls().dtpHour.value()), "2026-03-29 02:30:05");
  controls().dtpDate.SetValue(DateFromCivil({2024, 2, 29}));
  EXPECT_EQ(ValueOf(Of(controls().dtpDate)), DateFromCivil({2024, 2, 29}));

  const DateValue oddTime = 0.3 + 1e-7;  // between two seconds
  controls().dtpHour.SetValue(oddTime);
  EXPECT_EQ(controls().dtpHour.value(), oddTime) << "what the control says is no gesture";
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(WindowTest, AComboThatIsOpenChoosesWhenItIsClosed) {
  const HWND state = Of(controls().cboState);
  SetFocus(state);
  SendMessageW(state, CB_SHOWDROPDOWN, TRUE, 0);
  Press(VK_HOME);
  EXPECT_EQ(controls().cboState.selectedText(), "Last execution") << "it is open still";
  Press(VK_ESCAPE);
  EXPECT_EQ(controls().cboState.selectedText(), "Last execution");
  EXPECT_EQ(TextIn(controls().cboState), "Last execution");
  SendMessageW(state, CB_SHOWDROPDOWN, TRUE, 0);
  Press(VK_HOME);
  Press(VK_RETURN);
  EXPECT_EQ(controls().cboState.selectedText(), "All");
}

TEST_F(WindowTest, KeysAndButtonsRefresh) {
  EXPECT_EQ(Queries(), 1);
  SetFocus(viewer->tree().window());
  Press(VK_F5);
  EXPECT_EQ(Queries(), 2);
  PressAlt(L'r');
  EXPECT_EQ(Queries(), 3);
  Click(Of(controls().cmdRefresh));
  EXPECT_EQ(Queries(), 4);
  controls().cmdRefresh.SetEnabled(false);
  Press(VK_F5);
  EXPECT_EQ(Queries(), 4);
  EXPECT_NE(FocusName(), "cmdRefresh") << "the focus does not stay on what is disabled";
}

TEST_F(WindowTest, TheTabKeyGoesThroughTheOptionsIntoThePanesAndOutToTheHost) {
  Choose(controls().cboState, VK_HOME);
  std::vector<std::string> visited;
  viewer->FocusFirst(false);
  const auto tab = [&] { return viewer->TakeKey({GetFocus(), WM_KEYDOWN, VK_TAB, 1, 0, {}}); };
  do visited.push_back(FocusName());
  while (tab() && visited.size() < 20);
  EXPECT_THAT(visited, ElementsAre("sstProcessLog", "cboState", "dtpDate", "dtpHour", "txtDuring", "cboDuringUnit",
                                   "lstGroupBy", "cmdRefresh", "tvMotherList", "lvMotherList", "header"));
  Press(VK_TAB, {VK_SHIFT});
  EXPECT_EQ(FocusName(), "lvMotherList");
  PressAlt(L'U');
  EXPECT_EQ(FocusName(), "txtDuring") << "the field of the caption";
  SetFocus(form.get());
  SetFocus(viewer->window());
  EXPECT_EQ(FocusName(), "txtDuring") << "where it was before";
}

TEST_F(WindowTest, TabsFollowTheModelAndAreChosenByKeyAndMouse) {
  control.p_FromType(tlFromType::tlAllProcess);
  const HWND tabs = Of(controls().sstProcessLog);
  EXPECT_EQ(TabCtrl_GetItemCount(tabs), 2) << "hidden tabs are not there";
  SetFocus(viewer->tree().window());
  Press(VK_NEXT, {VK_CONTROL});
  EXPECT_EQ(controls().sstProcessLog.currentCaption(), "Users");
  Press(VK_TAB, {VK_CONTROL});
  EXPECT_EQ(controls().sstProcessLog.currentCaption(), "Processes") << "in a circle";
  RECT head{};
  TabCtrl_GetItemRect(tabs, 1, &head);
  Click(tabs, static_cast<int>(head.left) + 5, static_cast<int>(head.top) + 5);
  EXPECT_EQ(controls().sstProcessLog.currentCaption(), "Users");
  controls().sstProcessLog.SetCurrent(0);
  EXPECT_EQ(TabCtrl_GetCurSel(tabs), 0);
  controls().sstProcessLog.SetTabEnabled(1, false);
  TabCtrl_GetItemRect(tabs, 1, &head);
  Click(tabs, static_cast<int>(head.left) + 5, static_cast<int>(head.top) + 5);
  EXPECT_EQ(TabCtrl_GetCurSel(tabs), 0) << "disabled";
}

TEST_F(WindowTest, ATabChosenWhileTheControlWorksIsShownWhenItIsDone) {
  const HWND tabs = Of(controls().sstProcessLog);
  bool done = false;
  history.onCall = [&] {
    if (!control.AtWork() || std::exchange(done, true)) return;
    TabCtrl_SetCurSel(tabs, 1);
    NMHDR change{tabs, 0, TCN_SELCHANGE};
    SendMessageW(GetParent(tabs), WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&change));
    EXPECT_EQ(TabCtrl_GetCurSel(tabs), 0) << "until the control is done";
  };
  control.cmdRefresh_Click();
  history.onCall = nullptr;
  ASSERT_TRUE(done);
  EXPECT_EQ(TabCtrl_GetCurSel(tabs), 1);
  EXPECT_EQ(controls().sstProcessLog.currentCaption(), "Users");
}

TEST_F(WindowTest, TheSplitterFollowsPointerAndKeys) {
  const HWND grip = Of(controls().imgSplitter);
  const int before = WidthOf(controls().tvMotherList);
  SendMessageW(grip, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(0, 50));
  SendMessageW(grip, WM_MOUSEMOVE, MK_LBUTTON, MAKELPARAM(82, 50));
  EXPECT_TRUE(Sees(controls().picSplitter));
  SendMessageW(grip, WM_LBUTTONUP, 0, MAKELPARAM(82, 50));
  EXPECT_FALSE(Sees(controls().picSplitter));
  EXPECT_EQ(WidthOf(controls().tvMotherList), before + 82);
  SetFocus(viewer->list().window());
  Press(VK_F8);
  ASSERT_EQ(FocusName(), "imgSplitter");
  Press(VK_RIGHT);
  Press(VK_RIGHT);
  Press(VK_LEFT);
  EXPECT_EQ(WidthOf(controls().tvMotherList), before + 98);
  Press(VK_ESCAPE);
  EXPECT_EQ(FocusName(), "tvMotherList");
}

TEST_F(WindowTest, WhatDoesNotFitIsScrolledAndBroughtIntoSight) {
  EXPECT_FALSE(Sees(controls().HScroll));
  Resize(320, 200);
  ASSERT_TRUE(Sees(controls().VScroll));
  const HWND bar = Of(controls().VScroll);
  const LONG before = PlaceOf(Of(controls().fraProcessLog)).top;
  SendMessageW(viewer->window(), WM_VSCROLL, SB_BOTTOM, reinterpret_cast<LPARAM>(bar));
  EXPECT_EQ(controls().VScroll.value(), controls().VScroll.maximum());
  EXPECT_LT(PlaceOf(Of(controls().fraProcessLog)).top, before);
  // Over a field without the focus the wheel means the page.
  SetFocus(viewer->tree().window());
  const std::string state = controls().cboState.selectedText();
  SendMessageW(Of(controls().cboState), WM_MOUSEWHEEL, MAKEWPARAM(0, 100 * WHEEL_DELTA), 0);
  EXPECT_EQ(controls().VScroll.value(), 0);
  EXPECT_EQ(controls().cboState.selectedText(), state);
  SetFocus(Of(controls().lstGroupBy));
  Press(VK_TAB);
  ASSERT_EQ(FocusName(), "cmdRefresh");
  EXPECT_LE(PlaceOf(GetFocus()).right, PlaceOf(bar).left);
}

TEST_F(WindowTest, TheGroupOrderIsArrangedByKeys) {
  const HWND order = Of(controls().lstGroupBy);
  SetFocus(order);
  Press(VK_DOWN);
  SendMessageW(order, WM_SYSKEYDOWN, VK_UP, 1 << 29);
  EXPECT_EQ(controls().lstGroupBy.items()[0].text, "- User");
  EXPECT_EQ(SendMessageW(order, LB_GETCURSEL, 0, 0), 0) << "it stays selected";
  wchar_t first[64] = L"";
  SendMessageW(order, LB_GETTEXT, 0, reinterpret_cast<LPARAM>(first));
  EXPECT_STREQ(first, L"- User");
}

// What happens in the message loop of a menu.
class MenuTest : public WindowTest {
 protected:
  // Asks for the tree's menu by key, and does this once it is up.
  void Open(std::function<void()> meanwhile) {
    during = std::move(meanwhile);
    SetTimer(form.get(), 1, 20, [](HWND window, UINT, UINT_PTR id, DWORD) {
      Guarded([&] {
        if (test->viewer && test->viewer->treeMenu().menu() == nullptr) return;
        KillTimer(window, id);
        std::exchange(test->during, nullptr)();
      });
    });
    test = this;
    SetFocus(viewer->tree().window());
    control.tvMotherList_MouseUp(MouseButton::kRight, widgets::NodeId::kNone);
    const DWORD end = GetTickCount() + 5000;
    do Pump();
    while (during && GetTickCount() < end);
    Pump();
  }
  static inline MenuTest* test = nullptr;
  std::function<void()> during;
};

TEST_F(MenuTest, ComesUpAndGoesAwayWithTheModel) {
  std::vector<std::string> names;
  Open([&] {
    const PopupMenu& popup = viewer->treeMenu();
    for (int i = 0; i < GetMenuItemCount(popup.menu()); ++i) {
      names.push_back(popup.EntryOf(GetMenuItemID(popup.menu(), i))->name);
    }
    EndMenu();
  });
  EXPECT_THAT(names, ElementsAre("mnu_popupTV_Expand_all", "mnu_popupTV_Collapse_all"));
  EXPECT_FALSE(controls().mnu_PopupTV.open()) << "it went away by itself";
  Open([&] { controls().mnu_PopupTV.Close(); });
  EXPECT_EQ(viewer->treeMenu().menu(), nullptr);
  EXPECT_EQ(FocusName(), "tvMotherList") << "a popup takes the focus from no pane";
}

TEST_F(MenuTest, OutlivesItsWindow) {
  Open([&] { viewer.reset(); });
  EXPECT_EQ(viewer, nullptr);
  Make();
  Pump();
  EXPECT_TRUE(Sees(controls().tvMotherList));
}

TEST_F(WindowTest, ShowsTheSameWhenItIsMadeAgain) {
  Choose(controls().cboState, VK_HOME);
  SetFocus(viewer->tree().window());
  const int width = WidthOf(controls().tvMotherList);
  const LRESULT tabs = TabCtrl_GetItemCount(Of(controls().sstProcessLog));
  viewer.reset();
  controls().txtDuring.SetText("12");
  control.m_GetLogByProcess();
  Make();
  EXPECT_EQ(TextIn(controls().cboState), "All");
  EXPECT_EQ(TextIn(controls().txtDuring), "12");
  EXPECT_EQ(WidthOf(controls().tvMotherList), width);
  EXPECT_EQ(TabCtrl_GetItemCount(Of(controls().sstProcessLog)), tabs);
  EXPECT_EQ(TreeView_GetCount(viewer->tree().window()), 2);

  auto former = std::move(viewer);
  DestroyWindow(former->window());
  Make();
  former.reset();
  controls().tvMotherList.Clear();
  EXPECT_EQ(TreeView_GetCount(viewer->tree().window()), 0) << "the former window took the tree along";

  SetFocus(viewer->tree().window());
  form.reset();
  EXPECT_EQ(viewer->window(), nullptr) << "its parent ended it";
  EXPECT_EQ(viewer->WindowOf(controls().cboState), nullptr);
  control.cmdRefresh_Click();
  controls().txtDuring.SetText("13");
  EXPECT_FALSE(viewer->TakeKey({nullptr, WM_KEYDOWN, VK_TAB, 1, 0, {}}));
}

TEST_F(WindowTest, IsLaidOutAnewForAnotherResolution) {
  const auto height = [&](const widgets::Control& model) {
    const RECT place = PlaceOf(Of(model));
    return place.bottom - place.top;
  };
  const LONG label = height(controls().lblState);
  Resize(1600, 1100);
  SendMessageW(viewer->window(), WM_DPICHANGED, MAKEWPARAM(192, 192), 0);
  EXPECT_EQ(height(controls().lblState), 2 * label);
  EXPECT_EQ(PlaceOf(Of(controls().fraProcessLog)).right, 1600 - PlaceOf(Of(controls().fraProcessLog)).left)
      << "as wide as the window still";
  const auto font = reinterpret_cast<HFONT>(SendMessageW(Of(controls().lblState), WM_GETFONT, 0, 0));
  LOGFONTW large{};
  GetObjectW(font, sizeof(large), &large);
  SendMessageW(viewer->window(), WM_DPICHANGED, MAKEWPARAM(96, 96), 0);
  LOGFONTW usual{};
  GetObjectW(reinterpret_cast<HFONT>(SendMessageW(Of(controls().lblState), WM_GETFONT, 0, 0)), sizeof(usual), &usual);
  EXPECT_EQ(large.lfHeight, 2 * usual.lfHeight);
  EXPECT_EQ(height(controls().lblState), label);
}

}  // namespace
}  // namespace quorvel::windows
