// The lists of the views of connections and of backups, from given columns.
#include "list/ConnectionList.h"

#include <gtest/gtest.h>

#include "list/BackupFileList.h"
#include "list/ChildList.h"
#include "list/CommandList.h"
#include "support/ConnectionRows.h"
#include "support/RecordingPlatform.h"
#include "support/RowText.h"
#include "support/SaveRows.h"

namespace quorvel::list {
namespace {

using test::MakeColumn;
using test::MakeTexts;
using test::RowText;

class ViewListsTest : public testing::Test {
 protected:
  test::RecordingPlatform platform;
};

TEST_F(ViewListsTest, RowsOfConnectionsCarryTheKeysOfTheirNodes) {
  const auto rows = test::ConnectionsOf({{3, {2026, 3, 2, 11, 59, 0}, "Lyon 08", -1, 1, 0, -1},
                                         {2, {2026, 3, 1, 4, 0, 0}, "Paris", 0, 0, 0, -1},
                                         {1, {2026, 3, 1, 3, 0, 0}, "", 0, 0, -1, -1}});
  const Headers headers = ConnectionListHeaders();
  const DateValue now = DateFromCivil({2026, 3, 2, 12, 0, 0});
  const Rows ofMonth = ConnectionListRows(rows.records, rows.count, "LCOMM|2026/03", platform, now);
  EXPECT_EQ(test::CaptionsText(headers), "Start, Station, Direction, End, Duration, Size (KB), Status, Report");
  EXPECT_EQ(RowText(ofMonth, 0, headers),
            "User_Inprogress LCOMM|2026/03|2026/03/02|3: 2026-03-02 11:59:00, Lyon 08, From station, ,     0:01:00, "
            "3, In progress, Lyon 08");
  EXPECT_EQ(RowText(ofMonth, 1, headers),
            "!User_NoOk LCOMM|2026/03|2026/03/01|2: 2026-03-01 04:00:00, Paris, To station, 2026-03-01 04:01:01, "
            "    0:01:01, 2, Not Ok, Paris");
  EXPECT_EQ(ofMonth->Icon(2), "User_Ok");
  const Rows ofDay = ConnectionListRows(rows.records, rows.count, "LCOMM|2026/03|2026/03/01", platform, now);
  std::string key;
  ofDay->AppendKey(1, key);
  EXPECT_EQ(key, "LCOMM|2026/03|2026/03/01|2");
}

TEST_F(ViewListsTest, AConnectionsCommandsAreAllJudgedByTheirResult) {
  datasource::CommandLogRecords rows;
  rows.lngCommunicationId = rows.lngCommandLogId = MakeColumn<std::int32_t>({1, 2, 3, 4});
  rows.lngKind = MakeColumn<std::int32_t>({7, 7, 90, 7});
  rows.lngResult = MakeColumn<std::int32_t>({3, 0, 94, 5});
  rows.strText = rows.strReport = MakeTexts({"a", "b", "c", "d"});
  rows.bInProgress = MakeColumn<std::int16_t>({0, 0, 0, -1});
  rows.bResultOk = MakeColumn<std::int16_t>({-1, 0, 0, 0});
  rows.bResultNotOk = MakeColumn<std::int16_t>({0, -1, -1, 0});
  rows.dtCommunicationDate = rows.dtStartDate = rows.dtEndDate = MakeColumn<double>({0, 0, 0, 0});
  const Headers headers = ConnectionCommandListHeaders();
  const Rows list = ConnectionCommandListRows(rows, 4, "N", platform);
  EXPECT_NE(headers.front().caption, CommandListHeaders().front().caption);
  EXPECT_EQ(RowText(list, 0, headers), "!CommandNONOK 1|N: a, 7, 3, a, , , Not Ok");
  EXPECT_EQ(RowText(list, 1, headers), "CommandOk 2|N: b, 7, 0, b, , , Ok");
  EXPECT_EQ(RowText(list, 2, headers), "CommandOk 3|N: c, 90, 94, c, , , Ok");
  EXPECT_EQ(RowText(list, 3, headers), "CommandStart 4|N: d, 7, 5, d, , , In progress");
}

TEST_F(ViewListsTest, AFileKeepsItsNumberInTheListOfItsFolder) {
  const auto rows = test::SavesOf({{9, 0, "a.dat", {2026, 1, 1}, -1, "/b"},
                                   {9, 0, "b.dat", {2026, 1, 1, 1, 0, 0}, 1, "/a"},
                                   {9, 0, "c.dat", {2026, 1, 1}, -1, ""}});
  const Headers headers = BackupFileListHeaders();
  const Rows all = BackupFileListRows(rows, 3, std::nullopt, "LBCKSR|0|0", platform);
  ASSERT_EQ(all->Count(), 3U);
  EXPECT_EQ(RowText(all, 2, headers), "FileManagementServer 3|LBCKSR|0|0: c.dat, 9, 2026-01-01 00:00:00, , Ok");
  const Rows folder = BackupFileListRows(rows, 3, "/a", "LBCKST|1|7", platform);
  ASSERT_EQ(folder->Count(), 1U);
  EXPECT_EQ(RowText(folder, 0, headers),
            "!FileManagementStation 2|LBCKST|1|7: b.dat, 9, 2026-01-01 01:00:00, /a, Not Ok");
  EXPECT_EQ(BackupFileListRows(rows, 0, std::nullopt, "N", platform), nullptr);
}

TEST_F(ViewListsTest, SubNodesStandAsInTheTree) {
  widgets::TreeView tree("tvMotherList");
  const widgets::NodeId parent = tree.Add(widgets::NodeId::kNone, "LBCKST|1|7", "Lyon", "BackupStation");
  const widgets::NodeId failed = tree.Add(parent, "LBCKST|1|7|2026", "2026 (1, 1 NOT OK)", "BackupStation");
  tree.SetLook(failed, widgets::SystemColour::kGrayText, true);
  const Headers headers = SubNodeHeaders("Years", 5001);
  EXPECT_EQ(headers.front().width, 2460);
  const Rows rows = ChildRows(tree, parent);
  tree.Clear();
  EXPECT_EQ(RowText(rows, 0, headers), "!BackupStation LBCKST|1|7|2026: 2026 (1, 1 NOT OK)");
  EXPECT_EQ(rows->Look(0).colour, widgets::SystemColour::kGrayText);
}

}  // namespace
}  // namespace quorvel::list
