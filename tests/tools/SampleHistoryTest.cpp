#include "tools/SampleHistory.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

#include "Answer.h"
#include "hub/RecordHub.h"
#include "platform/Error.h"
#include "support/TemporaryFolder.h"

namespace quorvel::tools {
namespace {

using test::Answer;

std::string Bytes(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

class SampleHistory : public testing::Test {
 protected:
  std::filesystem::path Write(const SampleOptions& options, const char* name = "sample.db") {
    std::filesystem::path file = folder_.path() / name;
    counts_ = WriteSampleHistory(options, file, Existing::kReplace);
    return file;
  }
  const std::filesystem::path& folder() const { return folder_.path(); }
  const RowCounts& counts() const { return counts_; }

 private:
  test::TemporaryFolder folder_;
  RowCounts counts_;
};

constexpr const char* kStationRows =
    "SELECT process_run_id || '|' || station_id || '|' || station_name || '|' || report || '|' || "
    "CAST(round(start_date * 86400) AS INTEGER) || '|' || CAST(round(end_date * 86400) AS INTEGER) || '|' || state || "
    "'|' || wait_state FROM station_run ORDER BY station_run_id";

TEST_F(SampleHistory, IsTheSameForTheSameOptionsAlone) {
  const std::string first = Bytes(Write({}, "first.db"));
  EXPECT_EQ(first, Bytes(Write({}, "second.db")));
  EXPECT_NE(first, Bytes(Write({.seed = 2}, "third.db")));
  // More detail leaves what happened to the stations as it was.
  EXPECT_EQ(Answer(folder() / "first.db", kStationRows), Answer(Write({.detailRuns = 200}, "fourth.db"), kStationRows));
}

// Compilers and libraries may differ in all that is not fixed by the language. The number follows the sample: it
// changes when the sample is changed on purpose, and then only.
TEST_F(SampleHistory, IsTheSameWithEveryCompiler) {
  std::uint64_t hash = 14695981039346656037U;
  for (const char c : Answer(Write({}), kStationRows)) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
  EXPECT_EQ(hash, 6859762773954727260U);
}

struct RareCase {
  const char* what;
  const char* query;  // its number of rows, at least 1
};
constexpr RareCase kRareCases[] = {
    {"every outcome", "SELECT count(DISTINCT state) = 5 FROM station_run"},
    {"every wait state, none, and one that nobody knows",
     "SELECT count(DISTINCT wait_state) = 9 FROM station_run WHERE in_progress = -1"},
    {"every task type, an unknown one, one in another case, none",
     "SELECT count(DISTINCT task_type) = 30 FROM task_run"},
    {"a type in another case", "SELECT count(*) FROM task_run WHERE task_type = 'teledistribution'"},
    {"every step kind and two unknown",
     "SELECT count(DISTINCT step_kind) = 7 AND min(step_kind) = -1 AND max(step_kind) = 5 FROM step_log"},
    {"both flags", "SELECT count(*) FROM station_run WHERE ok = -1 AND not_ok = -1"},
    {"both flags of a step", "SELECT count(*) FROM step_log WHERE ok = -1 AND not_ok = -1"},
    {"flags of value 1",
     "SELECT count(*) FROM station_run WHERE ok = 1 UNION SELECT count(*) FROM task_run WHERE ok = 1"},
    {"NOT OK of value 1", "SELECT count(*) FROM station_run WHERE not_ok = 1"},
    {"in progress of value 1", "SELECT count(*) FROM station_run WHERE in_progress = 1"},
    {"results 91 to 94 with kinds 88 to 90",
     "SELECT count(DISTINCT kind * 100 + result) = 12 FROM command_log WHERE kind IN (88, 89, 90) AND result BETWEEN "
     "91 "
     "AND 94"},
    {"a failed command with its reason", "SELECT count(*) FROM command_log WHERE not_ok = -1 AND report <> ''"},
    {"station 0", "SELECT count(*) FROM station_run WHERE station_id = 0"},
    {"a run without stations",
     "SELECT count(*) FROM process_run WHERE process_run_id NOT IN (SELECT process_run_id FROM station_run)"},
    {"a run without dates", "SELECT count(*) FROM process_run WHERE start_date = 0 AND end_date = 0"},
    {"a run that has not ended", "SELECT count(*) FROM process_run WHERE start_date > 0 AND end_date = 0"},
    {"a run on a station, flag -1", "SELECT count(*) FROM process_run WHERE on_station = -1"},
    {"a run on a station, flag 1", "SELECT count(*) FROM process_run WHERE on_station = 1"},
    {"processes for server, station, both", "SELECT count(DISTINCT on_server * 10 + on_station) = 3 FROM process"},
    {"tasks once for all and for each station", "SELECT count(DISTINCT station_scope = 0) = 2 FROM task_run"},
    {"each task type executed and not executed", "SELECT count(DISTINCT task_type || not_executed) = 60 FROM task_run"},
    {"tasks that wait, once for all and for each station",
     "SELECT count(DISTINCT station_scope = 0) = 2 FROM task_run WHERE not_executed = -1 AND waiting = -1"},
    {"a task that failed once for all, and kept every station from the run",
     "SELECT count(*) FROM task_run t WHERE station_scope = 0 AND not_ok = -1 AND report <> '' AND NOT EXISTS (SELECT "
     "1 FROM station_run s WHERE s.process_run_id = t.process_run_id AND (state <> 4 OR s.report <> 'Not begun: ' || "
     "t.report))"},
    {"each step kind once for all and for each station, in progress too",
     "SELECT count(DISTINCT step_kind * 2 + (station_scope = 0)) = 14 AND max(in_progress = -1) FROM step_log"},
    {"each place of execution, an unknown one, none", "SELECT count(DISTINCT execute_where) = 5 FROM step_log"},
    {"commands in progress", "SELECT count(*) FROM command_log WHERE in_progress = -1"},
    {"a key separator in each kind of name",
     "SELECT min(n) FROM (SELECT count(*) n FROM process WHERE name LIKE '%|%' UNION ALL SELECT count(*) FROM station "
     "WHERE name LIKE '%|%' UNION ALL SELECT count(*) FROM task_run WHERE task_name LIKE '%|%' UNION ALL SELECT "
     "count(*) FROM step_log WHERE step_name LIKE '%|%')"},
    {"quotes", "SELECT count(*) FROM station WHERE name LIKE '%\"%''%'"},
    {"tabs and line breaks",
     "SELECT sum(instr(name, char(9)) > 0) > 0 AND sum(instr(name, char(13, 10)) > 0) > 0 FROM station"},
    {"accents and CJK", "SELECT count(*) FROM process WHERE name LIKE '%é%' AND name LIKE '%値%'"},
    {"empty texts", "SELECT count(*) FROM station WHERE name = '' AND identifier = '' AND station_id > 0"},
    {"a long report", "SELECT count(*) FROM station_run WHERE length(report) BETWEEN 20000 AND 20100"},
    {"bytes that are not UTF-8", "SELECT count(*) FROM station_run WHERE instr(CAST(report AS BLOB), x'EA74E9') > 0"},
    {"a station that was renamed",
     "SELECT count(DISTINCT station_name) = 2 FROM station_run WHERE station_name LIKE (SELECT replace(station_name, ' "
     "(annex)', '') FROM station_run WHERE station_name LIKE '% (annex)') || '%' "},
    {"the server's role", "SELECT count(*) FROM label WHERE name = 'UseType' AND value = 'SERVEUR'"},
    {"the display periods", "SELECT count(*) = 4 FROM label WHERE name LIKE '%LOGS_DISPLAY%'"},
};

TEST_F(SampleHistory, HoldsEveryRareCaseFromAModestSizeOn) {
  for (const SampleOptions& options : {SampleOptions{.stations = kStationsForRareCases, .runs = kRunsForRareCases},
                                       SampleOptions{.stations = 150, .runs = 150, .detailRuns = 0, .seed = 7}}) {
    const std::filesystem::path file = Write(options);
    for (const RareCase& rare : kRareCases) {
      EXPECT_GT(Answer(file, rare.query), "1") << rare.what << ", " << options.stations << " stations";
    }
  }
}

TEST_F(SampleHistory, IsSoundAtEverySize) {
  struct Size {
    std::int32_t stations, runs, stationRows;
  };
  for (const Size size : {Size{0, 0, 0}, Size{1, 0, 0}, Size{0, 3, 3}, Size{1, 1, 1}, Size{60, 200, -1}}) {
    const std::filesystem::path file = Write({.stations = size.stations, .runs = size.runs});
    EXPECT_EQ(Answer(file, "SELECT count(*) FROM process_run"), std::to_string(size.runs) + "\n");
    if (size.stationRows >= 0) {
      EXPECT_EQ(counts().stationRuns, size.stationRows);
    }
    EXPECT_EQ(Answer(file, "PRAGMA integrity_check"), "ok\n");
    EXPECT_EQ(Answer(file, "PRAGMA foreign_key_check"), "");
    EXPECT_EQ(Answer(file,
                     "SELECT count(*) FROM station_run s JOIN process_run r USING (process_run_id) WHERE "
                     "(s.process_id, s.run_start_date, s.on_station) <> (r.process_id, r.start_date, r.on_station)"),
              "0\n");
    hub::RecordHub hub;
    EXPECT_GT(hub.OpenConnection("sqlite:" + file.string()), 0);
  }
  hub::CreateHistory(folder() / "empty.db");
  constexpr const char* kSchema = "SELECT sql FROM sqlite_schema WHERE sql IS NOT NULL ORDER BY sql";
  EXPECT_EQ(Answer(folder() / "sample.db", kSchema), Answer(folder() / "empty.db", kSchema));
}

TEST_F(SampleHistory, KeepsToItsPeriodAndIsBusyAtNight) {
  const std::filesystem::path file = Write({.runs = 500, .days = 10});
  EXPECT_EQ(Answer(file, "SELECT count(*) FROM process_run WHERE start_date NOT BETWEEN 46336.5 AND 46346.5"), "1\n")
      << "the run without a date";
  EXPECT_GT(std::stoi(Answer(file,
                             "SELECT sum(start_date % 1 NOT BETWEEN 5/24.0 AND 22/24.0) FROM (SELECT start_date - "
                             "CAST(start_date AS INTEGER) AS start_date FROM process_run)")),
            300);
  EXPECT_EQ(Answer(file,
                   "SELECT count(*) FROM station_run WHERE end_date > 46346.5 OR end_date < start_date AND "
                   "end_date > 0"),
            "0\n");
}

TEST_F(SampleHistory, FitsItsRowsAndItsDetail) {
  const std::filesystem::path file = Write({.stations = 300, .runs = 400, .detailRuns = 0, .stationRows = 20000});
  EXPECT_EQ(counts().stationRuns, 20000);
  EXPECT_EQ(Answer(file,
                   "SELECT count(*) FROM station_run s WHERE state = 2 AND NOT EXISTS (SELECT 1 FROM task_run t "
                   "JOIN step_log l USING (task_run_id) JOIN command_log c USING (step_log_id) WHERE "
                   "t.process_run_id = s.process_run_id AND t.station_id IN (s.station_id, 0) AND c.not_ok = -1)"),
            "0\n")
      << "each failed station leads to the command that failed";
}

TEST_F(SampleHistory, LeavesAnExistingFileAloneUnlessToldTo) {
  const std::filesystem::path file = folder() / "sample.db";
  std::ofstream(file) << "precious";
  std::ofstream(folder() / "sample.db-journal") << "left by a program that broke down";
  try {
    WriteSampleHistory({}, file, Existing::kKeep);
    FAIL();
  } catch (const Error& error) {
    EXPECT_EQ(error.number(), static_cast<std::int32_t>(SystemError::kFileExists));
  }
  EXPECT_THROW(WriteSampleHistory({.days = 0}, file, Existing::kReplace), Error);
  EXPECT_EQ(Bytes(file), "precious");
  Write({.stations = 2, .runs = 2});
  EXPECT_EQ(Answer(file, "SELECT count(*) FROM process_run"), "2\n");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder()), {}), 1) << "no other file stays";
}

}  // namespace
}  // namespace quorvel::tools
