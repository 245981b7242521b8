#include "tools/AptImport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <zlib.h>

#include <fstream>
#include <string>
#include <string_view>

#include "Answer.h"
#include "hub/RecordHub.h"
#include "support/TemporaryFolder.h"

namespace quorvel::tools {
namespace {

using test::Answer;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;

constexpr DateValue kNow = 46346.5;  // 2026-11-20 12:00

constexpr const char* kRuns =
    "SELECT p.name || ' / ' || s.state || ' / ' || s.report FROM process_run r JOIN process p USING (process_id) JOIN "
    "station_run s USING (process_run_id) ORDER BY process_run_id";
constexpr const char* kSteps =
    "SELECT r.process_run_id || ' ' || task_name || ' / ' || step_name || ' / ' || settings || ' / ' || s.ok || ' ' || "
    "s.not_ok || ' ' || s.in_progress || ' / ' || s.report || ' / ' || (SELECT count(*) FROM command_log c WHERE "
    "c.step_log_id = s.step_log_id) FROM process_run r JOIN task_run USING (process_run_id) JOIN step_log s USING "
    "(task_run_id) ORDER BY step_log_id";

constexpr const char* kInstalled =
    "\nStart-Date: 2026-11-18  10:00:00\nCommandline: apt-get install nano\nRequested-By: ada (1000)\n"
    "Install: nano:amd64 (7.2-1), libnano:amd64 (1.0, automatic)\nUpgrade: libc6:amd64 (2.36-9, 2.36-10)\n"
    "End-Date: 2026-11-18  10:00:09\n";
constexpr const char* kInstalledRecords =
    "2026-11-18 10:00:01 startup archives unpack\n"
    "2026-11-18 10:00:01 install nano:amd64 <none> 7.2-1\n2026-11-18 10:00:02 status unpacked nano:amd64 7.2-1\n"
    "2026-11-18 10:00:03 status installed nano:amd64 7.2-1\n2026-11-18 10:00:03 status installed libnano:all 1.0\n"
    "2026-11-18 10:00:04 status half-configured libc6:amd64 2.36-9\n"
    "2026-11-18 10:00:05 status installed libc6:amd64 2.36-10\n"
    "2026-11-18 10:00:05 status installed libc6:i386 2.36-10\n"
    "2026-11-18 10:00:09 trigproc man-db:amd64 2.11 <none>\n2026-11-18 10:00:09 status installed man-db:amd64 2.11\n";

class AptImport : public testing::Test {
 protected:
  AptImport() { std::filesystem::create_directory(folder_.path() / "apt"); }

  void Log(const char* name, std::string_view text) const {
    std::ofstream(folder_.path() / name, std::ios::binary) << text;
  }
  void GzLog(const char* name, const std::string& text) const {
    gzFile_s* const file = gzopen((folder_.path() / name).string().c_str(), "wb");
    gzwrite(file, text.data(), static_cast<unsigned>(text.size()));
    gzclose(file);
  }
  void Import() { result_ = ImportAptHistory({folder_.path(), "till-07", kNow}, file(), Existing::kReplace); }
  std::string Ask(const char* query) const { return Answer(file(), query); }
  std::filesystem::path file() const { return folder_.path() / "apt.db"; }
  const std::filesystem::path& folder() const { return folder_.path(); }
  const AptImportResult& result() const { return result_; }

