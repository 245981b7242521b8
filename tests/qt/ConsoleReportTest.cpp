// The execution report: what is read for it, the document that it becomes, and the files that are written.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QPrinter>
#include <QTextDocument>
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "console/ReportPages.h"
#include "console_core/ReportData.h"
#include "console_core/ReportHtml.h"
#include "hub/RecordHub.h"
#include "scenario/RecordingSources.h"
#include "support/RecordingPlatform.h"
#include "support/SmallHistory.h"

namespace quorvel::console {
namespace {

using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

// Steps and a command that failed on Beta, and a task that failed once for all; every name is hostile.
constexpr std::string_view kFailures = R"sql(
UPDATE process SET name = '<b>Deploy</b> & "co"|2' WHERE process_id = 11;
UPDATE station_run SET station_name = 'שלום (1)', report = 'line 1' || char(13, 10) || 'line <2>' || char(7)
  WHERE process_run_id = 100 AND station_id = 2;
UPDATE station_run SET not_ok = -1, ok = 0 WHERE process_run_id = 100 AND station_id IN (1, 3);
UPDATE task_run SET ok = 0, not_ok = -1 WHERE task_run_id = 202;
UPDATE step_log SET ok = 0, not_ok = -1 WHERE step_log_id = 303;
INSERT INTO step_log (step_log_id, task_run_id, step_name, settings, report, execute_where, start_date, end_date,
                      in_progress, ok, not_ok, step_kind, station_scope) VALUES
  (304, 204, 'Send', 'a.zip', '', 'Station', 0, 0, 0, -1, 0, 5, 2),
  (305, 204, 'Unpack', 'b.zip', 'no room', 'Station', 0, 0, 0, 0, -1, 5, 2);
INSERT INTO command_log VALUES
  (404, 305, 0, 0, 1, 0, 'cd /', '', 0, 0, 0, -1, 0),
  (405, 305, 0, 0, 1, 39, 'unzip </script>', 'disk full', 0, 0, 0, 0, -1);
)sql";

class ConsoleReportTest : public testing::Test {
 protected:
  ReportData Collect(std::string_view keys) { return CollectReport(recording, connection, platform, keys); }
  std::string Html(std::string_view keys) { return WriteReport(Collect(keys), platform).html; }
  std::string Shown(std::string_view keys) {
    QTextDocument document;
    document.setHtml(QString::fromStdString(Html(keys)));
    return document.toPlainText().toStdString();
  }
  // What of these queries was asked since the last time.
  std::vector<std::string> Asked(std::string_view query) {
    std::vector<std::string> asked = calls.Take();
    std::erase_if(asked, [&](const std::string& line) { return !line.starts_with(query); });
    return asked;
  }

