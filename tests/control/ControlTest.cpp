// The control as a host drives it, on record sources that answer what a test puts into them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "control/Layout.h"
#include "control/Routing.h"
#include "control/ucProcessLog.h"
#include "support/FakeSources.h"
#include "support/RecordingPlatform.h"
#include "support/TreeText.h"

namespace quorvel {
namespace {

using test::StationRows;
using testing::ElementsAre;
using testing::HasSubstr;
using widgets::NodeId;

class ControlTest : public testing::Test {
 protected:
  ControlTest() {
    StationRows rows;
    rows.Station(12, 345, 7, StationRows::kOk).Station(12, 345, 8, StationRows::kNotOk);
    rows.Station(30, 343, 7, StationRows::kOk);
    history.processLogs = rows.Records();
    history.processLogsCount = rows.count();
    datasource::ProcessLogRecords& stations = history.stations;
    stations = StationRows().Station(0, 0, 0, StationRows::kInProgress).Station(0, 0, 8, StationRows::kNotOk).Records();
    stations.strUserName = test::MakeTexts({"", "Lyon 08"});
    stations.strIdentifier = test::MakeTexts({"", "ST-8"});
    stations.strWaitState = test::MakeTexts({"Waiting com", ""});
    stations.strCompany = stations.strReport = test::MakeTexts({"", ""});
    stations.dtEndDate = stations.dtStartDate;
    history.stationsCount = 2;
    control.p_Connect(3);
    control.p_FromType(tlFromType::tlOneProcess);
  }

  NodeId Node(std::string_view key) { return control.controls().tvMotherList.Find(key); }
  std::string Tree() { return test::TreeText(control.controls().tvMotherList); }
  ProcessLogControls& controls() { return control.controls(); }
  void ChooseState(std::string_view text) { controls().cboState.Select(*controls().cboState.RowOfText(text)); }

  // One task, which failed in its second step.
  void FillTasksAndSteps() {
    const auto numbers = [](std::vector<std::int32_t> values) { return test::MakeColumn(std::move(values)); };
    const auto flags = [](std::vector<std::int16_t> values) { return test::MakeColumn(std::move(values)); };
    datasource::TaskRunRecords& tasks = history.tasks;
    tasks.lngTaskRunId = numbers({61});
    tasks.lngTaskId = numbers({900});
    tasks.lngStationScope = numbers({1});
    tasks.strTaskName = tasks.strTaskType = tasks.strReport = test::MakeTexts({"Telecollecte"});
    tasks.bNotExecuted = tasks.bWaiting = tasks.bInProgress = tasks.bResultOk = flags({0});
    tasks.bResultNotOk = flags({-1});
    tasks.dtStartDate = tasks.dtEndDate = test::MakeColumn<double>({46346.25});
    history.tasksCount = 1;
    datasource::StepLogRecords& steps = history.steps;
    steps.lngStepLogId = numbers({51, 52});
    steps.lngTaskRunId = numbers({61, 62});
    steps.lngStepKind = numbers({1, 2});
    steps.lngStationScope = numbers({1, 1});
    steps.strStepName = test::MakeTexts({"Connect", "Send"});
    steps.strSettings = steps.strReport = steps.strExecuteWhere = test::MakeTexts({"", ""});
    steps.bInProgress = flags({0, 0});
    steps.bResultOk = flags({-1, 0});
    steps.bResultNotOk = flags({0, -1});
    steps.dtStartDate = steps.dtEndDate = test::MakeColumn<double>({46346.25, 46346.25});
    history.stepsCount = 2;
  }

  // Station 7 took part in run 345 of process 12.
  void FillParts() {
    history.parts = StationRows().Station(12, 345, 7, StationRows::kNotOk).Records();
    history.parts.strUserName = history.parts.strIdentifier = history.parts.strWaitState = test::MakeTexts({"Lyon"});
    history.parts.dtEndDate = history.parts.dtStartDate;
    history.partsCount = 1;
  }

