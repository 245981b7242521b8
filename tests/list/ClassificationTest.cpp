// Which icon and caption a row gets.
#include "list/Classification.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "list/ChildList.h"
#include "support/RecordingPlatform.h"
#include "widgets/TreeView.h"

namespace quorvel::list {
namespace {

constexpr Flag kSet = -1;

// A tree with one node, whose child list is a list of one row.
class OneRowList : public testing::Test {
 protected:
  void SetUp() override {
    widgets::TreeView tree("tree");
    const widgets::NodeId root = tree.Add(widgets::NodeId::kNone, "LPROC|1", "Prices", "Process");
    tree.Add(root, "LPROC|1|0|7", "Run", "ProcessWaitingCom");
    list.SetHeaders({{.caption = "Processes"}});
    list.SetRows(ChildRows(tree, root));
  }
  test::RecordingPlatform platform;
  datasource::ErrorsProcess errors{platform};
  widgets::ListView list{"lvMotherList"};
};

TEST_F(OneRowList, OutlivesItsTreeAndTakesTheOutcomeInTheFixedOrder) {
  EXPECT_EQ(list.Cell(0, 0), "Run");
  EXPECT_EQ(list.Key(0), "LPROC|1|0|7");
  EXPECT_EQ(SetStateAndIconToListview(errors, list, 0, 0, 0, 0, 0), "Not executed");
  EXPECT_EQ(list.Icon(0), "ProcessWaitingCom") << "no flag, no icon";
  EXPECT_EQ(SetStateAndIconToListview(errors, list, 0, 0, 0, kSet, kSet), "Unknown") << "unknown before OK";
  EXPECT_EQ(list.Icon(0), "ProcessUndefined");
  EXPECT_EQ(SetStateAndIconToListview(errors, list, 0, 0, 1, kSet, kSet), "NOT OK") << "any value but 0 counts";
  EXPECT_EQ(SetStateAndIconToListview(errors, list, 0, kSet, kSet, 0, 0), "In progress");
  EXPECT_EQ(SetStateAndIconToListview(errors, list, 0, 0, 0, 2, 0), "OK");
  EXPECT_EQ(list.Icon(0), "ProcessOk");
  EXPECT_EQ(platform.LogText(), "");
  EXPECT_EQ(SetStateAndIconToListview(errors, list, 1, 0, 0, kSet, 0), "") << "no such row";
  EXPECT_NE(platform.LogText(), "");
}

TEST(Classification, OfUsersLooksAtOkFirstAndOnlyMinusOneIsTrue) {
  struct Case {
    UserFlags flags;
    std::string_view wait;
    std::string_view icon;
    std::string_view caption;
    StateGroup group;
  };
  const Case cases[] = {
      {{.ok = kSet, .notOk = kSet}, "", "User_Ok", "Ok", StateGroup::kOk},
      {{.ok = 1, .notOk = kSet}, "", "User_NoOk", "Not Ok", StateGroup::kNotOk},
      {{.notOk = 1, .unknown = kSet}, "", "User_Undefined", "Unknown", StateGroup::kUnknown},
      {{}, "Waiting com", "User_NoExecute", "Not executed", StateGroup::kNotExecuted},
      {{.executed = kSet}, "", "User", "", StateGroup::kUnknown},
      {{.ok = 1}, "", "User_NoExecute", "Not executed", StateGroup::kNotExecuted},
      {{.inProgress = 1, .ok = kSet}, "", "User", "", StateGroup::kInProgress},
      {{.inProgress = kSet}, "To run", "User", "In progress", StateGroup::kInProgress},
      {{.inProgress = kSet},
       "Waiting prerequisite",
       "User_WaitingPrerequisite",
       "Waiting for prerequisites to be met",
       StateGroup::kInProgress},
      {{.inProgress = kSet}, "waiting com", "User", "", StateGroup::kInProgress},
  };
  for (const Case& each : cases) {
    const Classified shown = ClassifyUser(each.flags, each.wait);
    EXPECT_EQ(shown.icon, each.icon);
    EXPECT_EQ(shown.caption, each.caption);
    EXPECT_EQ(GroupOfUser(each.flags), each.group) << each.icon;
  }
}

TEST(Classification, OfTasks) {
  EXPECT_EQ(GetLogIconeTask("Teledistribution", 0, 1, kSet, false), "Teledist");
  EXPECT_EQ(GetLogIconeTask("teledistribution", kSet, 1, 0, false), "ProgramServerNotExec");
  EXPECT_EQ(GetLogIconeTask("", 0, 0, 0, true), "ProgramServerGlobal");
  EXPECT_EQ(GetLogIconeTask("Restore", kSet, 0, 0, true), "RestoreStationNotExecGlobal");
  EXPECT_EQ(GetLogIconeTask("ManageStation", kSet, 1, kSet, false), "TaskWaitingServer");
  EXPECT_EQ(GetLogIconeTask("ManageStation", kSet, 1, kSet, true), "ManagementStationNotExec");
  for (const char* type : {"ControlStation", "ExportSQLToFileStation", "FtpExplicitStation", "BatchStation"}) {
    EXPECT_NE(GetLogIconeTask(type, kSet, 0, kSet, false), "TaskWaitingServer") << type;
  }
}

TEST(Classification, OfStepsAndAlarms) {
  EXPECT_EQ(GetLogIconeStep(0, 1), "Step");
  EXPECT_EQ(GetLogIconeStep(4, 0), "StepMailOEXGlobal");
  EXPECT_EQ(GetLogIconeStep(5, 1), "");
  EXPECT_EQ(GetLogIconeStep(-1, 0), "");
  EXPECT_EQ(GetLogIconeAlarm(1, "server", 0), "AlarmActionMailFromStation");
  EXPECT_EQ(GetLogIconeAlarm(3, "Server", kSet), "AlarmActionFileFromServer");
  EXPECT_EQ(GetLogIconeAlarm(6, "Server", kSet), "AlarmFromServerIsAcquitted");
  EXPECT_EQ(GetLogIconeAlarm(0, "", 0), "AlarmFromStation");
}

TEST(Classification, OfFlagsTransfersAndKeys) {
  EXPECT_EQ(GetProcessState(0, 0, 0, 0), 4);
  EXPECT_EQ(GetProcessState(kSet, kSet, kSet, kSet), 3);
  EXPECT_EQ(GetProcessState(1, kSet, kSet, 0), 1) << "set, but not true";
  EXPECT_EQ(GetProcessState(0, 1, kSet, 0), 2);
  EXPECT_EQ(GetProcessState(0, 0, 0, kSet), 0);

  EXPECT_FALSE(IsFilesTransferLogError(0, 0));
  EXPECT_FALSE(IsFilesTransferLogError(89, 92));
  EXPECT_FALSE(IsFilesTransferLogError(90, 94));
  EXPECT_TRUE(IsFilesTransferLogError(88, 92));
  EXPECT_TRUE(IsFilesTransferLogError(89, 95));
  EXPECT_TRUE(IsFilesTransferLogError(89, -1));

  EXPECT_TRUE(IsCurrentProcessName("LPROC|1|0|7"));
  for (const char* key : {"LPROC|1|0|7|1", "LPROC|1||7", "LPROC|1|0", "LUSR|1|0|7", "LPROC|1|0|"}) {
    EXPECT_FALSE(IsCurrentProcessName(key)) << key;
  }
  EXPECT_TRUE(IsImportName("LIMP|3|Night"));
  for (const char* key : {"LIMP|3|Night|5", "LIMP||Night", "LIMP|3"}) EXPECT_FALSE(IsImportName(key)) << key;
}

}  // namespace
}  // namespace quorvel::list