  test::SmallHistory history;
  test::RecordingPlatform platform;
  hub::RecordHub hub;
  std::int32_t connection = hub.OpenConnection(history.url());
  scenario::Faults faults;
  scenario::CallRecorder calls{faults};
  scenario::RecordingFactory recording{hub, calls};
};

TEST_F(ConsoleReportTest, TellsOfEachRunWhatFailedOnWhichStation) {
  history.Sql(kFailures);
  const ReportData data = Collect("LPROC|11|0|100;LPROC|13|1|104;LPROC|11|0|999;LPROC|12|0|1");
  ASSERT_THAT(data.runs, SizeIs(4));
  const RunReport& run = data.runs[0];
  EXPECT_EQ(run.place, "Server");
  EXPECT_EQ(RunStatus(run.counts), "3 NOT OK, 1 Unknown");
  ASSERT_THAT(run.stations, SizeIs(3));
  EXPECT_EQ(run.stations[0].name, "aardvark") << "by name, as it was then";
  ASSERT_THAT(run.sharedTasks, SizeIs(1)) << "once, though it failed all three";
  EXPECT_EQ(run.sharedTasks[0].name, "Prepare");
  EXPECT_EQ(run.sharedTasks[0].steps[0].name, "Build");
  ASSERT_THAT(run.stations[2].tasks, SizeIs(1));
  const FailedTask& task = run.stations[2].tasks[0];
  EXPECT_EQ(task.report, "disk full");
  ASSERT_THAT(task.steps, SizeIs(1));
  ASSERT_THAT(task.steps[0].commands, SizeIs(1));
  EXPECT_EQ(task.steps[0].commands[0].result, 39);
  EXPECT_EQ(data.runs[1].place, "Station");
  EXPECT_EQ(RunStatus(data.runs[1].counts), "Unknown");
  EXPECT_FALSE(data.runs[2].inHistory);
  EXPECT_FALSE(data.runs[3].inHistory);
  for (const char* const wrong : {"", "LPROC|11", "LPROC|11|0|100;", "LUSR|1|11|0|100", "LPROC|11|0|x"}) {
    EXPECT_THROW(Collect(wrong), Error) << wrong;
  }
}

TEST_F(ConsoleReportTest, AsksForNothingThatWentWell) {
  history.Sql(kFailures);
  Collect("LPROC|10|0|102;LPROC|11|0|101;LPROC|11|0|103");
  EXPECT_THAT(Asked("GetProcessLogByTask("), SizeIs(0));
  Collect("LPROC|11|0|100;LPROC|11|0|101");
  const std::vector<std::string> asked = Asked("Get");
  const auto count = [&](std::string_view query) {
    return std::ranges::count_if(asked, [&](const std::string& line) { return line.starts_with(query); });
  };
  EXPECT_EQ(count("GetProcessLogByProcess("), 1) << "two runs of one process";
  EXPECT_EQ(count("GetTaskRunsByProcessLog("), 3) << "a station each";
  EXPECT_EQ(count("GetStepLogByTaskRun("), 2) << "Copy on Beta, Prepare once";
  EXPECT_EQ(count("GetCommandLogByStepLog("), 2);
}

TEST_F(ConsoleReportTest, HoldsNoMoreThanItSays) {
  history.Sql(
      "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 230) INSERT INTO station_run "
      "(process_run_id, station_id, station_name, identifier, company, report, start_date, end_date, "
      "in_progress, ok, not_ok, unknown, executed, wait_state) SELECT 103, 1000 + i, printf('S%03d', i), '', '', "
      "replace(hex(zeroblob(1500)), '00', 'é'), 0, 0, 0, 0, -1, 0, -1, '' FROM n");
  const ReportData data = Collect("LPROC|11|0|103");
  EXPECT_THAT(data.runs[0].stations, SizeIs(kMostStations));
  EXPECT_THAT(Asked("GetTaskRunsByProcessLog("), SizeIs(kMostStations));
  EXPECT_THAT(Shown("LPROC|11|0|103"), HasSubstr("30 failing stations are left out"));
  history.Sql("UPDATE station_run SET report = 'x' || replace(hex(zeroblob(3000)), '00', 'é') WHERE station_id = 1001");
  const std::string text = Collect("LPROC|11|0|103").runs[0].stations[0].report;
  EXPECT_THAT(text, EndsWith("é\n[2002 more bytes]")) << "whole characters";
  std::string keys = "LPROC|10|0|102";
  for (std::size_t i = 0; i < kMostRuns; ++i) keys += ";LPROC|10|0|102";
  EXPECT_EQ(Collect(keys).runsLeftOut, 1U);
}

TEST_F(ConsoleReportTest, ShowsNamesAsTheyAre) {
  history.Sql(kFailures);
  const std::string html = Html("LPROC|11|0|100");
  EXPECT_THAT(html, HasSubstr("&lt;b&gt;Deploy&lt;/b&gt; &amp; &quot;co&quot;|2"));
  EXPECT_THAT(html, HasSubstr("line 1\nline &lt;2&gt;\uFFFD"));
  EXPECT_THAT(html, Not(HasSubstr("</script>")));
  const std::string shown = Shown("LPROC|11|0|100");
  EXPECT_THAT(shown, HasSubstr("<b>Deploy</b> & \"co\"|2"));
  EXPECT_THAT(shown, HasSubstr("שלום (1)"));
  EXPECT_THAT(shown, HasSubstr("unzip </script>"));
  EXPECT_THAT(shown, HasSubstr("Outcome: 3 NOT OK, 1 Unknown"));
  EXPECT_THAT(Shown("LPROC|11|0|999"), HasSubstr("not in the history any more"));
  EXPECT_THAT(Shown("LPROC|11|0|101"), HasSubstr("so far")) << "it is still running";
}

std::string FileText(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return (std::ostringstream() << in.rdbuf()).str();
}

TEST_F(ConsoleReportTest, IsWrittenWholeOrNotAtAll) {
  const ReportText report = WriteReport(Collect("LPROC|10|0|102;LPROC|11|0|100;LPROC|13|1|104"), platform);
  const std::filesystem::path pdf = platform.folder / "report.pdf";
  SaveReport(report, QString::fromStdString(pdf));
  EXPECT_THAT(FileText(pdf), StartsWith("%PDF"));
  EXPECT_THAT(FileText(pdf), HasSubstr("/Count 3")) << "a page for each run";
  const std::filesystem::path html = platform.folder / "report.html";
  SaveReport(report, QString::fromStdString(html));
  EXPECT_EQ(FileText(html), report.html);
  try {
    SaveReport(report, "/no/such/folder/report.pdf");
    FAIL() << "written nowhere";
  } catch (const Error& error) {
    EXPECT_EQ(error.number(), 75);
    EXPECT_THAT(error.description(), HasSubstr("/no/such/folder/report.pdf"));
  }
}

TEST_F(ConsoleReportTest, PrintsTheWantedPages) {
  const ReportText report = WriteReport(Collect("LPROC|10|0|102;LPROC|11|0|100;LPROC|13|1|104"), platform);
  const std::filesystem::path file = platform.folder / "printed.pdf";
  const auto printed = [&](PageRange range) {
    QPrinter printer(QPrinter::HighResolution);
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(QString::fromStdString(file));
    PaintReport(report, printer, range);
    return FileText(file);
  };
  EXPECT_THAT(printed({0, 0}), HasSubstr("/Count 3")) << "as a dialog says all";
  EXPECT_THAT(printed({2, 2}), HasSubstr("/Count 1"));
  EXPECT_THAT(printed({2, 9}), HasSubstr("/Count 2"));
}

}  // namespace
}  // namespace quorvel::console