  test::RecordingPlatform platform;
  test::FakeHistory history;
  test::FakeFactory factory{history};
  ucProcessLog control{platform, factory};
};

TEST_F(ControlTest, BuildsTheTreeAndShowsTheFirstNodesChildren) {
  control.m_GetLogByProcess();
  const auto& tree = controls().tvMotherList;
  EXPECT_EQ(tree.Key(tree.Selected()), "LPROC|12");
  EXPECT_EQ(controls().lvMotherList.headers().front().caption, "Batch");
  EXPECT_EQ(controls().fraList.text(), "Processes (2)");
  EXPECT_EQ(platform.status, "0 element");
  EXPECT_EQ(platform.pointers.back(), MousePointer::kDefault);
  EXPECT_THAT(history.calls, testing::IsSupersetOf({"create clRecordHub.Labels on \"\"", "GetLabel UseType",
                                                    "create clRecordHub.ProcessLog on \"\"",
                                                    "GetProcessLogs 2026-11-20 00:00:00 2026-11-21 00:00:00 4 -1",
                                                    "CloseProcessLogs", "GetProcessLogByProcess 12"}));
}

TEST_F(ControlTest, ExpandAllLoadsUpToABoundAndStopsAtEscape) {
  constexpr std::int32_t kRuns = 5'020;
  StationRows rows;
  for (std::int32_t run = 1; run <= kRuns; ++run) rows.Station(12, run, 7, StationRows::kOk);
  history.processLogs = rows.Records();
  history.processLogsCount = rows.count();
  history.stationsCount = 0;
  control.m_GetLogByProcess();
  const auto loads = [&] {
    return std::ranges::count_if(history.calls,
                                 [](const std::string& call) { return call.starts_with("GetProcessLogByTask"); });
  };
  platform.looksUntilEscape = 10;
  control.mnu_popupTV_Expand_all_Click();
  EXPECT_EQ(loads(), 10);
  EXPECT_THAT(platform.messages, testing::IsEmpty()) << "who presses Escape knows";
  control.mnu_popupTV_Expand_all_Click();
  EXPECT_EQ(loads(), 10 + 5'000) << "goes on where it stopped";
  EXPECT_THAT(platform.messages, ElementsAre(HasSubstr("5000 nodes were loaded, and there are more")));
  control.mnu_popupTV_Expand_all_Click();
  EXPECT_EQ(loads(), kRuns);
  EXPECT_EQ(platform.messages.size(), 1U);
}

TEST_F(ControlTest, LoadsAGroupOnceAndListsItsStations) {
  control.m_GetLogByProcess();
  control.tvMotherList_NodeClick(Node("LPROC|12|0|345|2"));
  EXPECT_EQ(platform.status, "2 elements");
  EXPECT_EQ(controls().lvMotherList.Cell(0, 0), "Without population");
  EXPECT_EQ(controls().lvMotherList.Icon(0), "User_WaitingCom");
  control.tvMotherList_Expand(Node("LPROC|12|0|345|2"));
  history.calls.clear();
  control.tvMotherList_Collapse(Node("LPROC|12|0|345|2"));
  control.tvMotherList_Expand(Node("LPROC|12|0|345|2"));
  EXPECT_TRUE(history.calls.empty()) << "loaded before";
  EXPECT_THAT(Tree(), HasSubstr("Lyon 08 (ST-8) [LPROC|12|0|345|2|8] User_NoOk +\n"));
}

TEST_F(ControlTest, AsksForTheTasksAndStepsThatAKeyNames) {
  control.m_GetLogByProcess();
  control.tvMotherList_Expand(Node("LPROC|12|0|345|2"));
  FillTasksAndSteps();
  history.calls.clear();
  platform.pointers.clear();
  control.tvMotherList_NodeClick(Node("LPROC|12|0|345|2|8"));
  constexpr MousePointer kBusy = MousePointer::kHourglass;
  EXPECT_THAT(platform.pointers, ElementsAre(kBusy, kBusy, kBusy, MousePointer::kDefault))
      << "the filler ends with the hourglass, the click does not";
  EXPECT_EQ(controls().lvMotherList.Key(0), "900|LPROC|12|0|345|2|8");
  control.lvMotherList_DblClick();
  EXPECT_EQ(controls().tvMotherList.Selected(), Node("LPROC|12|0|345|2|8")) << "nothing is selected in the list";
  controls().lvMotherList.SetSelection({}, 0);
  control.lvMotherList_KeyDown(13);
  EXPECT_EQ(controls().tvMotherList.Selected(), Node("LPROC|12|0|345|2|8|900"));
  EXPECT_EQ(controls().lvMotherList.Key(1), "52|61|LPROC|12|0|345|2|8|900");
  EXPECT_TRUE(controls().lvMotherList.Look(1).bold);
  EXPECT_THAT(Tree(), HasSubstr("Send : NOT OK [LPROC|12|0|345|2|8|900|52|61] StepFTP\n"));
  EXPECT_THAT(history.calls,
              ElementsAre("create clRecordHub.Quorvel on \"\"", "GetTaskRunsByProcessLog 345 server 8", "CloseTaskRuns",
                          "GetTaskRunsByProcessLog 345 server 8", "CloseTaskRuns", "create clRecordHub.StepLog on \"\"",
                          "GetStepLogByTaskRun 900 345 8", "CloseStepLog", "create clRecordHub.StepLog on \"\"",
                          "GetStepLogByTaskRun 900 345 8", "CloseStepLog"));
}

TEST_F(ControlTest, TheUserTreeLoadsRunsByTheFilterThatItWasBuiltWith) {
  FillParts();
  FillTasksAndSteps();
  control.p_FromType(tlFromType::tlOneCompany);
  control.p_IdAppLog(4);
  ChooseState("All");
  control.m_GetLogByUser();
  const std::string asked = "GetProcessLogByUser 2026-11-20 00:00:00 2026-11-21 00:00:00 0 ";
  EXPECT_THAT(history.calls, testing::Contains(asked + "-1 -1 4"));
  ChooseState("In progress");
  control.tvMotherList_Expand(Node("LUSR|7|12"));
  control.tvMotherList_NodeClick(Node("LUSR|7|12"));
  EXPECT_THAT(history.calls, testing::Contains(asked + "12 7 4").Times(2));
  EXPECT_EQ(controls().lvMotherList.Key(0), "LUSR|7|12|0|345");
  history.calls.clear();
  control.tvMotherList_NodeClick(Node("LUSR|7|12|0|345"));
  EXPECT_THAT(history.calls, testing::Contains("GetTaskRunsByProcessLog 345 server 7"));
  EXPECT_EQ(controls().lvMotherList.Key(0), "900|LUSR|7|12|0|345");
}

TEST_F(ControlTest, AListThatCannotBeReadKeepsItsColumnsAndTheNextClickWorks) {
  control.m_GetLogByProcess();
  history.failNumber = 5;
  control.tvMotherList_NodeClick(Node("LPROC|12|0|345|2"));
  EXPECT_EQ(controls().lvMotherList.headers().front().caption, "Name");
  EXPECT_EQ(control.p_ListCount(), 0);
  EXPECT_EQ(platform.status, "0 element");
  EXPECT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.pointers.back(), MousePointer::kDefault);
  history.failNumber = 0;
  controls().lvMotherList.SetHeaderWidth(0, 3333);
  control.tvMotherList_NodeClick(Node("LPROC|12|0|345|2"));
  EXPECT_EQ(control.p_ListCount(), 2);
  EXPECT_EQ(controls().lvMotherList.headers().front().width, 3333) << "headers that stand are not made again";
  history.stations.strReport = {};
  control.tvMotherList_NodeClick(Node("LPROC|12|0|345|1"));
  EXPECT_THAT(platform.messages.back(), HasSubstr("GetProcessLogByTask: column strReport holds 0 of 2 rows"));
}

TEST_F(ControlTest, FindsTheStationAgainWhenItsStateChanged) {
  control.m_GetLogByProcess();
  control.tvMotherList_Expand(Node("LPROC|12|0|345|2"));
  control.tvMotherList_NodeClick(Node("LPROC|12|0|345|2|8"));
  history.processLogs = StationRows().Station(12, 345, 8, StationRows::kOk).Records();
  history.processLogsCount = 1;
  history.calls.clear();
  control.cmdRefresh_Click();
  const auto& tree = controls().tvMotherList;
  EXPECT_EQ(tree.Key(tree.Selected()), "LPROC|12|0|345|1|8");
  EXPECT_THAT(history.calls, testing::Contains("GetTaskRunsByProcessLog 345 server 8").Times(1)) << "one list query";
  EXPECT_THAT(history.calls, testing::Not(testing::Contains("GetProcessLogByProcess 12")));
}

TEST_F(ControlTest, WhoeverItCallsMayCallBack) {
  control.m_GetLogByProcess();
  const std::string before = Tree();
  std::string refused;
  history.onCall = platform.onStatus = [&] {
    control.cmdRefresh_Click();
    control.tvMotherList_NodeClick(Node("LPROC|30"));
    control.tvMotherList_Expand(Node("LPROC|12|0|345|1"));
    control.lvMotherList_DblClick();
    try {
      control.m_GetLogByUser();
    } catch (const Error& error) {
      refused = error.description();
    }
  };
  control.tvMotherList_Expand(Node("LPROC|12|0|345|2"));
  EXPECT_EQ(controls().tvMotherList.ChildCount(Node("LPROC|12|0|345|2")), 2U);
  control.tvMotherList_NodeClick(Node("LPROC|12|0|345|2"));
  EXPECT_EQ(controls().lvMotherList.Key(0), "0|LPROC|12|0|345|2") << "the rows of the node that is selected";
  control.m_GetLogByProcess();
  EXPECT_EQ(Tree(), before);
  EXPECT_EQ(refused, "The viewer is at work on an earlier request");
  EXPECT_TRUE(platform.messages.empty());
  history.onCall = platform.onStatus = nullptr;
  control.m_GetLogByUser();
}

TEST_F(ControlTest, OfTwoTasksOfOneKeyEachRowLeadsToItsOwn) {
  control.m_GetLogByProcess();
  control.tvMotherList_Expand(Node("LPROC|12|0|345|2"));
  FillTasksAndSteps();
  datasource::TaskRunRecords& tasks = history.tasks;
  tasks.lngTaskRunId = tasks.lngTaskId = tasks.lngStationScope = test::MakeColumn<std::int32_t>({9, 9});
  tasks.strTaskName = tasks.strTaskType = tasks.strReport = test::MakeTexts({"Twice", "Once"});
  tasks.bNotExecuted = tasks.bWaiting = tasks.bInProgress = tasks.bResultOk = tasks.bResultNotOk =
      test::MakeColumn<std::int16_t>({0, 0});
  tasks.dtStartDate = tasks.dtEndDate = test::MakeColumn<double>({0, 0});
  history.tasksCount = 2;
  control.tvMotherList_NodeClick(Node("LPROC|12|0|345|2|8"));
  control.lvMotherList_ColumnClick(2);
  control.lvMotherList_ColumnClick(1);
  ASSERT_EQ(controls().lvMotherList.Cell(0, 0), "Once");
  controls().lvMotherList.SetSelection({}, 0);
  control.lvMotherList_DblClick();
  const auto& tree = controls().tvMotherList;
  EXPECT_EQ(tree.Text(tree.Selected()), "Once");
  control.cmdRefresh_Click();
  EXPECT_EQ(tree.Text(tree.Selected()), "Once");
}

TEST_F(ControlTest, APlaceThatCouldNotBeReachedIsNotForgotten) {
  control.m_GetLogByProcess();
  control.tvMotherList_Expand(Node("LPROC|12|0|345|2"));
  control.tvMotherList_NodeClick(Node("LPROC|12|0|345|2|8"));
  int until = 3;  // the tree is read, counted and released; its stations are not read
  history.onCall = [&] {
    if (until-- == 0) throw Error(5, "Hub", "The line is down");
  };
  control.cmdRefresh_Click();
  history.onCall = nullptr;
  const auto& tree = controls().tvMotherList;
  EXPECT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(tree.Key(tree.Selected()), "LPROC|12|0|345|2") << "as far as it went";
  EXPECT_EQ(controls().fraList.text(), "Processes (2)");
  control.cmdRefresh_Click();
  EXPECT_EQ(tree.Key(tree.Selected()), "LPROC|12|0|345|2|8");
  control.tvMotherList_NodeClick(Node("LPROC|30"));
  control.cmdRefresh_Click();
  EXPECT_EQ(tree.Key(tree.Selected()), "LPROC|30") << "what the user chose since then";
}

TEST_F(ControlTest, AFailedQueryIsShownOnceAndCanBeTriedAgain) {
  control.m_GetLogByProcess();
  history.failNumber = ComponentError(7);
  control.tvMotherList_Expand(Node("LPROC|12|0|345|2"));
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_THAT(platform.messages[0], HasSubstr("Quorvel: ucProcessLog.tvMotherList_Expand\r\n\tQuorvel: "
                                              "ucProcessLog.lvMotherList_NodeState\r\n\tHub"));
  EXPECT_THAT(platform.LogText(), HasSubstr("ErrorCode        : 7\r\n"));
  EXPECT_EQ(platform.pointers.back(), MousePointer::kDefault);
  EXPECT_FALSE(controls().tvMotherList.IsExpanded(Node("LPROC|12|0|345|2")));
  history.failNumber = 0;
  control.tvMotherList_Expand(Node("LPROC|12|0|345|2"));
  EXPECT_EQ(controls().tvMotherList.ChildCount(Node("LPROC|12|0|345|2")), 2U);
  EXPECT_EQ(platform.messages.size(), 1U);
}

TEST_F(ControlTest, ABuilderCalledByTheHostRaisesAndRefreshShows) {
  history.failNumber = 5;
  try {
    control.m_GetLogByProcess();
    FAIL();
  } catch (const Error& error) {
    EXPECT_EQ(error.source(), "Quorvel: ucProcessLog.m_GetLogByProcess\r\n\tQuorvel: ucProcessLog.Init\r\n\tHub");
  }
  EXPECT_TRUE(platform.messages.empty());
  control.cmdRefresh_Click();
  EXPECT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(platform.pointers.back(), MousePointer::kDefault);
  history.failNumber = 0;
  control.cmdRefresh_Click();
  EXPECT_EQ(controls().tvMotherList.ChildCount(NodeId::kNone), 2U);
}

TEST_F(ControlTest, NothingToReadIsNoErrorAndIsReleased) {
  history.status = 1;
  control.m_GetLogByProcess();
  EXPECT_EQ(Tree(), "");
  EXPECT_EQ(controls().fraList.text(), "Processes (0)");
  EXPECT_EQ(history.calls.back(), "CloseProcessLogs");
  EXPECT_EQ(platform.status, "0 element");
}

TEST_F(ControlTest, ReadsTheDefaultPeriodOfItsRoleOncePerConnection) {
  history.labels = {{"UseType", "STATION"}, {"STATION_LOGS_DISPLAY_PERIOD", "6"}, {"STATION_LOGS_DISPLAY_TYPE", "2"}};
  ChooseState("All");
  control.m_GetLogByProcess();
  EXPECT_THAT(history.calls, testing::Contains("GetProcessLogs 2026-11-20 06:00:00 2026-11-20 12:00:00 0 -1"));
  controls().txtDuring.SetText("3");
  history.calls.clear();
  control.cmdRefresh_Click();
  EXPECT_THAT(history.calls, testing::Contains("GetProcessLogs 2026-11-20 06:00:00 2026-11-20 09:00:00 0 -1"))
      << "what the user set stays";
  history.labels["UseType"] = "";
  control.p_Connect(5);
  history.calls.clear();
  control.m_GetLogByProcess();
  EXPECT_THAT(history.calls, testing::Contains("GetLabel STATION_LOGS_DISPLAY_PERIOD")) << "set, but not to a server";
  history.labels["STATION_LOGS_DISPLAY_PERIOD"] = "1000";
  history.labels["STATION_LOGS_DISPLAY_TYPE"] = "weeks";
  control.p_Connect(4);
  control.m_GetLogByProcess();
  EXPECT_EQ(controls().txtDuring.text() + controls().cboDuringUnit.selectedText(), "1Days");
}

TEST_F(ControlTest, KeepsThePlaceAfterRefreshAndTellsOnceOfAMissingStatusBar) {
  platform.hasStatusBar = false;
  control.m_GetLogByProcess();
  control.tvMotherList_NodeClick(Node("LPROC|30|1|343"));
  control.cmdRefresh_Click();
  const auto& tree = controls().tvMotherList;
  EXPECT_EQ(tree.Key(tree.Selected()), "LPROC|30|1|343");
  EXPECT_TRUE(tree.IsExpanded(Node("LPROC|30")));
  EXPECT_EQ(platform.statusCalls, 1);
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_THAT(platform.LogText(), HasSubstr("Quorvel: ucProcessLog.MajStatusBarInfrmMain"));
}

TEST_F(ControlTest, BuildsWhatTheTabTableNames) {
  control.m_GetLogByProcess();
  control.tvMotherList_NodeClick(Node("LPROC|12|0|345"));
  control.sstProcessLog_Click();
  const auto& tree = controls().tvMotherList;
  EXPECT_EQ(tree.Key(tree.Selected()), "LPROC|12|0|345");
  control.p_FromType(tlFromType::tlOneAlarm);
  controls().txtDuring.SetText("");
  control.sstProcessLog_Click();
  EXPECT_EQ(Tree(), "") << "cleared, and nothing is built";
  EXPECT_EQ(controls().fraList.text() + ", " + platform.status, "Alarms (0), 0 element");
  EXPECT_TRUE(platform.messages.empty());
  controls().txtDuring.SetText("1");
  control.p_FromType(tlFromType::tlAllAlarms);
  control.sstProcessLog_Click();
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_THAT(platform.messages[0], HasSubstr("clRecordHub.AlarmsLog"));
}

TEST_F(ControlTest, SelectsTheNodeOfTheHostAndKeepsThePlaceOverAFailedRefresh) {
  control.p_Key("LPROC|30|1|343");
  control.m_GetLogByProcess();
  const auto& tree = controls().tvMotherList;
  EXPECT_EQ(tree.Key(tree.Selected()), "LPROC|30|1|343");
  history.failNumber = 5;
  control.cmdRefresh_Click();
  EXPECT_EQ(Tree(), "");
  EXPECT_EQ(controls().fraList.text() + ", " + platform.status, "Processes (0), 0 element");
  history.failNumber = 0;
  control.cmdRefresh_Click();
  EXPECT_EQ(tree.Key(tree.Selected()), "LPROC|30|1|343");
}

// Knows the tree from what it was told alone, as a picture on the screen does.
class Mirror : public widgets::TreeObserver {
 public:
  explicit Mirror(widgets::TreeView& tree) : tree_(tree) { tree.ObserveTree(this); }
  ~Mirror() override { tree_.ObserveTree(nullptr); }
  void TreeReset() override { told_ = test::TreeText(tree_); }
  void NodesInserted(NodeId, std::size_t, std::size_t) override { TreeReset(); }
  void ChildrenRemoved(NodeId, std::span<const NodeId>) override { TreeReset(); }
  void NodesChanged(std::span<const NodeId>) override { TreeReset(); }
  void NodeExpansionChanged(NodeId) override {}
  void TreeSelectionChanged() override {}
  void TreeScrolled(NodeId) override {}
  NodeId TopNode() const override { return NodeId::kNone; }
  void Repaint() { EXPECT_EQ(test::TreeText(tree_), told_); }

