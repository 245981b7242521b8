// The lists of the system log and of imported users from given columns.
#include "list/SystemList.h"

#include <gtest/gtest.h>

#include <fstream>

#include "list/ImportList.h"
#include "support/FakeSources.h"
#include "support/RecordingPlatform.h"
#include "support/RowText.h"

namespace quorvel::list {
namespace {

using test::MakeColumn;
using test::MakeTexts;
using test::RowText;

// Counts how often the disk is asked.
class CountingPlatform : public test::RecordingPlatform {
 public:
  bool FileExists(const std::filesystem::path& file) const override {
    ++lookUps;
    return RecordingPlatform::FileExists(file);
  }
  mutable int lookUps = 0;
};

TEST(SystemList, AttachmentsAreLookedUpWhenTheyAreShownAndOnce) {
  CountingPlatform platform;
  const std::filesystem::path file = platform.folder / u8"\u00E9tat.log";
  std::ofstream(file) << "x";
  const std::u8string name = file.u8string();
  const std::string there(name.begin(), name.end());
  datasource::TaskSchedulerLogRecords records;
  records.lngLevel = MakeColumn<std::int32_t>({1, 2, 3, 0});
  records.lngLogId = MakeColumn<std::int32_t>({40, 39, 38, 37});
  records.strDate = MakeTexts({"2026-11-20 02:00:00", "2026-11-20", "2026-11-19 23:00:00", ""});
  records.strMachine = records.strLabel = records.strCompany = records.strUserName = MakeTexts({"a", "b", "c", "d"});
  records.strAttachment = MakeTexts({there, "/no/such.log", " ", "/no/such.log"});
  const Rows rows = SystemListRows(records, 4, platform);
  const Headers headers = SystemListHeaders();
  EXPECT_EQ(test::CaptionsText(headers), "Date, Machine, Label, Company, User, Attachment");
  EXPECT_EQ(platform.lookUps, 0);
  EXPECT_EQ(RowText(rows, 0, headers), "NoAlarm HSYS|40: 2026-11-20 02:00:00, a, a, a, a, " + there);
  EXPECT_EQ(RowText(rows, 1, headers), "Alarm HSYS|39: 2026-11-20, b, b, b, b, Nonexistent file");
  EXPECT_EQ(RowText(rows, 2, headers), "AlarmInfos HSYS|38: 2026-11-19 23:00:00, c, c, c, c,  ");
  EXPECT_EQ(RowText(rows, 3, headers), "AlarmInfos HSYS|37: , d, d, d, d, Nonexistent file");
  EXPECT_EQ(platform.lookUps, 2);

  widgets::ListView list("lvMotherList");
  list.SetHeaders(headers);
  list.SetRows(rows);
  util::ListViewSortColumn(platform, list, 1);
  list.SetSortKey(3);
  util::ListViewSortColumn(platform, list, 1);
  EXPECT_EQ(list.Key(0) + list.Key(1) + list.Key(2) + list.Key(3), "HSYS|40HSYS|39HSYS|38HSYS|37")
      << "the latest first, as dates sort, which text does not";
}

TEST(ImportList, FailedUsersStandOutAndKeysTellUsersOfARunApart) {
  datasource::UsersImportRecords records;
  const DateValue date = DateFromCivil({2026, 11, 20, 1, 0, 0});
  records.lngImportLogId = MakeColumn<std::int32_t>({81, 81});
  records.lngBatchNumber = MakeColumn<std::int32_t>({4, 4});
  records.dtDate = MakeColumn<double>({date, date});
  records.strUserName = MakeTexts({"ann", "b|n"});
  records.bResultOk = MakeColumn<std::int16_t>({-1, 1});
  records.strReport = MakeTexts({"", "Unknown group"});
  test::RecordingPlatform platform;
  const Rows rows = ImportListRows(records, 2, "LIMP|5|Staff|12", platform);
  const Headers headers = ImportListHeaders();
  EXPECT_EQ(RowText(rows, 0, headers), "User_Ok 81|LIMP|5|Staff|12|ann: ann, 4, 2026-11-20 01:00:00, Ok, ");
  EXPECT_EQ(RowText(rows, 1, headers),
            "!User_NoOk 81|LIMP|5|Staff|12|b\x1Fn: b|n, 4, 2026-11-20 01:00:00, Not Ok, Unknown group");
}

}  // namespace
}  // namespace quorvel::list