 private:
  test::TemporaryFolder folder_;
  AptImportResult result_;
};

TEST_F(AptImport, FollowsAnInvocationDownToDpkg) {
  Log("apt/history.log", kInstalled);
  Log("dpkg.log", kInstalledRecords);
  Import();
  EXPECT_THAT(result().messages, IsEmpty());
  EXPECT_EQ(Ask(kRuns), "apt-get install nano / 1 / 3 packages; requested by ada (1000)\n");
  EXPECT_EQ(Ask(kSteps),
            "1 Install / nano:amd64 / 7.2-1 / -1 0 0 /  / 3\n"
            "1 Install / libnano:amd64 / 1.0 / -1 0 0 / Needed by another package / 1\n"
            "1 Upgrade / libc6:amd64 / 2.36-9 -> 2.36-10 / -1 0 0 /  / 2\n"
            "1 Process triggers / libc6:i386 /  / -1 0 0 /  / 1\n"
            "1 Process triggers / man-db:amd64 /  / -1 0 0 /  / 2\n");
  EXPECT_EQ(Ask("SELECT text FROM command_log WHERE step_log_id = 1"),
            "install nano:amd64 <none> 7.2-1\nstatus unpacked nano:amd64 7.2-1\nstatus installed nano:amd64 7.2-1\n");
  EXPECT_EQ(Ask("SELECT r.on_station || ' ' || station_name || ' ' || round((r.end_date - r.start_date) * 86400) FROM "
                "process_run r JOIN station_run USING (process_run_id)"),
            "-1 till-07 9.0\n");
}

TEST_F(AptImport, TellsFailedInterruptedAndRunningOnes) {
  constexpr const char* kHistory =
      "Start-Date: 2026-11-19  10:00:00\nCommandline: apt upgrade\nUpgrade: a:amd64 (1, 2), b:amd64 (1, 2), z:amd64 "
      "(1, 2)\n"
      "Error: Sub-process /usr/bin/dpkg returned an error code (1)\nEnd-Date: 2026-11-19  10:00:05\n\n"
      "Start-Date: 2026-11-19  11:00:00\nRemove: c:amd64 (3), d:amd64 (4)\nPurge: e:amd64 (5)\n\n"
      "Start-Date: 2026-11-20  11:00:00\nCommandline: apt upgrade\nInstall: f:amd64 (6), g:amd64 (7)\n"
      "Reinstall: h:amd64 (8)\nDowngrade: i:amd64 (9, 8)\n";
  Log("apt/history.log", kHistory);
  Log("dpkg.log",
      "2026-11-19 10:00:01 status installed a:amd64 2\n2026-11-19 10:00:02 status half-configured b:amd64 2\n"
      "2026-11-19 11:00:01 status config-files c:amd64 3\n2026-11-19 11:00:02 status half-installed d:amd64 4\n"
      "2026-11-19 11:00:03 status config-files e:amd64 5\n"
      "2026-11-20 11:00:01 status installed f:amd64 6\n2026-11-20 11:00:02 status unpacked g:amd64 7\n");
  Import();
  EXPECT_EQ(
      Ask(kRuns),
      "apt upgrade / 2 / Sub-process /usr/bin/dpkg returned an error code (1); 1 of 3 packages failed: b:amd64; 1 not "
      "begun\n"
      "unattended (no command line) / 2 / Interrupted: no end was logged; 2 of 3 packages failed: d:amd64, "
      "e:amd64\n"
      "apt upgrade / 3 / 4 packages\n");
  EXPECT_EQ(Ask("SELECT count(*) FROM process"), "2\n") << "the same command line is the same process";
  EXPECT_EQ(Ask(kSteps),
            "1 Upgrade / a:amd64 / 1 -> 2 / -1 0 0 /  / 1\n"
            "1 Upgrade / b:amd64 / 1 -> 2 / 0 -1 0 / Stopped at: status half-configured b:amd64 2 / 1\n"
            "1 Upgrade / z:amd64 / 1 -> 2 / 0 0 0 /  / 0\n"
            "2 Remove / c:amd64 / 3 / -1 0 0 /  / 1\n"
            "2 Remove / d:amd64 / 4 / 0 -1 0 / Stopped at: status half-installed d:amd64 4 / 1\n"
            "2 Purge / e:amd64 / 5 / 0 -1 0 / Stopped at: status config-files e:amd64 5 / 1\n"
            "3 Install / f:amd64 / 6 / -1 0 0 /  / 1\n"
            "3 Install / g:amd64 / 7 / 0 0 -1 /  / 1\n"
            "3 Reinstall / h:amd64 / 8 / 0 0 0 /  / 0\n"
            "3 Downgrade / i:amd64 / 9 -> 8 / 0 0 0 /  / 0\n");
  EXPECT_EQ(Ask("SELECT group_concat(not_ok || in_progress || not_executed, ' ') FROM task_run"),
            "-100 -100 -100 0-10 00-1 00-1\n");
  EXPECT_EQ(Ask("SELECT text || ' / ' || report FROM command_log WHERE not_ok = -1 AND result <> 0 LIMIT 2"),
            "status half-configured b:amd64 2 / dpkg did not go on from here: its own script failed or was cut off; "
            "Sub-process /usr/bin/dpkg returned an error code (1)\n"
            "status half-installed d:amd64 4 / dpkg did not go on from here: its files were not written or deleted to "
            "the end; Interrupted: no end was logged\n");
}

TEST_F(AptImport, ReadsOlderAndCompressedLogsOldestFirst) {
  const auto invocation = [](const char* day) {
    return "Start-Date: " + std::string(day) + "  10:00:00\nCommandline: of " + day +
           "\nInstall: x:amd64 (1)\nEnd-Date: " + day + "  10:00:01\n";
  };
  GzLog("apt/history.log.10.gz", invocation("2026-01-01"));
  GzLog("apt/history.log.2.gz", invocation("2026-09-01"));
  Log("apt/history.log.1", invocation("2026-10-01"));
  Log("apt/history.log", invocation("2026-11-01"));
  Log("apt/history.log.1.xz", "not read");
  Log("dpkg.log.1", "2026-10-01 10:00:00 status half-installed x:amd64 1\n");
  Import();
  // Where dpkg's log does not reach back, apt's word counts.
  EXPECT_EQ(Ask(kRuns),
            "of 2026-01-01 / 1 / 1 package\nof 2026-09-01 / 1 / 1 package\nof 2026-10-01 / 2 / 1 of 1 package failed: "
            "x:amd64\n"
            "of 2026-11-01 / 1 / 1 package\n");
}

TEST_F(AptImport, GivesAnEmptyHistoryWhereThereIsNothing) {
  for (const char* const expected : {"There is no ", "holds no invocation of apt: the history is empty"}) {
    Import();
    ASSERT_THAT(result().messages, ElementsAre(HasSubstr(expected)));
    EXPECT_THAT(result().messages.front(), EndsWith("the history is empty"));
    EXPECT_EQ(Ask("SELECT count(*) FROM process"), "0\n");
    EXPECT_EQ(Ask("SELECT count(*) FROM label"), "3\n");
    EXPECT_GT(hub::RecordHub().OpenConnection("sqlite:" + file().string()), 0);
    Log("apt/history.log", "\n");
  }
  std::filesystem::remove_all(folder() / "apt");
  Log("apt", "no folder");
  Import();
  EXPECT_THAT(result().messages, ElementsAre(HasSubstr("apt: Not a directory"), EndsWith("the history is empty")));
}

TEST_F(AptImport, CountsWhatItCannotUnderstand) {
  Log("apt/history.log", "Install: lost:amd64 (1)\nStart-Date: yesterday\nCommandline: lost\n" +
                             std::string(kInstalled) +
                             "Start-Date: 2026-11-18  10:00:09\nCommandline: apt-get autoremove\nHow: quickly\n"
                             "Remove: , x:amd64 (1), y:amd64\nEnd-Date: 2026-11-18  10:00:10\n");
  Log("dpkg.log", std::string(kInstalledRecords) +
                      "garbage\n2026-13-18 10:00:01 status installed x:amd64 1\n2026-11-18 10:00:10 explode x:amd64\n"
                      "2026-11-18 10:00:09 status not-installed x:amd64 <none>\n"
                      "2026-11-19 10:00:00 status installed by-hand:amd64 1\n");
  Import();
  EXPECT_THAT(result().messages, ElementsAre("8 lines not understood and left out",
                                             "1 record of dpkg outside every invocation of apt left out"));
  EXPECT_EQ(Ask(kRuns),
            "apt-get install nano / 1 / 3 packages; requested by ada (1000)\napt-get autoremove / 1 / 1 package\n");
}

TEST_F(AptImport, KeepsWhatCanBeReadOfADamagedFile) {
  std::string history;
  for (int day = 1; day <= 9; ++day) {
    history += "Start-Date: 2026-11-0" + std::to_string(day) + "  10:00:00\nCommandline: of day " +
               std::to_string(day) + "\nInstall: x:amd64 (" + std::string(2000, static_cast<char>('0' + day)) +
               ")\nEnd-Date: 2026-11-0" + std::to_string(day) + "  10:00:01\n\n";
  }
  GzLog("apt/history.log.1.gz", history);
  const std::filesystem::path gz = folder() / "apt/history.log.1.gz";
  std::filesystem::resize_file(gz, std::filesystem::file_size(gz) / 2);
  std::filesystem::create_directory(folder() / "dpkg.log");
  Log("apt/history.log", kInstalled);
  Import();
  EXPECT_THAT(result().messages,
              ElementsAre(HasSubstr("history.log.1.gz: "), HasSubstr("dpkg.log: "), HasSubstr("no commands")));
  EXPECT_THAT(Ask(kRuns), testing::StartsWith("of day 1 / 1 / 1 package\n"));
  EXPECT_THAT(Ask(kRuns), EndsWith("apt-get install nano / 1 / 3 packages; requested by ada (1000)\n"));
  EXPECT_EQ(Ask("SELECT count(*) FROM station_run WHERE state <> 1"), "0\n") << "what is cut off was not interrupted";
}

}  // namespace
}  // namespace quorvel::tools
