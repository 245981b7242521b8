// Cases of the queries about alarms, backups, user imports and the scheduler's log.
#include <gmock/gmock.h>

#include <limits>
#include <vector>

#include "datasource/AlarmsLog.h"
#include "datasource/Saves.h"
#include "datasource/TaskSchedulerLog.h"
#include "datasource/UsersImport.h"
#include "hub/QueryCases.h"
#include "hub/QueryRows.h"
#include "support/SmallHistory.h"

namespace quorvel::test {
namespace {

using datasource::AlarmsLog;
using datasource::Saves;
using datasource::TaskSchedulerLog;
using datasource::UsersImport;
using testing::ElementsAre;
using testing::IsEmpty;

void CheckGetAlarms(Installation& at) {
  const auto source = at.Create<AlarmsLog>();
  std::int32_t status = -1;
  const auto ask = [&](std::int32_t alarm) {
    source->GetAlarms(at.Connection(), alarm, 0, status);
    return Rows("GetAlarms", *source);
  };
  EXPECT_EQ(ask(-1), R"(603|0||46346.75|1|5|Server|trap|0||0|0||0|0|
602|1|alpha|46346|3|0|alpha|disk full|-1|ADM\eve|46346.25|0||0|0|
601|1|alpha|46345.5|2|1|server|mail sent|0||0|100|Deploy|11|0|
605|2|Beta|46347|1|0|Beta|back|0||0|0||0|0|
604|2|Beta|0|0|9|||1||0|0||0|0|
)");
  EXPECT_EQ(ask(603), "603|0||46346.75|1|5|Server|trap|0||0|0||0|0|\n");
  EXPECT_EQ(status, 0);
  EXPECT_EQ(ask(999), "");
  EXPECT_EQ(status, 1);
  ask(-1);
  source->CloseAlarms(at.Connection());
  EXPECT_EQ(source->lngCount(), 0);
}

void CheckGetAlarmsByDay(Installation& at) {
  const auto source = at.Create<AlarmsLog>();
  std::int32_t status = -1;
  const auto ask = [&](double day, std::int32_t owner = -1, std::int32_t state = -1) {
    source->GetAlarmsByDay(at.Connection(), day, owner, state, status);
    return All(source->Records().lngAlarmId);
  };
  EXPECT_THAT(ask(46346), ElementsAre(603, 602));
  EXPECT_EQ(Rows("GetAlarmsByDay", *source), R"(603|0||46346.75|1|5|Server|trap|0||0|0||0|0|
602|1|alpha|46346|3|0|alpha|disk full|-1|ADM\eve|46346.25|0||0|0|
)");
  EXPECT_THAT(ask(46346.875), ElementsAre(603, 602)) << "any time of the day names it";
  EXPECT_THAT(ask(46347), ElementsAre(605));
  EXPECT_THAT(ask(46346, kAlpha), ElementsAre(602));
  EXPECT_THAT(ask(46346, 0), ElementsAre(603)) << "no owner is one of its own";
  EXPECT_THAT(ask(46346, -1, 0), ElementsAre(603));
  EXPECT_THAT(ask(46346, kAlpha, 0), IsEmpty());
  EXPECT_THAT(ask(0), ElementsAre(605, 603, 602, 601, 604)) << "every day, and without a date";
  EXPECT_THAT(ask(0, kAlpha), ElementsAre(602, 601));
  EXPECT_THAT(ask(0, -1, 1), ElementsAre(602, 604)) << "any flag but 0 counts as acknowledged";
  EXPECT_THAT(ask(0, 99), IsEmpty());
  EXPECT_EQ(status, 0);
  EXPECT_THAT(ask(std::numeric_limits<double>::quiet_NaN()), IsEmpty());
  EXPECT_EQ(status, 2);
  ask(0);
  source->CloseAlarmsByDay(at.Connection());
  EXPECT_EQ(source->lngCount(), 0);
}

using Alarms = std::vector<std::int32_t>;

std::int32_t Acknowledge(Installation& at, const Alarms& alarms, std::string_view user) {
  std::int32_t status = -1;
  at.Create<AlarmsLog>()->AcknowledgeAlarms(at.Connection(), alarms, user, status);
  return status;
}

std::int32_t Activate(Installation& at, const Alarms& alarms) {
  std::int32_t status = -1;
  at.Create<AlarmsLog>()->ActivateAlarms(at.Connection(), alarms, status);
  return status;
}

// "alarm flag user", and "dated" where it says when.
std::string StateOf(Installation& at, std::int32_t alarm) {
  const auto source = at.Create<AlarmsLog>();
  std::int32_t status = -1;
  source->GetAlarms(at.Connection(), alarm, 0, status);
  const datasource::AlarmsLogRecords& rows = source->Records();
  return std::to_string(rows.bAcknowledged[0]) + " " + std::string(rows.strAcknowledgedBy[0]) +
         (rows.dtAcknowledged[0] > 0 ? " dated" : "");
}

void CheckAcknowledgeAlarms(Installation& at) {
  EXPECT_EQ(Acknowledge(at, {601, 602, 999}, std::string_view("DOM\\zo\xC3\xA9\0", 9)), 0);
  EXPECT_EQ(StateOf(at, 601), "-1 DOM\\zo\xC3\xA9 dated") << "a name ends at its NUL";
  EXPECT_EQ(StateOf(at, 602), "-1 ADM\\eve dated") << "who acknowledged first stays";
  EXPECT_EQ(StateOf(at, 605), "0 ");
  EXPECT_EQ(Acknowledge(at, {998, 999}, "bob"), 1);
  EXPECT_EQ(Acknowledge(at, {}, "bob"), 1);
}

void CheckActivateAlarms(Installation& at) {
  EXPECT_EQ(Activate(at, {602, 601}), 0);
  EXPECT_EQ(StateOf(at, 602), "0 ");
  EXPECT_EQ(StateOf(at, 601), "0 ");
  EXPECT_EQ(Activate(at, {999}), 1);
}

void CheckGetSaves(Installation& at) {
  const auto source = at.Create<Saves>();
  std::int32_t status = -1;
  const auto ask = [&](std::int32_t onStation, std::int32_t user = -1, double from = kEarly, double to = kLate) {
    source->GetSaves(at.Connection(), onStation, user, from, to, status);
    return All(source->Records().lngSaveId);
  };
  ask(1);
  EXPECT_EQ(Rows("GetSaves", *source), R"(704|1|alpha|Data|46346|20|-1|
705|2|Beta|Data|46346.5|0|1|
703|2|Beta|Data|46344|10|-1|
)");
  EXPECT_THAT(ask(0), ElementsAre(702, 701));
  EXPECT_THAT(ask(1, kBeta), ElementsAre(705, 703));
  EXPECT_THAT(ask(0, 0), ElementsAre(702, 701));
  EXPECT_THAT(ask(0, kBeta), IsEmpty()) << "the server has one backup place, which is no station";
  EXPECT_THAT(ask(1, 0), IsEmpty());
  EXPECT_THAT(ask(1, -1, 46346, 46346.5), ElementsAre(704));
  EXPECT_EQ(status, 0);
  EXPECT_THAT(ask(1, -1, 0, 0), IsEmpty());
  EXPECT_EQ(status, 2);
  ask(1);
  source->CloseSaves(at.Connection());
  EXPECT_EQ(source->lngCount(), 0);
}

void CheckGetSaveFiles(Installation& at) {
  const auto source = at.Create<Saves>();
  std::int32_t status = -1;
  const auto ask = [&](std::int32_t save, std::int32_t failedOnly = 0, std::string_view part = "") {
    source->GetSaveFiles(at.Connection(), save, failedOnly, part, status);
    return Rows("GetSaveFiles", *source);
  };
  const std::string percent = "702|a%b.txt|0|0||1|\n";
  const std::string alpha = "702|Alpha.db|46346.5|0|D:\\data|0|\n";
  const std::string zone = "702|zone.db|46346.5|5|D:\\data|-1|\n";
  EXPECT_EQ(ask(702), percent + alpha + zone);
  EXPECT_EQ(ask(702, 1), percent + alpha) << "any flag but -1 failed";
  EXPECT_EQ(ask(702, 0, "A.D"), alpha);
  EXPECT_EQ(ask(702, 0, "%"), percent) << "no wildcard";
  EXPECT_EQ(ask(702, -1, ".db"), alpha);
  EXPECT_EQ(ask(703), "");
  EXPECT_EQ(status, 0);
  for (const std::int32_t missing : {999, -1}) {
    EXPECT_EQ(ask(missing), "");
    EXPECT_EQ(status, 1);
  }
  ask(702);
  source->CloseSaveFiles(at.Connection());
  EXPECT_EQ(source->lngCount(), 0);
}

void CheckGetUsersImports(Installation& at) {
  const auto source = at.Create<UsersImport>();
  std::int32_t status = -1;
  const auto ask = [&](std::int32_t import) {
    source->GetUsersImports(at.Connection(), import, status);
    return Rows("GetUsersImports", *source);
  };
  EXPECT_EQ(ask(1), R"(Crew|11|Deploy|
Staff|0||
Staff|10|backup|
Staff|11|Deploy|
)");
  EXPECT_EQ(ask(2), "");
  EXPECT_EQ(status, 0);
  for (const std::int32_t missing : {99, 0, -1}) {
    EXPECT_EQ(ask(missing), "");
    EXPECT_EQ(status, 1);
  }
  ask(1);
  source->CloseUsersImports(at.Connection());
  EXPECT_EQ(source->lngCount(), 0);
}

void CheckGetUsersImportByProcess(Installation& at) {
  const auto source = at.Create<UsersImport>();
  std::int32_t status = -1;
  const auto ask = [&](std::string_view name, std::int32_t process, std::int32_t run = -1, std::int32_t import = 1) {
    source->GetUsersImportByProcess(at.Connection(), import, name, process, run, status);
    return All(source->Records().lngImportLogId);
  };
  ask("Staff", kDeploy);
  EXPECT_EQ(Rows("GetUsersImportByProcess", *source), R"(803|101|46346.25||-1||
802|100|46345.25|Zoe|-1||
802|100|46345.25|Bob|0|no such group|
)") << "users in the order of the import; a run of nobody has one row";
  EXPECT_THAT(ask("staff", 0), ElementsAre(801)) << "by hand; the case of a name tells nothing";
  EXPECT_THAT(ask("Staff", -1), ElementsAre(803, 802, 802, 805, 801));
  EXPECT_THAT(ask("Staff", kDeploy, 802), ElementsAre(802, 802));
  EXPECT_THAT(ask("Crew", kDeploy), ElementsAre(804));
  EXPECT_THAT(ask("Crew", kDeploy, 802), IsEmpty()) << "the run of another name";
  EXPECT_THAT(ask("Staff", kBackup, 802), IsEmpty()) << "the run of another process";
  EXPECT_THAT(ask("", kDeploy), IsEmpty());
  EXPECT_THAT(ask("Staff", kDeploy, -1, 2), IsEmpty());
  EXPECT_EQ(status, 0);
  ask("Staff", kDeploy);
  source->CloseUsersImportByProcess(at.Connection());
  EXPECT_EQ(source->lngCount(), 0);
}

void CheckGetTaskSchedulerLogs(Installation& at) {
  const auto source = at.Create<TaskSchedulerLog>();
  std::int32_t status = -1;
  const auto ask = [&](std::int32_t state = 0, std::int32_t company = -1, double to = kLate, std::int32_t kind = 3) {
    source->GetTaskSchedulerLogs(at.Connection(), 46346, to, kind, state, company, status);
    return All(source->Records().lngLogId);
  };
  ask();
  EXPECT_EQ(Rows("GetTaskSchedulerLogs", *source), R"(7|1004|2026-11-21 00:00:00|SRV2|other|Acme|||
2|1002|2026-11-20 23:05:07|SRV|failed|Acme|eve|/no/such/file.txt|
3|1003|2026-11-20 12:00:00|SRV|skipped|Bolt|||
1|1001|2026-11-20 00:00:00|SRV|started||||
)");
  EXPECT_THAT(ask(0, -1, 46347), ElementsAre(1002, 1003, 1001));
  EXPECT_THAT(ask(1), ElementsAre(1001));
  EXPECT_THAT(ask(2), ElementsAre(1002));
  EXPECT_THAT(ask(5), ElementsAre(1004, 1003));
  EXPECT_THAT(ask(4), IsEmpty());
  EXPECT_THAT(ask(0, kAcme), ElementsAre(1004, 1002));
  EXPECT_THAT(ask(5, kBolt, 46347), ElementsAre(1003));
  EXPECT_THAT(ask(0, 99), IsEmpty());
  EXPECT_EQ(status, 0);
  EXPECT_THAT(ask(0, -1, kLate, 2), IsEmpty());
  EXPECT_EQ(status, 1);
  EXPECT_THAT(ask(0, -1, kEarly), IsEmpty());
  EXPECT_EQ(status, 2);
}

constexpr QueryCase kCases[] = {
    {"GetAlarms", CheckGetAlarms},
    {"GetAlarmsByDay", CheckGetAlarmsByDay},
    {"AcknowledgeAlarms", CheckAcknowledgeAlarms},
    {"ActivateAlarms", CheckActivateAlarms},
    {"GetSaves", CheckGetSaves},
    {"GetSaveFiles", CheckGetSaveFiles},
    {"GetUsersImports", CheckGetUsersImports},
    {"GetUsersImportByProcess", CheckGetUsersImportByProcess},
    {"GetTaskSchedulerLogs", CheckGetTaskSchedulerLogs},
};

}  // namespace

std::span<const QueryCase> LogCases() {
  return kCases;
}

}  // namespace quorvel::test
