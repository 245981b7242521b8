// The process tree from given rows, state groups and the navigation context.
#include "tree/ProcessTree.h"

#include <gtest/gtest.h>

#include <functional>

#include "support/FakeSources.h"
#include "support/RecordingPlatform.h"
#include "support/TreeText.h"
#include "tree/NavigationContext.h"
#include "tree/NodeKey.h"
#include "tree/StateGroups.h"

namespace quorvel::tree {
namespace {

using list::StateGroup;
using test::StationRows;
using widgets::NodeId;

class ProcessTreeTest : public testing::Test {
 protected:
  std::string Build(const StationRows& rows) {
    AppendProcessNodes(rows.Records(), rows.count(), "0123", platform, errors, tree);
    return test::TreeText(tree);
  }
  std::int32_t ErrorOf(const std::function<void()>& action) {
    try {
      action();
    } catch (const Error& error) {
      return error.number();
    }
    return 0;
  }

  test::RecordingPlatform platform;
  datasource::ErrorsProcess errors{platform};
  widgets::TreeView tree{"tvMotherList"};
};

TEST_F(ProcessTreeTest, GroupsStationsByRunAndState) {
  StationRows rows;
  rows.Station(12, 345, 7, StationRows::kOk)
      .Station(12, 345, 8, StationRows::kNotOk)
      .Station(12, 345, 9, StationRows::kOk)
      .Station(12, 344, 7, StationRows::kOk)
      .Station(30, 343, 7, StationRows::kNotExecuted)
      .Station(30, 343, 8, StationRows::kUnknown)
      .Station(30, 342, 7, StationRows::kInProgress)
      .Station(30, 341, -1, StationRows::kNotExecuted);
  EXPECT_EQ(Build(rows),
            "Prices [LPROC|12] Process\n"
            "  2026-11-20 09:00:00 (Batch No.345) [LPROC|12|0|345] ProcessNONOK\n"
            "    OK : 67% (2) [LPROC|12|0|345|1] User_Ok +\n"
            "    NOT OK : 33% (1) [LPROC|12|0|345|2] User_NoOk +\n"
            "  2026-11-20 08:00:00 (Batch No.344) [LPROC|12|0|344] ProcessOk\n"
            "    OK : 100% (1) [LPROC|12|0|344|1] User_Ok +\n"
            "Inventory [LPROC|30] ProcessStation\n"
            "  2026-11-20 07:00:00 (Batch No.343) [LPROC|30|1|343] ProcessUndefined\n"
            "    Not executed : 50% (1) [LPROC|30|1|343|4] User_NoExecute +\n"
            "    Unknown : 50% (1) [LPROC|30|1|343|5] User_Undefined +\n"
            "  2026-11-20 06:00:00 (Batch No.342) [LPROC|30|1|342] ProcessStart\n"
            "    In progress : 100% (1) [LPROC|30|1|342|3] User_Inprogress +\n"
            "  2026-11-20 05:00:00 (Batch No.341) [LPROC|30|1|341] ProcessUndefined\n")
      << "a run in which no station took part is shown, and counts none";
  EXPECT_EQ(CountItemsInTreeview(tree), 2);
}

TEST_F(ProcessTreeTest, ARunThatComesAgainIsANewNode) {
  StationRows rows;
  rows.Station(12, 1, 7, StationRows::kOk).Station(12, 2, 7, StationRows::kOk).Station(12, 1, 8, StationRows::kNotOk);
  Build(rows);
  EXPECT_EQ(tree.ChildCount(tree.Child(NodeId::kNone, 0)), 3U);
  EXPECT_EQ(tree.Image(tree.Find("LPROC|12|0|1")), "ProcessNONOK") << "a look-up finds the newest";
}

TEST_F(ProcessTreeTest, RefusesAComponentThatLeavesRowsOut) {
  StationRows rows;
  rows.Station(12, 1, 7, StationRows::kOk);
  EXPECT_EQ(ErrorOf([&] { AppendProcessNodes(rows.Records(), 2, "0123", platform, errors, tree); }), 9);
  auto records = rows.Records();
  records.bResultUnknown = {};
  EXPECT_EQ(ErrorOf([&] { AppendProcessNodes(records, 1, "0123", platform, errors, tree); }), 9);
  EXPECT_EQ(tree.Count(), 0U);
}

TEST_F(ProcessTreeTest, PercentagesRoundHalvesToEvenAndCheckTheirBounds) {
  EXPECT_EQ(strGetNumberAndPurcent(errors, 6, 3), "50% (3)");
  EXPECT_EQ(strGetNumberAndPurcent(errors, 200, 1), "0% (1)");
  EXPECT_EQ(strGetNumberAndPurcent(errors, 200, 3), "2% (3)");
  EXPECT_EQ(strGetNumberAndPurcent(errors, 0, 3), "");
  EXPECT_EQ(StateGroupText(StateGroup::kInProgress, 20, 1), "In progress : 05% (1)");
  const auto text = [](std::int32_t total, std::int32_t count) {
    return [=] { StateGroupText(StateGroup::kOk, total, count); };
  };
  EXPECT_EQ(ErrorOf(text(0, 1)), 11);
  EXPECT_EQ(ErrorOf(text(2'000'000'000, 21'474'837)), 6);
  EXPECT_EQ(ErrorOf(text(2'000'000'000, 21'474'836)), 0);
  EXPECT_EQ(platform.LogText(), "");
  EXPECT_EQ(strGetNumberAndPurcent(errors, 2'000'000'000, 21'474'837), "");
  EXPECT_NE(platform.LogText().find("ErrorSystem      : 6\r\n"), std::string::npos);
}

TEST_F(ProcessTreeTest, RelabelsGroupsAndImageByKey) {
  StationRows rows;
  rows.Station(12, 345, 7, StationRows::kOk).Station(12, 345, 8, StationRows::kNotOk);
  Build(rows);
  SetPurcentAndIconToTreeview(errors, tree, "LPROC|12|0|345", {.total = 20, .notOk = 1, .ok = 19}, true);
  EXPECT_EQ(tree.Text(tree.Find("LPROC|12|0|345|2")), "NOT OK : 05% (1)");
  EXPECT_EQ(tree.Image(tree.Find("LPROC|12|0|345")), "ProcessNONOK");
  EXPECT_EQ(platform.LogText(), "");
  SetPurcentAndIconToTreeview(errors, tree, "LPROC|12|0|345", {.total = 1, .unknown = 1}, true);
  EXPECT_EQ(tree.Image(tree.Find("LPROC|12|0|345")), "ProcessNONOK");
  SetPurcentAndIconToTreeview(errors, tree, "LPROC|12|0|345", {.total = 0, .ok = 1}, true);
  for (const char* number : {"ErrorSystem      : 35601\r\n", "ErrorSystem      : 11\r\n"}) {
    EXPECT_NE(platform.LogText().find(number), std::string::npos) << "a group that is not there, a total of none";
  }
  EXPECT_TRUE(platform.messages.empty());
  SetPurcentAndIconToTreeview(errors, tree, "LPROC|12|0|345", {.total = 1, .unknown = 1}, false);
  EXPECT_EQ(tree.Image(tree.Find("LPROC|12|0|345")), "ProcessUndefined");
  // Mixed outcomes keep the image by one rule and turn it by the other.
  EXPECT_EQ(GetProcessIconName({.notOk = true, .ok = true}, ""), "");
  SetIconToTreeview(errors, tree, "LPROC|12|0|345", {.notOk = true, .ok = true}, "");
  EXPECT_EQ(tree.Image(tree.Find("LPROC|12|0|345")), "ProcessUndefined");
  EXPECT_EQ(GetProcessIconName({.inProgress = true}, "Waiting prerequisite"), "ProcessWaitingPrerequisite");
  SetIconToTreeview(errors, tree, "LPROC|12|0|345", {.inProgress = true}, "Waiting prerequisite");
  EXPECT_EQ(tree.Image(tree.Find("LPROC|12|0|345")), "ProcessStart");
  SetIconToTreeview(errors, tree, "LPROC|12|0|345", {}, "Waiting station out com");
  EXPECT_EQ(tree.Image(tree.Find("LPROC|12|0|345")), "ProcessWaitingStation");
}

TEST(NodeKey, KeepsASeparatorInANameApart) {
  const std::string key = MakeKey(util::kImportPrefix, 3, FieldOfName("Lyon | Nord"), "");
  EXPECT_EQ(util::SplitKey(key).size(), 4U);
  EXPECT_EQ(NameOfField(util::Identifiant(key, 3)), "Lyon | Nord");
}

TEST_F(ProcessTreeTest, ContextRemembersDeeperLevels) {
  NavigationContext context;
  context.SaveContextLog("LPROC|12|0|345|1|7|900|51|52", tree);
  EXPECT_EQ(context.UsersKey(), "LUSR|7|12|0|345|900|51|52");
  context.SaveContextLog("LPROC|13|1|346|2|8", tree);
  EXPECT_EQ(context.ProcessesKey(), "LPROC|13|1|346|2|8|900|51|52") << "what a short key lacks stays";
  context.SaveContextLog("HSYS|99", tree);
  context.SaveContextLog("", tree);
  EXPECT_EQ(context.ProcessesKey(), "LPROC|13|1|346|2|8|900|51|52");
  const std::string connection = context.ConnectionsKey(DateFromCivil({2026, 3, 9, 1, 2, 3}), 77);
  EXPECT_EQ(connection, "LCOMM|2026/03|2026/03/09|77|13|1|346|2|8|900|51|52|");
  NavigationContext other;
  other.SaveContextLog(connection, tree);
  EXPECT_EQ(other.ProcessesKey(), context.ProcessesKey());
  EXPECT_EQ(other.ContextCommunication, "77");
}

TEST_F(ProcessTreeTest, ContextReadsTheStateOfAUserKeyFromItsRun) {
  const NodeId run = tree.Add(NodeId::kNone, "LUSR|7|12|0|345", "", "ProcessOk");
  const NodeId task = tree.Add(run, "LUSR|7|12|0|345|900", "", "Teledist");
  tree.Add(task, "LUSR|7|12|0|345|900|51|52", "", "Step");
  NavigationContext context;
  for (const char* key : {"LUSR|7|12|0|345", "LUSR|7|12|0|345|900", "LUSR|7|12|0|345|900|51|52"}) {
    context.ContextState.clear();
    context.SaveContextLog(key, tree);
    EXPECT_EQ(context.ContextState, "1") << key;
  }
  tree.SetImages(run, "ProcessStart", "ProcessStart", "ProcessStart");
  context.SaveContextLog("LUSR|7|12|0|345|900", tree);
  EXPECT_EQ(context.ContextState, "2");
  context.SaveContextLog("LUSR|8|12|0|346|900", tree);
  EXPECT_EQ(context.ContextState, "2") << "a node that is not there decides nothing";
}

}  // namespace
}  // namespace quorvel::tree
