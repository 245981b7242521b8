// The tree by station from given rows, and places that outlive a tree.
#include "tree/UserTree.h"

#include <gtest/gtest.h>

#include "support/FakeSources.h"
#include "support/RecordingPlatform.h"
#include "support/TreeText.h"
#include "tree/Place.h"
#include "tree/TaskTree.h"

namespace quorvel::tree {
namespace {

using test::StationRows;
using widgets::NodeId;

datasource::ProcessLogRecords PartsOf(const StationRows& stations, const std::vector<std::string>& waits) {
  datasource::ProcessLogRecords rows = stations.Records();
  rows.strUserName = rows.strIdentifier = test::MakeTexts(std::vector<std::string>(waits.size(), "Lyon"));
  rows.strWaitState = test::MakeTexts(waits);
  rows.dtEndDate = rows.dtStartDate;
  return rows;
}

TEST(UserTree, StationsAndProcessesShowTheWorstOfTheirRows) {
  StationRows stations;
  stations.Station(12, 3, 0, StationRows::kOk)
      .Station(12, 2, 0, StationRows::kNotExecuted)
      .Station(30, 1, 0, StationRows::kNotExecuted)
      .Station(12, 3, 7, StationRows::kOk)
      .Station(12, 2, 7, StationRows::kNotOk)
      .Station(30, 3, 7, StationRows::kUnknown)
      .Station(30, 2, 8, StationRows::kNotOk)
      .Station(30, 1, 8, StationRows::kInProgress)
      .Station(30, 2, 9, StationRows::kInProgress)
      .Station(30, 1, 9, StationRows::kInProgress);
  widgets::TreeView tree("tvMotherList");
  AppendUserNodes(PartsOf(stations, {"", "", "", "", "", "", "", "", "Waiting com", ""}), stations.count(), "0123",
                  tree);
  EXPECT_EQ(test::TreeText(tree),
            "Without population (Lyon) [LUSR|0] User_Ok\n"
            "  Prices [LUSR|0|12] ProcessOk +\n"
            "  Inventory [LUSR|0|30] ProcessStation +\n"
            "Lyon (Lyon) [LUSR|7] User_NoOk\n"
            "  Prices [LUSR|7|12] ProcessNONOK +\n"
            "  Inventory [LUSR|7|30] ProcessUndefined +\n"
            "Lyon (Lyon) [LUSR|8] User_NoOk\n"
            "  Inventory [LUSR|8|30] ProcessNONOK +\n"
            "Lyon (Lyon) [LUSR|9] User_Inprogress\n"
            "  Inventory [LUSR|9|30] ProcessWaitingCom +\n");
}

TEST(UserTree, RunsShowTheStationsOwnOutcome) {
  StationRows stations;
  stations.Station(30, 3, 7, StationRows::kInProgress)
      .Station(30, 2, 7, StationRows::kNotOk)
      .Station(30, 1, 7, StationRows::kNotExecuted);
  widgets::TreeView tree("tvMotherList");
  test::RecordingPlatform platform;
  const NodeId process = tree.Add(NodeId::kNone, "LUSR|7|30", "Inventory", "Process");
  AppendRunsOfStation(PartsOf(stations, {"Waiting prerequisite", "", ""}), stations.count(), platform, process, tree);
  EXPECT_EQ(test::TreeText(tree, process),
            "2026-11-20 03:00:00 (Batch No.3) [LUSR|7|30|1|3] ProcessStart +\n"
            "2026-11-20 02:00:00 (Batch No.2) [LUSR|7|30|1|2] ProcessNONOK +\n"
            "2026-11-20 01:00:00 (Batch No.1) [LUSR|7|30|1|1] Process +\n");
}

TEST(TaskTree, ReadsWhatKeysNameInEitherTree) {
  const auto part = [](std::string_view key) {
    const PartOfRun read = ReadPartKey(key);
    return std::to_string(read.run) + (read.onStation ? " station " : " server ") + std::to_string(read.user);
  };
  EXPECT_EQ(part("LPROC|12|1|345|2|8"), "345 station 8");
  EXPECT_EQ(part("LUSR|8|12|0|345"), "345 server 8");
  const auto task = [](std::string_view key) {
    const auto read = ReadTaskKey(key, 77);
    if (!read) return std::string("none");
    return std::to_string(read->task) + " " + std::to_string(read->run) + " " + std::to_string(read->user);
  };
  EXPECT_EQ(task("LPROC|12|1|345|2|8|900"), "900 345 8");
  EXPECT_EQ(task("LUSR|8|12|0|345|900"), "900 345 8");
  EXPECT_EQ(task("LCOMM|a|b|4|345|900"), "900 345 77");
  EXPECT_EQ(task("LIMP|1|2|3|4|5"), "none");
  EXPECT_EQ(StepLogOfKey("LPROC|12|1|345|2|8|900|51|61"), 51);
  EXPECT_EQ(StepLogOfKey("LUSR|8|12|0|345|900|51|61"), 51);
  EXPECT_THROW(ReadPartKey("LPROC|12|1|x|2|8"), Error);
}

std::string TextOf(const Place& place) {
  std::string text;
  for (const PlaceStep& step : place) text += "[" + step.fields + "]" + std::to_string(step.ordinal);
  return text;
}

TEST(Place, KnowsTheWayAndWhichOfEqualKeys) {
  widgets::TreeView tree("tvMotherList");
  const NodeId process = tree.Add(NodeId::kNone, "LPROC|1", "", "");
  const NodeId first = tree.Add(process, "LPROC|1|0|5", "", "");
  tree.Add(process, "LPROC|1|0|6", "", "");
  const NodeId second = tree.Add(process, "LPROC|1|0|5", "", "");
  const NodeId alarm = tree.Add(process, "LOGALRM|2|3", "", "");
  EXPECT_EQ(TextOf(PlaceOf(tree, second)), "[LPROC|1]0[|0|5]1");
  EXPECT_EQ(TextOf(PlaceOf(tree, alarm)), "[LPROC|1]0[LOGALRM|2|3]0") << "a key that does not extend the one above";
  EXPECT_EQ(ChildAt(tree, process, {"|0|5", 1}), second);
  EXPECT_EQ(ChildAt(tree, process, {"|0|5", 0}), first);
  EXPECT_EQ(ChildAt(tree, process, {"|0|5", 7}), second) << "fewer by now: the last";
  EXPECT_EQ(ChildAt(tree, process, {"LOGALRM|2|3", 0}), alarm);
  EXPECT_EQ(ChildAt(tree, process, {"|0|9", 0}), NodeId::kNone);
}

TEST(Place, GoesNoDeeperThanWhatWasLeft) {
  EXPECT_EQ(TextOf(PlaceOfKey("LPROC|1|0|5|2|7|900|51|61")), "[LPROC|1]0[|0|5]0[|2]0[|7]0[|900]0[|51|61]0");
  EXPECT_EQ(TextOf(PlaceOfKey("LIMP|1|x")), "[LIMP|1|x]0");
  EXPECT_EQ(TextOf(PlaceOfKey("")), "");
  const std::string users = "LUSR|7|1|0|5|900|51|61";
  EXPECT_EQ(TextOf(EquivalentPlace("LPROC|1", users)), "[LUSR|7]0[|1]0");
  EXPECT_EQ(TextOf(EquivalentPlace("LPROC|1|0|5", users)), "[LUSR|7]0[|1]0[|0|5]0");
  EXPECT_EQ(TextOf(EquivalentPlace("LPROC|1|0|5|2|7|900", users)), "[LUSR|7]0[|1]0[|0|5]0[|900]0");
  const std::string processes = "LPROC|1|0|5|2|7|900|51|61";
  EXPECT_EQ(TextOf(EquivalentPlace("LUSR|7", processes)), "");
  EXPECT_EQ(TextOf(EquivalentPlace("LUSR|7|1|0|5", processes)), "[LPROC|1]0[|0|5]0[|2]0[|7]0");
}

}  // namespace
}  // namespace quorvel::tree
