// The tree of backups, level by level, and what its keys ask for.
#include "tree/BackupTree.h"

#include <gtest/gtest.h>

#include "support/RecordingPlatform.h"
#include "support/SaveRows.h"
#include "support/TreeText.h"
#include "tree/Place.h"

namespace quorvel::tree {
namespace {

using widgets::NodeId;

class BackupTreeTest : public testing::Test {
 protected:
  NodeId Node(std::string_view key) const { return tree.Find(key); }

  test::RecordingPlatform platform;
  widgets::TreeView tree{"tvMotherList"};
};

TEST_F(BackupTreeTest, EachLevelCountsWhatIsBelowIt) {
  const std::vector<test::SaveRow> all{{9, 7, "Tills", {2026, 1, 2, 3, 0, 0}},
                                       {8, 7, "Tills", {2026, 1, 1, 3, 0, 0}, 0},
                                       {7, 7, "Tills", {2025, 12, 31, 3, 0, 0}},
                                       {6, 8, "Tills", {2026, 1, 2, 3, 0, 0}, 1}};
  const auto append = [&](std::string_view key, std::int32_t count) {
    const auto rows = test::SavesOf({all.begin(), all.begin() + count});
    AppendBackupPeriods(rows, count, BackupsShown::kAll, platform, Node(key), tree);
  };
  AppendBackupRoots(test::SavesOf({{5, 0, "Base", {2026, 1, 1}}}), 1, BackupPlace::kServer, BackupsShown::kAll, tree);
  AppendBackupRoots(test::SavesOf(all), 4, BackupPlace::kStations, BackupsShown::kAll, tree);
  append("LBCKST|1|7", 3);
  append("LBCKST|1|7|2026", 2);
  append("LBCKST|1|7|2026|2026/01", 2);
  EXPECT_EQ(test::TreeText(tree),
            "Server (1) [LBCKSR|0|0] BackupServer +\n"
            "Lyon 7 (3, 1 NOT OK) [LBCKST|1|7] BackupStation +\n"
            "  2026 (2, 1 NOT OK) [LBCKST|1|7|2026] BackupStation +\n"
            "    2026/01 (2, 1 NOT OK) [LBCKST|1|7|2026|2026/01] BackupStation +\n"
            "      2026-01-02 (1) [LBCKST|1|7|2026|2026/01|2026/01/02] BackupStation +\n"
            "      2026-01-01 (1, 1 NOT OK) [LBCKST|1|7|2026|2026/01|2026/01/01] BackupStation +\n"
            "  2025 (1) [LBCKST|1|7|2025] BackupStation +\n"
            "Lyon 8 (1, 1 NOT OK) [LBCKST|1|8] BackupStation +\n")
      << "whatever is not recorded as done has failed";
  EXPECT_TRUE(tree.IsBold(Node("LBCKST|1|7|2026")));
  EXPECT_FALSE(tree.IsBold(Node("LBCKST|1|7|2025")));
}

TEST_F(BackupTreeTest, ADayHasItsNamesAndTheirBackupsAtOnce) {
  const std::string day = "LBCKSR|0|0|2026|2026/01|2026/01/01";
  const NodeId node = tree.Add(NodeId::kNone, day, "", "");
  const auto rows = test::SavesOf({{9, 0, "mail", {2026, 1, 1, 23, 0, 0}, 0},
                                   {8, 0, "Base | Nord", {2026, 1, 1, 22, 0, 0}},
                                   {7, 0, "mail", {2026, 1, 1, 11, 0, 0}}});
  AppendBackupsOfDay(rows, 3, BackupsShown::kAll, node, tree);
  EXPECT_EQ(test::TreeText(tree, node), "Base | Nord (1) [" + day + "|Base \x1F Nord] BackupServer\n" +
                                            "  22:00:00 (8 KB) [" + day +
                                            "|Base \x1F Nord|8|22:00:00|1] BackupServer +\n" + "mail (2, 1 NOT OK) [" +
                                            day + "|mail] BackupServer\n" + "  23:00:00 (9 KB) : NOT OK [" + day +
                                            "|mail|9|23:00:00|0] BackupServer +\n" + "  11:00:00 (7 KB) [" + day +
                                            "|mail|7|11:00:00|1] BackupServer +\n");
  const std::string backup = day + "|mail|9|23:00:00|0";
  EXPECT_EQ(SaveOfKey(backup), 9);
  EXPECT_EQ(FolderOfKey(backup), std::nullopt);
  EXPECT_EQ(PlaceOfKey(backup).size(), 6U) << "a host's key leads through every level";
}

TEST_F(BackupTreeTest, OutcomesThatAreNotAskedForLeaveNoNodes) {
  const auto rows = test::SavesOf({{9, 7, "a", {2026, 1, 2}}, {8, 8, "a", {2026, 1, 2}, 0}, {7, 8, "b", {2026, 1, 1}}});
  AppendBackupRoots(rows, 3, BackupPlace::kStations, BackupsShown::kFailed, tree);
  EXPECT_EQ(test::TreeText(tree), "Lyon 8 (1, 1 NOT OK) [LBCKST|1|8] BackupStation +\n");
  tree.Clear();
  AppendBackupRoots(rows, 3, BackupPlace::kStations, BackupsShown::kOk, tree);
  EXPECT_EQ(tree.ChildCount(NodeId::kNone), 2U);
  const NodeId day = tree.Add(NodeId::kNone, "LBCKST|1|8|2026|2026/01|2026/01/01", "", "");
  AppendBackupsOfDay(rows, 3, BackupsShown::kFailed, day, tree);
  EXPECT_EQ(tree.ChildCount(day), 1U);
  EXPECT_EQ(tree.Text(tree.Child(day, 0)), "a (1, 1 NOT OK)");
}

TEST_F(BackupTreeTest, FoldersGatherFilesThatLieApart) {
  const std::string backup = "LBCKST|1|7|2026|2026/01|2026/01/01|mail|9|23:00:00|0";
  const NodeId node = tree.Add(NodeId::kNone, backup, "", "");
  const auto rows = test::SavesOf({{9, 7, "a", {2026, 1, 1}, -1, "C:\\b|c"},
                                   {9, 7, "b", {2026, 1, 1}, 0, "C:\\a"},
                                   {9, 7, "c", {2026, 1, 1}, -1, "C:\\b|c"},
                                   {9, 7, "d", {2026, 1, 1}}});
  AppendBackupFolders(rows, 4, node, tree);
  EXPECT_EQ(test::TreeText(tree, node), "C:\\a (1, 1 NOT OK) [" + backup + "|C:\\a] FileManagementStation\n" +
                                            "C:\\b|c (2) [" + backup + "|C:\\b\x1F" + "c] FileManagementStation\n");
  EXPECT_EQ(FolderOfKey(tree.Key(tree.Child(node, 1))), "C:\\b|c");
}

TEST(BackupKey, AsksForItsOwnPeriodWithinTheFilter) {
  const auto asked = [](std::string_view key) {
    const util::Period filter{DateFromCivil({2025, 12, 30, 6, 0, 0}), DateFromCivil({2026, 2, 1})};
    const BackupsOfNode read = ReadBackupKey(key, filter);
    return std::to_string(read.onStation) + " " + std::to_string(read.user) + " " +
           FormatFixedDateTime(read.period.from) + " " + FormatFixedDateTime(read.period.to);
  };
  EXPECT_EQ(asked("LBCKST|1|7"), "1 7 2025-12-30 06:00:00 2026-02-01 00:00:00");
  EXPECT_EQ(asked("LBCKSR|0|0|2025"), "0 0 2025-12-30 06:00:00 2026-01-01 00:00:00");
  EXPECT_EQ(asked("LBCKST|1|7|2026|2026/01"), "1 7 2026-01-01 00:00:00 2026-02-01 00:00:00");
  EXPECT_EQ(asked("LBCKST|1|7|2025|2025/12|2025/12/30"), "1 7 2025-12-30 06:00:00 2025-12-31 00:00:00");
  EXPECT_THROW(asked("LBCKST|1|x"), Error);
  EXPECT_EQ(CaptionOfSubNodes("LBCKST|1|7|2025|2025/12|2025/12/30|mail"), "Executions");
  EXPECT_EQ(CaptionOfSubNodes("List"), "");
}

}  // namespace
}  // namespace quorvel::tree