 private:
  widgets::TreeView& tree_;
  std::string told_;
};

TEST_F(ControlTest, AnyoneItCallsMayRepaint) {
  Mirror mirror(controls().tvMotherList);
  history.onCall = platform.onStatus = [&] { mirror.Repaint(); };
  control.m_GetLogByProcess();
  control.tvMotherList_NodeClick(Node("LPROC|12|0|345|2"));
  control.tvMotherList_Expand(Node("LPROC|12|0|345|1"));
  control.cmdRefresh_Click();
  control.sstProcessLog_Click();
  EXPECT_TRUE(platform.messages.empty());
}

TEST_F(ControlTest, AStatusBarThatFailsOnceIsAskedAgain) {
  platform.onStatus = [] { throw Error(SystemError::kOutOfMemory, "Busy"); };
  control.m_GetLogByProcess();
  platform.onStatus = nullptr;
  control.tvMotherList_NodeClick(Node("LPROC|30|1|343"));
  EXPECT_EQ(platform.status, "1 element");
}

TEST_F(ControlTest, LeadsToTheConnectionOfTheStepSelectedLast) {
  history.commands.dtCommunicationDate = test::MakeColumn<double>({DateFromCivil({2026, 11, 20, 1, 0, 0})});
  history.commands.lngCommunicationId = test::MakeColumn<std::int32_t>({77});
  const auto connections = [&] {
    return control.GetNextContextKeyInLogs("LPROC|12|0|345|2|8|900|51|52", "Connections");
  };
  EXPECT_EQ(control.GetNextContextKeyInLogs("LPROC|12", "Connections"), "") << "no step was selected yet";
  EXPECT_EQ(connections(), "") << "a step without commands";
  history.commandsCount = 1;
  EXPECT_EQ(connections(), "") << "a component that leaves columns out";
  EXPECT_THAT(platform.LogText(), HasSubstr("\tQuorvel: ucProcessLog.GetNextContextKeyInLogs\r\n"));
  datasource::CommandLogRecords& commands = history.commands;
  commands.lngCommandLogId = commands.lngKind = commands.lngResult = commands.lngCommunicationId;
  commands.strText = commands.strReport = test::MakeTexts({""});
  commands.dtStartDate = commands.dtEndDate = commands.dtCommunicationDate;
  commands.bInProgress = commands.bResultOk = commands.bResultNotOk = test::MakeColumn<std::int16_t>({0});
  EXPECT_EQ(connections(), "LCOMM|2026/11|2026/11/20|77|12|0|345|2|8|900|51|52|");
  history.failNumber = 5;
  EXPECT_EQ(connections(), "");
  EXPECT_TRUE(platform.messages.empty());
  EXPECT_EQ(control.GetNextContextKeyInLogs("", "Processes"), "");
  EXPECT_EQ(control.GetNextContextKeyInLogs("LPROC|13", "Alarms"), "");
  EXPECT_EQ(control.GetNextContextKeyInLogs("LPROC|13", "Users"), "LUSR|8|13|0|345|900|51|52");
}

TEST(Routing, KnowsEveryShapeOnce) {
  for (const NodeRoute& route : NodeRoutes()) {
    std::string key(route.prefix);
    for (std::size_t field = 1; field < route.fields; ++field) key += "|7";
    EXPECT_EQ(&RouteOf(key), &route) << key;
  }
  EXPECT_EQ(RouteOf("LPROC|1|2").click, ClickRoutine::kNone);
  EXPECT_EQ(RouteOf("").click, ClickRoutine::kNone);
}

TEST_F(ControlTest, ReleasesItsSourcesInOrder) {
  {
    ucProcessLog other(platform, factory);
    other.m_GetLogByProcess();
    other.GetNextContextKeyInLogs("LPROC|12|0|345|2|8|900|51|52", "Connections");
    other.tvMotherList_Expand(other.controls().tvMotherList.Find("LPROC|12|0|345|2"));
    other.tvMotherList_NodeClick(other.controls().tvMotherList.Find("LPROC|12|0|345|2|8"));
    history.calls.clear();
  }
  EXPECT_THAT(history.calls,
              ElementsAre("release CommandLog", "release ProcessLog", "release Labels", "release Quorvel"));
}

TEST_F(ControlTest, StateListsKeepTheChoiceOrTakeItsCounterpart) {
  widgets::ComboBox& state = controls().cboState;
  const auto on = [&](std::string_view tab) {
    FillStateList(state, tab);
    return state.selectedText();
  };
  EXPECT_EQ(state.selectedText(), "Last execution");
  EXPECT_EQ(on("System"), "Information");
  EXPECT_EQ(on("Processes"), "OK");
  ChooseState("Unknown");
  EXPECT_EQ(on("System"), "Before");
  EXPECT_EQ(on("Users"), "Unknown");
  EXPECT_EQ(on("Backups"), "All");
  ChooseState("Error");
  EXPECT_EQ(on("System"), "Error");
  EXPECT_EQ(on("Connections"), "Error");
  ChooseState("Last execution");
  EXPECT_EQ(on("Processes"), "Last execution");
  EXPECT_EQ(StateFilterOf("Before"), StateFilter::kUnknown);
  EXPECT_FALSE(StateFilterOf("before"));
}

TEST_F(ControlTest, PeriodIsLimitedHiddenAndChecked) {
  EXPECT_FALSE(controls().dtpDate.visible()) << "the last execution needs no period";
  ChooseState("Error");
  control.cboState_Click();
  EXPECT_TRUE(controls().dtpDate.visible());
  controls().txtDuring.SetText("150");
  control.cboDuringUnit_Click();
  EXPECT_EQ(controls().txtDuring.text(), "99");
  controls().txtDuring.SetText("99999999999999");
  control.cboDuringUnit_Click();
  EXPECT_EQ(controls().txtDuring.text(), "99");
  controls().txtDuring.SetText("soon");
  control.cboDuringUnit_Click();
  EXPECT_TRUE(platform.messages.empty());
  control.updDuring_DownClick();
  EXPECT_EQ(controls().txtDuring.text(), "1") << "no number: begins with the least";
  controls().txtDuring.SetText("98");
  control.updDuring_UpClick();
  control.updDuring_UpClick();
  EXPECT_EQ(controls().txtDuring.text(), "99");
  EXPECT_EQ(ReadOptions(controls(), StateFilter::kAll).groupBy, "0123");
  control.m_GetLogByProcess();
  controls().txtDuring.SetText("soon");
  EXPECT_THROW(control.m_GetLogByProcess(), Error);
}

TEST_F(ControlTest, LayoutKeepsItsBounds) {
  float width = 800;
  control.SizeControls(width);
  EXPECT_EQ(width, 1500);
  EXPECT_EQ(controls().tvMotherList.bounds().width, 1500);
  control.UserControl_Resize(15000, 9000);
  const auto barAfterDragTo = [&](widgets::Twips x) {
    control.imgSplitter_MouseDown();
    control.imgSplitter_MouseMove(x - controls().imgSplitter.bounds().left);
    const widgets::Twips left = controls().picSplitter.bounds().left;
    control.imgSplitter_MouseUp();
    return left;
  };
  EXPECT_EQ(barAfterDragTo(500), 2000);
  EXPECT_EQ(barAfterDragTo(5000), 5000);
  EXPECT_EQ(controls().tvMotherList.bounds().width, 5000);
  EXPECT_EQ(controls().lvMotherList.bounds().right(), controls().fraList.bounds().width);
  control.imgSplitter_MouseDown();
  control.imgSplitter_MouseUp();
  EXPECT_EQ(controls().tvMotherList.bounds().width, 5000) << "a click alone moves nothing";
  EXPECT_EQ(barAfterDragTo(99999), 13000);
  width = 14200;
  control.SizeControls(width);
  EXPECT_GE(controls().lvMotherList.bounds().top, controls().tvMotherList.bounds().bottom())
      << "no room beside the tree: the list lies below it";
  EXPECT_EQ(controls().imgSplitter.bounds().right(), controls().fraList.bounds().width);
  width = 1e9F;
  control.SizeControls(width);
  EXPECT_EQ(barAfterDragTo(5000), 5000) << "and back";
  EXPECT_EQ(controls().lvMotherList.bounds().top, controls().tvMotherList.bounds().top);
}

TEST_F(ControlTest, ASmallControlScrolls) {
  control.UserControl_Resize(15000, 9000);
  EXPECT_FALSE(controls().HScroll.visible() || controls().VScroll.visible() || controls().fraCorner.visible());
  control.UserControl_Resize(5000, 3000);
  EXPECT_TRUE(controls().HScroll.visible() && controls().VScroll.visible() && controls().fraCorner.visible());
  const widgets::Twips left = controls().fraProcessLog.bounds().left;
  controls().HScroll.SetValue(600);
  control.HScroll_Change();
  EXPECT_EQ(controls().fraProcessLog.bounds().left, left - 600);
  control.UserControl_Resize(15000, 9000);
  EXPECT_EQ(controls().fraProcessLog.bounds().left, left);
}

// A tree of which three lines can be seen.
class ThreeLines final : public widgets::TreeObserver {
 public:
  explicit ThreeLines(widgets::TreeView& tree) : tree_(tree) { tree_.ObserveTree(this); }
  ~ThreeLines() override { tree_.ObserveTree(nullptr); }
  void TreeReset() override {}
  void NodesInserted(NodeId, std::size_t, std::size_t) override {}
  void ChildrenRemoved(NodeId, std::span<const NodeId>) override {}
  void NodesChanged(std::span<const NodeId>) override {}
  void NodeExpansionChanged(NodeId) override {}
  void TreeSelectionChanged() override {}
  void TreeScrolled(NodeId top) override { top_ = top; }
  NodeId TopNode() const override { return top_; }
  bool SeesNode(NodeId node) override {
    NodeId line = top_ == NodeId::kNone ? tree_.Child(NodeId::kNone, 0) : top_;
    for (int lines = 0; lines < 3 && line != NodeId::kNone; ++lines, line = tree_.NextLine(line)) {
      if (line == node) return true;
    }
    return false;
  }

