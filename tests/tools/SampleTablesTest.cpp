// What a sample holds beside its runs: connections, alarms, backups, imports and the scheduler's log.
#include <gtest/gtest.h>

#include <cstdint>
#include <filesystem>
#include <string>

#include "Answer.h"
#include "platform/Error.h"
#include "support/TemporaryFolder.h"
#include "tools/SampleHistory.h"

namespace quorvel::tools {
namespace {

using test::Answer;

class SampleTables : public testing::Test {
 protected:
  std::filesystem::path Write(const SampleOptions& options, const char* name = "sample.db") {
    std::filesystem::path file = folder() / name;
    counts_ = WriteSampleHistory(options, file, Existing::kReplace);
    return file;
  }
  const std::filesystem::path& folder() const { return folder_.path(); }
  const RowCounts& counts() const { return counts_; }

 private:
  test::TemporaryFolder folder_;
  RowCounts counts_;
};

struct Claim {
  const char* what;
  const char* query;
};

// Each query counts what contradicts. 46346.5 is the present.
constexpr Claim kContradictions[] = {
    {"a command whose connection is not kept, or began at another time",
     "SELECT count(*) FROM command_log c LEFT JOIN communication k USING (communication_id) WHERE communication_id <> "
     "0 "
     "AND k.start_date IS NOT c.communication_date"},
    {"a command outside its connection's time",
     "SELECT count(*) FROM command_log c JOIN communication k USING (communication_id) WHERE k.start_date > 0 AND "
     "(c.start_date < k.start_date OR k.end_date > 0 AND max(c.start_date, c.end_date) > k.end_date)"},
    {"a step carried by another station's connection",
     "SELECT count(*) FROM command_log c JOIN communication k USING (communication_id) JOIN step_log USING "
     "(step_log_id) JOIN task_run t USING (task_run_id) WHERE t.station_id <> k.station_id"},
    {"a connection without commands",
     "SELECT count(*) FROM communication WHERE communication_id NOT IN (SELECT "
     "communication_id FROM command_log)"},
    {"a connection that failed at a command that is fine, or for no reason",
     "SELECT count(*) FROM communication k WHERE state = 2 AND (report = '' OR NOT EXISTS (SELECT 1 FROM command_log c "
     "WHERE c.communication_id = k.communication_id AND c.not_ok = -1 AND c.result <> 0))"},
    {"a connection in progress that has ended, and the other way round",
     "SELECT count(*) FROM communication WHERE start_date > 0 AND in_progress <> 1 AND (in_progress = -1) <> (end_date "
     "= 0)"},
    {"a file transferred without a size",
     "SELECT count(*) FROM communication k JOIN command_log c USING (communication_id) WHERE k.ok = -1 AND size_kb = 0 "
     "AND kind IN (89, 90) AND c.ok = -1"},
    {"an alarm of a run that does not exist, or of a station that did not fail in it, or before it did",
     "SELECT count(*) FROM alarm a WHERE process_run_id <> 0 AND NOT EXISTS (SELECT 1 FROM station_run s JOIN process "
     "p "
     "USING (process_id) WHERE s.process_run_id = a.process_run_id AND s.station_id = a.owner_id AND s.state = 2 AND "
     "p.name = a.process_name AND (a.raised_date = 0 OR a.raised_date >= s.end_date))"},
    {"an alarm acknowledged by nobody, or before it was raised, and an active one acknowledged by somebody",
     "SELECT count(*) FROM alarm WHERE (acknowledged <> 0) <> (acknowledged_by <> '') OR (acknowledged <> 0) <> "
     "(acknowledged_date > raised_date OR acknowledged_date = 46346.5)"},
    {"a backup that is OK without one of its files",
     "SELECT count(*) FROM backup b WHERE ok = -1 AND EXISTS (SELECT 1 FROM backup_file f WHERE f.backup_id = "
     "b.backup_id AND f.ok <> -1)"},
    {"a backup of another size than its files",
     "SELECT count(*) FROM backup b WHERE size_kb <> (SELECT total(size_kb) FROM backup_file f WHERE f.backup_id = "
     "b.backup_id)"},
    {"a file saved before its backup began",
     "SELECT count(*) FROM backup b JOIN backup_file f USING (backup_id) WHERE f.saved_date < b.saved_date"},
    {"an import by a process that did not run then",
     "SELECT count(*) FROM import_run i LEFT JOIN process_run r ON r.process_run_id = batch_number WHERE i.process_id "
     "<> 0 AND (r.process_id IS NOT i.process_id OR i.start_date < r.start_date OR r.end_date > 0 AND i.start_date > "
     "r.end_date)"},
    {"imports by hand with the same number",
     "SELECT count(*) - count(DISTINCT batch_number) FROM import_run WHERE process_id = 0"},
    {"a user refused without a reason",
     "SELECT count(*) FROM imported_user WHERE ok = 0 AND report = '' AND imported_user_id NOT IN (SELECT "
     "min(imported_user_id) FROM imported_user GROUP BY import_run_id)"},
    {"a run that the log says failed, and that did not",
     "SELECT count(*) FROM scheduler_log WHERE label LIKE '%, batch %not OK' AND CAST(substr(label, instr(label, ', "
     "batch ') + 8) AS INTEGER) NOT IN (SELECT process_run_id FROM station_run WHERE state = 2)"},
    {"something outside the thirty days of the sample",
     "SELECT count(*) FROM (SELECT start_date AS at FROM communication UNION ALL SELECT end_date FROM communication "
     "UNION ALL SELECT raised_date FROM alarm UNION ALL SELECT acknowledged_date FROM alarm UNION ALL SELECT "
     "saved_date FROM backup UNION ALL SELECT saved_date FROM backup_file UNION ALL SELECT start_date FROM import_run "
     "UNION ALL SELECT logged_date FROM scheduler_log) WHERE at <> 0 AND at NOT BETWEEN 46316.5 AND 46346.5"},
};

// Each query counts what must be there.
constexpr Claim kPresent[] = {
    {"connections of every state but the odd ones", "SELECT count(DISTINCT state) = 4 FROM communication"},
    {"each file transfer kind, done and failed",
     "SELECT count(DISTINCT kind * 2 + (c.not_ok = -1)) >= 5 FROM command_log c WHERE step_log_id = 0 AND kind BETWEEN "
     "88 AND 90"},
    {"a failed transfer in a connection that is OK",
     "SELECT count(*) FROM communication k JOIN command_log c USING (communication_id) WHERE k.ok = -1 AND c.kind = 90 "
     "AND c.result = 2"},
    {"connections that carried steps, and others",
     "SELECT count(DISTINCT step_log_id = 0) = 2 FROM command_log WHERE communication_id <> 0"},
    {"calls from either side, flag 1 too", "SELECT count(DISTINCT from_station) = 3 FROM communication"},
    {"a connection with both flags", "SELECT count(*) FROM communication WHERE ok = -1 AND not_ok = -1"},
    {"each action, active and acknowledged or not, from either origin",
     "SELECT count(DISTINCT action * 2 + (origin = 'Server')) = 12 FROM alarm WHERE action BETWEEN 0 AND 5"},
    {"plain alarms of both origins, active and acknowledged",
     "SELECT count(DISTINCT (origin = 'Server') * 2 + (acknowledged <> 0)) = 4 FROM alarm WHERE action = 0"},
    {"other actions", "SELECT count(DISTINCT action) = 3 FROM alarm WHERE action NOT BETWEEN 0 AND 5"},
    {"the origin in another case", "SELECT count(DISTINCT action) = 2 FROM alarm WHERE origin = 'server'"},
    {"alarms of runs and others, of stations and of the server",
     "SELECT count(DISTINCT process_run_id = 0) = 2 AND count(DISTINCT owner_id = 0) = 2 FROM alarm"},
    {"backups of either side, OK and not, with an odd flag", "SELECT count(DISTINCT ok) = 3 FROM backup"},
    {"files whose path is a folder, a whole path, empty",
     "SELECT count(DISTINCT CASE path WHEN '' THEN 0 ELSE 1 + (substr(path, -length(name)) = name) END) = 3 FROM "
     "backup_file WHERE name <> ''"},
    {"a failed file", "SELECT count(*) FROM backup_file WHERE ok = 0 AND size_kb = 0"},
    {"an import under two names", "SELECT count(DISTINCT name) = 2 FROM import_run WHERE user_import_id = 1"},
    {"an import by two processes and by hand, which returns to an earlier one",
     "SELECT count(DISTINCT process_id) = 3 AND count(*) > 5 FROM import_run WHERE user_import_id = 1"},
    {"users imported, refused, of an odd flag", "SELECT count(DISTINCT ok) = 3 FROM imported_user"},
    {"each level and three that nobody knows", "SELECT count(DISTINCT level) = 6 FROM scheduler_log"},
    {"rows with and without attachment, of companies and not",
     "SELECT count(DISTINCT attachment = '') = 2 AND count(DISTINCT company_id = 0) = 2 FROM scheduler_log"},
    {"one without a date in each table",
     "SELECT min(n) FROM (SELECT sum(start_date = 0) AS n FROM communication UNION ALL SELECT sum(raised_date = 0) "
     "FROM "
     "alarm UNION ALL SELECT sum(saved_date = 0) FROM backup UNION ALL SELECT sum(logged_date = 0) FROM "
     "scheduler_log)"},
    {"a separator, a tab, a line break, an accent, and more than fits, in each table",
     "SELECT min(n) FROM (SELECT min(sum(t LIKE '%|%'), sum(instr(t, char(9)) > 0), sum(instr(t, char(13, 10)) > 0), "
     "sum(t LIKE '%é%'), sum(length(t) > 250)) AS n FROM (SELECT 1 AS k, report AS t FROM communication UNION ALL "
     "SELECT 2, text FROM alarm UNION ALL SELECT 3, name FROM backup UNION ALL SELECT 4, report FROM imported_user "
     "UNION ALL SELECT 5, label FROM scheduler_log) GROUP BY k)"},
};

TEST_F(SampleTables, AgreeWithTheRuns) {
  for (const SampleOptions& options : {SampleOptions{.stations = kStationsForRareCases, .runs = kRunsForRareCases},
                                       SampleOptions{.stations = 150, .runs = 150, .detailRuns = 0, .seed = 7},
                                       SampleOptions{.stations = 0, .runs = 3}, SampleOptions{.stations = 1, .runs = 0},
                                       SampleOptions{.stations = 2, .runs = 30, .alarms = 500, .imports = 500}}) {
    const std::filesystem::path file = Write(options);
    for (const Claim& claim : kContradictions) {
      EXPECT_EQ(Answer(file, claim.query), "0\n")
          << claim.what << ", " << options.stations << " stations, " << options.runs << " runs";
    }
    EXPECT_EQ(Answer(file, "PRAGMA foreign_key_check"), "");
  }
}

TEST_F(SampleTables, HoldEveryRareCaseFromAModestSizeOn) {
  for (const SampleOptions& options : {SampleOptions{.stations = kStationsForRareCases, .runs = kRunsForRareCases},
                                       SampleOptions{.stations = 150, .runs = 150, .detailRuns = 0, .seed = 7}}) {
    const std::filesystem::path file = Write(options);
    for (const Claim& claim : kPresent) {
      EXPECT_GT(Answer(file, claim.query), "1") << claim.what << ", " << options.stations << " stations";
    }
  }
}

TEST_F(SampleTables, AreInProportion) {
  const std::filesystem::path file = Write({});
  constexpr Claim kProportions[] = {
      {"most connections are made at night",
       "SELECT avg(start_date - day NOT BETWEEN 5/24.0 AND 22/24.0) BETWEEN 0.6 AND 0.95 FROM communication"},
      {"few fail", "SELECT avg(state = 2) BETWEEN 0.01 AND 0.06 FROM communication"},
      {"each station has some", "SELECT count(DISTINCT station_id) = 60 FROM communication"},
      {"none has half of them",
       "SELECT max(n) < 0.1 * sum(n) FROM (SELECT count(*) AS n FROM communication GROUP BY station_id)"},
      {"old alarms are mostly acknowledged, new ones are not",
       "SELECT avg(acknowledged) FILTER (WHERE raised_date < 46344) < -0.7 AND avg(acknowledged) FILTER (WHERE "
       "raised_date > 46345) > -0.6 FROM alarm"},
      {"the server is backed up each night, in full on Sundays",
       "SELECT count(*) >= 28 AND sum(name LIKE '%full') BETWEEN 3 AND 5 FROM backup WHERE station_id = 0"},
      {"each station about once a week",
       "SELECT count(*) BETWEEN 200 AND 300 AND count(DISTINCT station_id) = 60 FROM backup WHERE station_id <> 0"},
      {"most users are imported", "SELECT avg(ok) BETWEEN -0.97 AND -0.85 FROM imported_user"},
      {"most of the log is information", "SELECT avg(level = 1) BETWEEN 0.6 AND 0.9 FROM scheduler_log"},
  };
  for (const Claim& claim : kProportions) EXPECT_EQ(Answer(file, claim.query), "1\n") << claim.what;
}

TEST_F(SampleTables, AreAsLargeAsTheyAreAskedFor) {
  constexpr std::int32_t kRows = 30000;
  const std::filesystem::path file = Write({.communications = kRows,
                                            .alarms = kRows,
                                            .saves = 3,
                                            .saveFiles = kRows,
                                            .imports = 7,
                                            .importedUsers = kRows,
                                            .systemRows = kRows});
  EXPECT_EQ(counts().communications, kRows);
  EXPECT_EQ(counts().alarms, kRows);
  EXPECT_EQ(counts().backupFiles, kRows);
  EXPECT_EQ(counts().importedUsers, kRows);
  EXPECT_EQ(counts().schedulerLogs, kRows);
  EXPECT_EQ(Answer(file,
                   "SELECT count(*) || ' ' || max(n) FROM (SELECT count(*) AS n FROM backup_file GROUP BY "
                   "backup_id)"),
            "3 10000\n");
  EXPECT_EQ(Answer(file, "SELECT count(*) - count(DISTINCT name || path) FROM backup_file WHERE backup_id = 1"), "0\n");
  // What lies beside the runs leaves them as they are.
  constexpr const char* kRuns = "SELECT sum(task_run_id * 7 + start_date) FROM task_run";
  EXPECT_EQ(Answer(file, kRuns), Answer(Write({}, "usual.db"), kRuns));
  EXPECT_THROW(Write({.alarms = -1}), Error);
}

// The number follows the sample: it changes when the sample is changed on purpose, and then only.
TEST_F(SampleTables, AreTheSameWithEveryCompiler) {
  constexpr const char* kRows =
      "SELECT round(start_date * 86400) || ' ' || station_name || size_kb || report || state FROM communication UNION "
      "ALL SELECT kind || result || text || round(end_date * 86400) FROM command_log WHERE step_log_id = 0 UNION ALL "
      "SELECT round(raised_date * 86400) || owner_id || severity || action || origin || text || acknowledged_by || "
      "process_run_id FROM alarm UNION ALL SELECT b.name || round(b.saved_date * 86400) || f.name || path || f.size_kb "
      "|| f.ok FROM backup b JOIN backup_file f USING (backup_id) UNION ALL SELECT name || process_id || batch_number "
      "|| user_name || ok || report FROM import_run JOIN imported_user USING (import_run_id) UNION ALL SELECT "
      "round(logged_date * 86400) || level || machine || label || company || user_name || attachment FROM "
      "scheduler_log";
  std::uint64_t hash = 14695981039346656037U;
  for (const char c : Answer(Write({}), kRows)) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211U;
  EXPECT_EQ(hash, 13788658933358566500U);
}

TEST_F(SampleTables, AttachmentsAreThereOrGone) {
  constexpr const char* kPaths =
      "SELECT DISTINCT attachment FROM scheduler_log WHERE label LIKE 'Router%' AND attachment <> ''";
  const auto existing = [](const std::string& paths) {
    std::size_t there = 0;
    std::size_t gone = 0;
    for (std::size_t at = 0, end = 0; (end = paths.find('\n', at)) != std::string::npos; at = end + 1) {
      const std::u8string path(paths.begin() + static_cast<std::ptrdiff_t>(at),
                               paths.begin() + static_cast<std::ptrdiff_t>(end));
      ++(std::filesystem::exists(path) ? there : gone);
    }
    return std::pair(there > 0, gone > 0);
  };
  EXPECT_EQ(existing(Answer(Write({.attachments = folder() / "a" / "files"}), kPaths)), std::pair(true, true));
  EXPECT_EQ(existing(Answer(Write({}), kPaths)), std::pair(false, true));
  EXPECT_THROW(Write({.attachments = folder() / "sample.db"}), Error) << "a file is no folder";
}

}  // namespace
}  // namespace quorvel::tools
