// The tree of user imports from given rows.
#include "tree/ImportTree.h"

#include <gtest/gtest.h>

#include "support/FakeSources.h"
#include "support/RecordingPlatform.h"
#include "support/TreeText.h"

namespace quorvel::tree {
namespace {

using test::MakeColumn;
using test::MakeTexts;
using widgets::NodeId;

TEST(ImportTree, NamesAndTheirProcessesComeUpOnce) {
  datasource::UsersImportRecords rows;
  rows.strName = MakeTexts({"Staff", "Staff", "Staff", "Staff", "A|B", "Staff", "A|B"});
  rows.lngProcessId = MakeColumn<std::int32_t>({0, 12, 12, 30, 12, 12, -1});
  rows.strProcessName = MakeTexts({"", "Prices", "Prices", "Inventory", "Prices", "Prices", "Gone"});
  widgets::TreeView tree("tvMotherList");
  AppendImportNodes(rows, 7, 0, tree);
  EXPECT_EQ(test::TreeText(tree), "") << "no import was given";
  AppendImportNodes(rows, 7, 5, tree);
  EXPECT_EQ(test::TreeText(tree),
            "Staff [LIMP|5|Staff] UserImport\n"
            "  Manual [LIMP|5|Staff|0] ImportManualServer +\n"
            "  Processes: Prices [LIMP|5|Staff|12] Process +\n"
            "  Processes: Inventory [LIMP|5|Staff|30] Process +\n"
            "A|B [LIMP|5|A\x1F"
            "B] UserImport\n"
            "  Processes: Prices [LIMP|5|A\x1F"
            "B|12] Process +\n"
            "  Processes: Gone [LIMP|5|A\x1F"
            "B|-1] Process +\n");
}

TEST(ImportTree, ARunIsOneNodeAndItsKeyNamesWhatToAskFor) {
  datasource::UsersImportRecords rows;
  const DateValue date = DateFromCivil({2026, 11, 20, 1, 0, 0});
  rows.lngImportLogId = MakeColumn<std::int32_t>({81, 81, 80, 81});
  rows.lngBatchNumber = MakeColumn<std::int32_t>({4, 4, 3, 4});
  rows.dtDate = MakeColumn<double>({date, date + 0.5, 0, date});
  rows.strUserName = rows.strReport = MakeTexts({"ann", "ben", "ann", "cid"});
  rows.bResultOk = MakeColumn<std::int16_t>({-1, 0, -1, -1});
  widgets::TreeView tree("tvMotherList");
  test::RecordingPlatform platform;
  const NodeId process = tree.Add(NodeId::kNone,
                                  "LIMP|5|A\x1F"
                                  "B|12",
                                  "", "");
  AppendImportRuns(rows, 4, platform, process, tree);
  EXPECT_EQ(test::TreeText(tree, process),
            "2026-11-20 01:00:00 (Batch No.4) [LIMP|5|A\x1F"
            "B|12|81] ProcessOk\n"
            " (Batch No.3) [LIMP|5|A\x1F"
            "B|12|80] ProcessOk\n"
            "2026-11-20 01:00:00 (Batch No.4) [LIMP|5|A\x1F"
            "B|12|81] ProcessOk\n");
  const ImportPart run = ReadImportKey(tree.Key(tree.Child(process, 1)));
  EXPECT_EQ(run.import, 5);
  EXPECT_EQ(run.name, "A|B");
  EXPECT_EQ(run.process, 12);
  EXPECT_EQ(run.run, 80);
  EXPECT_EQ(ReadImportKey(tree.Key(process)).run, -1);
}

}  // namespace
}  // namespace quorvel::tree
