// The lists from given columns: what a row says that no query over the same columns says in these words.
#include <gtest/gtest.h>

#include "list/CommandList.h"
#include "list/CurrentRunList.h"
#include "list/RunList.h"
#include "list/RunOutcome.h"
#include "list/TaskList.h"
#include "support/FakeSources.h"
#include "support/RecordingPlatform.h"
#include "support/RowText.h"

namespace quorvel::list {
namespace {

using test::MakeColumn;
using test::MakeTexts;

class ListsTest : public testing::Test {
 protected:
  static std::string Row(const Rows& rows, std::size_t row, const Headers& headers) {
    return test::RowText(rows, row, headers);
  }

  test::RecordingPlatform platform;
};

TEST(RunOutcome, TellsPartialFailureInWords) {
  EXPECT_EQ(RunStatus({.total = 150, .notOk = 1, .ok = 149}), "149 OK, 1 NOT OK");
  EXPECT_EQ(RunStatus({.total = 3, .notOk = 3}), "NOT OK");
  EXPECT_EQ(RunStatus({.total = 6, .notExecuted = 1, .inProgress = 2, .ok = 1, .unknown = 2}),
            "1 OK, 2 In progress, 1 Not executed, 2 Unknown");
  EXPECT_EQ(RunStatus({}), "Unknown");
}

TEST(RunOutcome, DurationsSortAsTextAndWaitForTheirEnd) {
  const DateValue start = DateFromCivil({2026, 11, 20, 1, 0, 0});
  const DateValue end = DateFromCivil({2026, 11, 20, 1, 3, 12});
  const DateValue now = DateFromCivil({2026, 11, 24, 12, 0, 0});
  EXPECT_EQ(DurationText(start, end, false, now), "    0:03:12");
  EXPECT_EQ(DurationText(start, 0, true, now), "  107:00:00");
  EXPECT_EQ(DurationText(start, 0, false, now), "") << "never ended, and runs no more";
  EXPECT_EQ(DurationText(0, end, true, now), "");
  EXPECT_EQ(DurationText(end, start, false, now), "") << "a clock was set back";
  EXPECT_EQ(DurationText(1e300, end, false, now), "");
  EXPECT_LT(DurationText(start, end, false, now), DurationText(start, 0, true, now));
}

TEST(TextPieces, StandInOrderWhateverTheirLength) {
  std::string text = "before";
  std::string expected = text;
  TextPieces pieces(text);
  for (int length = 0; length < 1'100; length += 37) {
    const std::string piece(static_cast<std::size_t>(length), static_cast<char>('a' + length % 26));
    pieces.append(piece);
    pieces.append(-2'147'483'647 - length % 2);
    pieces.push_back('|');
    expected += piece + std::to_string(-2'147'483'647 - length % 2) + "|";
  }
  pieces.Flush();
  EXPECT_EQ(text, expected);
}

TEST_F(ListsTest, JudgesTransfersByTheirResultAndOthersByTheirFlags) {
  datasource::CommandLogRecords rows;
  rows.lngCommandLogId = MakeColumn<std::int32_t>({1, 2, 3, 4, 5});
  rows.lngKind = MakeColumn<std::int32_t>({89, 88, 88, 7, 7});
  rows.lngResult = MakeColumn<std::int32_t>({92, 92, 0, 0, 3});
  rows.strText = rows.strReport = MakeTexts({"a", "b", "c", "d", "e"});
  rows.bInProgress = MakeColumn<std::int16_t>({0, 0, -1, 0, 0});
  rows.bResultOk = MakeColumn<std::int16_t>({0, -1, 0, 0, -1});
  rows.bResultNotOk = MakeColumn<std::int16_t>({-1, 0, 0, 0, -1});
  rows.lngCommunicationId = rows.lngCommandLogId;
  rows.dtCommunicationDate = rows.dtStartDate = rows.dtEndDate = MakeColumn<double>({0, 0, 0, 0, 0});
  const Rows list = CommandListRows(rows, 5, "N", platform);
  const Headers headers = CommandListHeaders();
  EXPECT_EQ(Row(list, 0, headers), "CommandOk 1|N: a, 89, 92, a, , , Ok") << "whatever its flags say";
  EXPECT_EQ(Row(list, 1, headers), "!CommandNONOK 2|N: b, 88, 92, b, , , Not Ok");
  EXPECT_EQ(Row(list, 2, headers), "CommandStart 3|N: c, 88, 0, c, , , In progress");
  EXPECT_EQ(Row(list, 3, headers), "Command 4|N: d, 7, 0, d, , , ");
  EXPECT_EQ(Row(list, 4, headers), "CommandOk 5|N: e, 7, 3, e, , , Ok");
}

TEST_F(ListsTest, ARunningRunShowsFirstWhatKeepsItRunning) {
  using test::StationRows;
  const auto group = [](StateGroup state, StationRows::Flags flags, std::vector<std::string> waits) {
    StationRows stations;
    for (std::size_t i = 0; i < waits.size(); ++i) stations.Station(1, 1, static_cast<std::int32_t>(i), flags);
    datasource::ProcessLogRecords records = stations.Records();
    records.strUserName = records.strIdentifier = records.strCompany = records.strReport = MakeTexts(waits);
    records.strWaitState = MakeTexts(waits);
    records.dtStartDate = records.dtEndDate = MakeColumn(std::vector<double>(waits.size()));
    return StationsOfGroup{state, {records, static_cast<std::int32_t>(waits.size())}};
  };
  const StationsOfGroup groups[] = {group(StateGroup::kInProgress, StationRows::kInProgress, {"To run", "Waiting com"}),
                                    {StateGroup::kUnknown, {}},
                                    group(StateGroup::kNotOk, StationRows::kNotOk, {"Waiting com"})};
  const Rows list = CurrentRunListRows(groups, "LPROC|1|0|1", platform);
  ASSERT_EQ(list->Count(), 3U);
  const Headers headers = CurrentRunListHeaders();
  EXPECT_EQ(Row(list, 0, headers), "User 0|LPROC|1|0|1: Without population, To run, To run, In progress, , To run, , ");
  EXPECT_EQ(
      Row(list, 1, headers),
      "User_WaitingCom 1|LPROC|1|0|1: Waiting com, Waiting com, Waiting com, In progress, Waiting for connection, "
      "Waiting com, , ");
  EXPECT_EQ(Row(list, 2, headers),
            "!User_NoOk 0|LPROC|1|0|1: Without population, Waiting com, Waiting com, NOT OK, , Waiting com, , ");
}

TEST_F(ListsTest, RowsOutliveTheirSourceAndLackNoColumn) {
  datasource::TaskRunRecords rows;
  rows.lngTaskRunId = rows.lngTaskId = rows.lngStationScope = MakeColumn<std::int32_t>({9});
  rows.strTaskName = rows.strTaskType = rows.strReport = MakeTexts({"Synchro"});
  rows.bNotExecuted = rows.bWaiting = MakeColumn<std::int16_t>({-1});
  rows.bInProgress = rows.bResultOk = rows.bResultNotOk = MakeColumn<std::int16_t>({0});
  rows.dtStartDate = rows.dtEndDate = MakeColumn<double>({46346.5});
  EXPECT_EQ(TaskListRows(rows, 0, "N", platform, true), nullptr);
  const Rows list = TaskListRows(rows, 1, "N", platform, false);
  rows = {};
  EXPECT_EQ(Row(list, 0, TaskListHeaders()),
            "TaskWaitingServer 9|N: Synchro, Standard transfer, Synchro, 2026-11-20 12:00:00, 2026-11-20 12:00:00, ");
  EXPECT_THROW(TaskListRows(rows, 1, "N", platform, false), Error);
}

}  // namespace
}  // namespace quorvel::list