 private:
  widgets::TreeView& tree_;
  NodeId top_ = NodeId::kNone;
};

TEST_F(ControlTest, ScrollsUntilWhatWasOpenedIsSeen) {
  control.m_GetLogByProcess();
  widgets::TreeView& tree = controls().tvMotherList;
  const ThreeLines observer(tree);
  const auto ticks = [&] {
    int count = 0;
    for (; controls().Timer_ScrollDown_TV.enabled() && count < 99; ++count) control.Timer_ScrollDown_TV_Timer();
    return count;
  };
  control.tvMotherList_Expand(Node("LPROC|12"));
  EXPECT_EQ(ticks(), 0) << "everything is in sight";
  control.tvMotherList_Expand(Node("LPROC|12|0|345"));
  EXPECT_EQ(ticks(), 2);
  EXPECT_EQ(tree.Top(), Node("LPROC|12|0|345")) << "two groups below it";
  tree.ScrollTo(NodeId::kNone);
  control.tvMotherList_Expand(Node("LPROC|12|0|345|2"));
  control.Timer_ScrollDown_TV_Timer();
  tree.ScrollTo(NodeId::kNone);
  EXPECT_EQ(ticks(), 1) << "the user scrolled";
  EXPECT_EQ(tree.Top(), NodeId::kNone);
}

}  // namespace
}  // namespace quorvel
