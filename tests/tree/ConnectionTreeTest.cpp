// The tree of connections, with days and without, and the ways to its nodes.
#include "tree/ConnectionTree.h"

#include <gtest/gtest.h>

#include "support/ConnectionRows.h"
#include "support/RecordingPlatform.h"
#include "support/TreeText.h"
#include "tree/Place.h"

namespace quorvel::tree {
namespace {

using widgets::NodeId;

class ConnectionTreeTest : public testing::Test {
 protected:
  void Build(bool byDay) {
    AppendMonthNodes(test::DaysOf({{{2026, 3, 2}, 12}, {{2026, 3, 1}, 3}, {{2025, 3, 31}, 7}}),
                     test::DaysOf({{{2026, 3, 5}, 9}, {{2026, 3, 1}, 2}}), byDay, platform, tree);
  }
  void Load(std::string_view key) {
    const auto rows = test::ConnectionsOf({{77, {2026, 3, 1, 23, 5, 7}, "Lyon 08", -1, 0, -1, 0},
                                           {76, {2026, 3, 1, 4, 0, 0}, "Lyon | Nord", 0, 0, 0, -1},
                                           {75, {2026, 3, 1, 0, 0, 0}, "", 0, 0, 1, 0}});
    AppendConnectionNodes(rows.records, rows.count, platform, tree.Find(key), tree);
    tree.SetPlaceholder(tree.Find(key), false);
  }

  test::RecordingPlatform platform;
  widgets::TreeView tree{"tvMotherList"};
};

TEST_F(ConnectionTreeTest, FailuresAreSeenFromTheMonthDown) {
  Build(true);
  Load("LCOMM|2026/03|2026/03/01");
  EXPECT_EQ(test::TreeText(tree),
            "2026/03 (15, 2 NOT OK) [LCOMM|2026/03] User_NoOk\n"
            "  2026-03-02 (12) [LCOMM|2026/03|2026/03/02] StepCom +\n"
            "  2026-03-01 (3, 2 NOT OK) [LCOMM|2026/03|2026/03/01] User_NoOk\n"
            "    23:05:07 Lyon 08 : From station [LCOMM|2026/03|2026/03/01|77] User_Ok\n"
            "    04:00:00 Lyon | Nord : To station [LCOMM|2026/03|2026/03/01|76] User_NoOk\n"
            "    00:00:00 Unknown station : To station [LCOMM|2026/03|2026/03/01|75] User_Undefined\n"
            "2025/03 (7) [LCOMM|2025/03] StepCom\n"
            "  2025-03-31 (7) [LCOMM|2025/03|2025/03/31] StepCom +\n")
      << "a day of the failed ones alone belongs to no day that is shown";
}

TEST_F(ConnectionTreeTest, WithoutDaysTheKeysNameThemAllTheSame) {
  Build(false);
  Load("LCOMM|2026/03");
  EXPECT_EQ(test::TreeText(tree),
            "2026/03 (15, 2 NOT OK) [LCOMM|2026/03] User_NoOk\n"
            "  2026-03-01 23:05:07 Lyon 08 : From station [LCOMM|2026/03|2026/03/01|77] User_Ok\n"
            "  2026-03-01 04:00:00 Lyon | Nord : To station [LCOMM|2026/03|2026/03/01|76] User_NoOk\n"
            "  2026-03-01 00:00:00 Unknown station : To station [LCOMM|2026/03|2026/03/01|75] User_Undefined\n"
            "2025/03 (7) [LCOMM|2025/03] StepCom +\n");
}

TEST_F(ConnectionTreeTest, AMonthAndADayAskForWhatTheFilterLeavesOfThem) {
  const auto period = [](std::string_view key) {
    const util::Period filter{DateFromCivil({2024, 2, 10, 6, 0, 0}), DateFromCivil({2024, 3, 1, 18, 0, 0})};
    const util::Period read = PeriodOfConnections(key, filter);
    return FormatFixedDateTime(read.from) + " " + FormatFixedDateTime(read.to);
  };
  EXPECT_EQ(period("LCOMM|2024/02"), "2024-02-10 06:00:00 2024-03-01 00:00:00");
  EXPECT_EQ(period("LCOMM|2024/03"), "2024-03-01 00:00:00 2024-03-01 18:00:00");
  EXPECT_EQ(period("LCOMM|2024/02|2024/02/29"), "2024-02-29 00:00:00 2024-03-01 00:00:00");
  EXPECT_EQ(period("LCOMM|2024/02|2024/02/10"), "2024-02-10 06:00:00 2024-02-11 00:00:00");
  EXPECT_EQ(CommunicationOfKey("LCOMM|2024/02|2024/02/10|77"), 77);
  for (const char* key :
       {"LCOMM|2024-02", "LCOMM|2024/2", "LCOMM|2024/02|2024/02/30", "LCOMM", "LCOMM|2024/02|2024/"}) {
    EXPECT_THROW(period(key), Error) << key;
  }
}

// Goes from the root as far as the way leads.
std::string ReachedBy(const widgets::TreeView& tree, const Place& place) {
  std::string reached;
  NodeId node = NodeId::kNone;
  for (std::size_t i = 0; i < place.size(); ++i) {
    node = ChildOnWay(tree, node, place, i);
    if (node == NodeId::kNone) break;
    reached = tree.Key(node);
  }
  return reached;
}

TEST_F(ConnectionTreeTest, TheWayToAConnectionIsTheSameWithAndWithoutDays) {
  Build(false);
  Load("LCOMM|2026/03");
  const Place without = PlaceOf(tree, tree.Find("LCOMM|2026/03|2026/03/01|76"));
  const std::string context = "LCOMM|2026/03|2026/03/01|76|12|0|345|2|7|900|51|61|";
  EXPECT_EQ(ReachedBy(tree, PlaceOfKey(context)), "LCOMM|2026/03|2026/03/01|76");
  EXPECT_EQ(ReachedBy(tree, PlaceOfKey("LCOMM|2026/03|2026/03/09|76")), "LCOMM|2026/03");
  tree.Clear();
  Build(true);
  Load("LCOMM|2026/03|2026/03/01");
  EXPECT_EQ(ReachedBy(tree, without), "LCOMM|2026/03|2026/03/01|76");
  EXPECT_EQ(ReachedBy(tree, PlaceOfKey(context)), "LCOMM|2026/03|2026/03/01|76");
  EXPECT_EQ(ReachedBy(tree, PlaceOfKey("LCOMM|2026/03|2026/03/01|99|12|")), "LCOMM|2026/03|2026/03/01");
  EXPECT_EQ(ReachedBy(tree, PlaceOfKey("LCOMM|2024/01|2024/01/01|99|12|")), "");
  EXPECT_EQ(ReachedBy(tree, EquivalentPlace("LPROC|12|0|345|2|7|900|51|61", context)), "LCOMM|2026/03|2026/03/01|76");
  EXPECT_EQ(ReachedBy(tree, EquivalentPlace("LPROC|12|0|345", context)), "") << "its step was left long ago";
  EXPECT_EQ(EquivalentPlace("LCOMM|2026/03", "LUSR|7|12|0|345").size(), 3U) << "back to where that view was left";
}

}  // namespace
}  // namespace quorvel::tree
