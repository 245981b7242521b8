// The tree of alarms from given rows.
#include "tree/AlarmTree.h"

#include <gtest/gtest.h>

#include "support/AlarmRows.h"
#include "support/RecordingPlatform.h"
#include "support/TreeText.h"

namespace quorvel::tree {
namespace {

using test::AlarmDate;
using test::AlarmRow;

class AlarmTreeTest : public testing::Test {
 protected:
  // As a query gives them: by owner, newest first.
  const std::vector<AlarmRow> alarms{
      {.id = 9, .date = AlarmDate(20, 9), .severity = 3, .acknowledged = -1},
      {.id = 8, .owner = 7, .date = AlarmDate(20, 8), .severity = 1, .origin = "Server", .acknowledged = -1},
      {.id = 7, .owner = 7, .date = AlarmDate(20, 7), .severity = 2, .acknowledged = 1},
      {.id = 6, .owner = 7, .date = AlarmDate(19, 6), .severity = 1, .origin = "Server"},
      {.id = 5, .owner = 7, .date = AlarmDate(19, 5), .severity = 1, .action = 3},
      {.id = 4, .owner = 7, .date = 0, .severity = 9, .acknowledged = -1},
      {.id = 3, .owner = 8, .date = AlarmDate(19, 3), .severity = 5, .origin = "server"},
      {.id = 2, .owner = 8, .date = 1e300, .severity = 9, .origin = "Server"},
      {.id = 1, .owner = 9, .date = AlarmDate(20, 1), .severity = 3, .origin = "Server", .acknowledged = -1},
  };

  std::string Built(AlarmOwners owners, const list::AlarmChoice& choice) {
    tree.Clear();
    AppendAlarmNodes(test::AlarmRecords(alarms), static_cast<std::int32_t>(alarms.size()), owners, choice, platform,
                     tree);
    return test::TreeText(tree);
  }

  test::RecordingPlatform platform;
  widgets::TreeView tree{"tvMotherList"};
};

TEST_F(AlarmTreeTest, NodesShowTheWorstBelowThemAndHowManyAreActive) {
  EXPECT_EQ(Built(AlarmOwners::kAll, {}),
            "All alarms (9, 4 active) [LOGAALL|-1] AlarmFromServer\n"
            "  2026-11-20 (4) [LOGALRM|-1|2026/11/20] AlarmFromStationIsAcquitted\n"
            "  2026-11-19 (3, 3 active) [LOGALRM|-1|2026/11/19] AlarmFromStation\n"
            "Server (1) [LOGAUSR|0] AlarmFromStationIsAcquitted\n"
            "  2026-11-20 (1) [LOGALRM|0|2026/11/20] AlarmFromStationIsAcquitted\n"
            "Owner 7 (5, 2 active) [LOGAUSR|7] AlarmFromServer\n"
            "  2026-11-20 (2) [LOGALRM|7|2026/11/20] AlarmFromStationIsAcquitted\n"
            "  2026-11-19 (2, 2 active) [LOGALRM|7|2026/11/19] AlarmFromServer\n"
            "Owner 8 (2, 2 active) [LOGAUSR|8] AlarmFromServer\n"
            "  2026-11-19 (1, 1 active) [LOGALRM|8|2026/11/19] AlarmFromStation\n"
            "Unknown station (1) [LOGAUSR|9] AlarmFromServerIsAcquitted\n"
            "  2026-11-20 (1) [LOGALRM|9|2026/11/20] AlarmFromServerIsAcquitted\n");
  EXPECT_TRUE(tree.IsBold(tree.Find("LOGALRM|8|2026/11/19")));
  EXPECT_FALSE(tree.IsBold(tree.Find("LOGAUSR|9")));
}

TEST_F(AlarmTreeTest, OneOwnerStandsAloneAndActiveOnesAreChosen) {
  EXPECT_EQ(Built(AlarmOwners::kOne, {.owner = 7, .shown = list::AlarmsShown::kActive}),
            "Owner 7 (2, 2 active) [LOGA1USR|7] AlarmFromServer\n"
            "  2026-11-19 (2, 2 active) [LOGALRM|7|2026/11/19] AlarmFromServer\n");
  EXPECT_EQ(Built(AlarmOwners::kAll, {.owner = 0, .shown = list::AlarmsShown::kActive}), "") << "nothing is left";
}

TEST_F(AlarmTreeTest, KeysNameOwnerAndDay) {
  EXPECT_EQ(ReadAlarmKey("LOGAALL|-1").owner, list::kAllOwners);
  EXPECT_EQ(ReadAlarmKey("LOGAUSR|7").day, 0);
  EXPECT_EQ(ReadAlarmKey("LOGALRM|7|2026/11/19").owner, 7);
  EXPECT_EQ(ReadAlarmKey("LOGALRM|7|2026/11/19").day, AlarmDate(19, 0));
  EXPECT_THROW(ReadAlarmKey("LOGALRM|7|19.11."), Error);
}

}  // namespace
}  // namespace quorvel::tree
