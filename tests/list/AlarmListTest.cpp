// The list of alarms from given columns.
#include "list/AlarmList.h"
#include "list/RowFacts.h"

#include <gtest/gtest.h>

#include "support/AlarmRows.h"
#include "support/RecordingPlatform.h"
#include "support/RowText.h"

namespace quorvel::list {
namespace {

using test::AlarmDate;
using test::RowText;

class AlarmListTest : public testing::Test {
 protected:
  Rows ListOf(std::string_view nodeKey, AlarmLayout layout, const AlarmChoice& choice) const {
    return AlarmListRows(records, 4, nodeKey, platform, layout, choice);
  }

  const datasource::AlarmsLogRecords records = test::AlarmRecords({
      {.id = 1, .owner = 7, .date = AlarmDate(20, 8), .severity = 3, .run = 345},
      {.id = 2, .owner = 7, .date = AlarmDate(20, 7), .action = 3, .origin = "Server", .acknowledged = -1},
      {.id = 3, .owner = 8, .date = 0, .action = 1, .origin = "server"},
      {.id = 4, .owner = 8, .date = AlarmDate(19, 5), .severity = -2, .acknowledged = 1},
  });
  test::RecordingPlatform platform;
};

TEST_F(AlarmListTest, OfADayTellsWhoAcknowledgedAndWhichRunRaisedIt) {
  const AlarmLayout layout{.process = true};
  const Headers headers = AlarmListHeaders(layout);
  EXPECT_EQ(test::CaptionsText(headers),
            "Process alarm, Raised, Severity, Source, Process, Batch, State, Acknowledged by, Acknowledged");
  const Rows rows = ListOf("LOGALRM|7|2026/11/20", layout, {});
  ASSERT_EQ(rows->Count(), 4U);
  EXPECT_EQ(RowText(rows, 0, headers),
            "!AlarmFromStation 1|LOGALRM|7|2026/11/20|12|1|345: "
            "Alarm 1, 2026-11-20 08:00:00, 3, Station, Prices, 345, Active, , ");
  EXPECT_EQ(RowText(rows, 1, headers),
            "AlarmActionFileFromServer 2|LOGALRM|7|2026/11/20: "
            "Alarm 2, 2026-11-20 07:00:00, 1, Server, , , Acknowledged, ann, 2026-11-21 00:00:00");
}

TEST_F(AlarmListTest, OfSeveralOwnersShowsThoseThatWereChosen) {
  const AlarmLayout layout{.owner = true};
  const Headers headers = AlarmListHeaders(layout);
  EXPECT_EQ(test::CaptionsText(headers),
            "Owner, Alarm, Raised, Severity, Source, State, Acknowledged by, Acknowledged");
  const Rows active = ListOf("LOGAALL|-1", layout, {.shown = AlarmsShown::kActive});
  ASSERT_EQ(active->Count(), 2U);
  EXPECT_EQ(RowText(active, 1, headers),
            "!AlarmActionMailFromStation 3|LOGAALL|-1: Owner 8, Alarm 3, , 1, server, Active, , ");
  EXPECT_EQ(active->NumberOf(0, 3), 3) << "sorts by the row that is shown";
  const Rows ofOwner = ListOf("LOGAUSR|8", {}, {.owner = 8});
  ASSERT_EQ(ofOwner->Count(), 2U);
  EXPECT_EQ(RowText(ofOwner, 1, AlarmListHeaders({})),
            "AlarmFromStationIsAcquitted 4|LOGAUSR|8: "
            "Alarm 4, 2026-11-19 05:00:00, -2, Station, Acknowledged, ann, 2026-11-21 00:00:00");
  EXPECT_EQ(ListOf("LOGAUSR|9", {}, {.owner = 9}), nullptr);
}

TEST_F(AlarmListTest, ARowsKeyLeadsToItsRun) {
  EXPECT_EQ(RunKeyIn("1|LOGALRM|7|2026/11/20|12|1|345"), "LPROC|12|1|345");
  EXPECT_EQ(RunKeyIn("1|LOGALRM|7|2026/11/20"), "");
  EXPECT_EQ(RunKeyIn("1|LOGAALL|-1|12|0|345"), "LPROC|12|0|345");
  EXPECT_EQ(RunKeyIn("1|LOGA1USR|7"), "");
  EXPECT_EQ(RunKeyIn("54|LPROC|1|0|376|2"), "LPROC|1|0|376") << "and so does that of a station";
  EXPECT_EQ(RunKeyIn("LUSR|7|12|1|345|9"), "LPROC|12|1|345");
  EXPECT_EQ(RunKeyIn("LPROC|12|1"), "");
  EXPECT_EQ(RunKeyIn("LCOMM|2026/11|2026/11/20|5"), "");
}

}  // namespace
}  // namespace quorvel::list
