#include "hub/QueryCases.h"

#include <gmock/gmock.h>

#include <algorithm>

#include "datasource/Current.h"
#include "datasource/Labels.h"
#include "datasource/ProcessLog.h"
#include "datasource/Quorvel.h"
#include "datasource/StepLog.h"
#include "hub/QueryRows.h"
#include "support/SmallHistory.h"

namespace quorvel::test {
namespace {

using namespace datasource;
using testing::ElementsAre;
using testing::IsEmpty;

// The runs of station rows, each once.
Ids Runs(const ProcessLog& source) {
  Ids runs = All(source.Records().lngProcessLogId);
  runs.erase(std::unique(runs.begin(), runs.end()), runs.end());
  return runs;
}

void CheckGetProcessLogs(Installation& at) {
  const auto source = at.Create<ProcessLog>();
  std::int32_t status = -1;
  const auto ask = [&](double from, double to, std::int32_t state = 0, std::int32_t process = -1,
                       std::int32_t user = -1, std::int32_t company = -1) {
    source->GetProcessLogs(at.Connection(), from, to, state, process, user, company, 0, 0, status);
    return Runs(*source);
  };
  ask(kEarly, kLate);
  EXPECT_EQ(status, 0);
  EXPECT_EQ(Rows("GetProcessLogs", *source), R"(104|13|Archive|x|0|-1|46345.75|-1|2|0|0|0|-1|-1|
102|10|backup|-1|0|46346|0|0|0|-1|0|0|-1|
106|10|backup|-1|0|46343|0|1|0|0|-1|0|-1|
101|11|Deploy|-1|0|46346.25|0|1|-1|0|0|0|0|
101|11|Deploy|-1|0|46346.25|0|2|0|0|0|0|0|
101|11|Deploy|-1|0|46346.25|0|3|0|1|0|0|-1|
100|11|Deploy|-1|0|46345.25|0|1|0|-1|0|0|-1|
100|11|Deploy|-1|0|46345.25|0|2|0|0|-1|0|-1|
100|11|Deploy|-1|0|46345.25|0|3|0|-1|-1|0|-1|
100|11|Deploy|-1|0|46345.25|0|4|0|0|0|-1|-1|
103|11|Deploy|-1|0|46344|0|-1|0|0|0|0|0|
)");
  const TextColumn kept = source->Records().strProcessName;

  // The period holds its start and not its end.
  EXPECT_THAT(ask(46345.25, 46346.25), ElementsAre(kArchiveUnknown, kBackupNoPopulation, kDeployWithAll));
  EXPECT_THAT(ask(46346.25, 46346.25), IsEmpty());
  EXPECT_EQ(status, 0);
  EXPECT_EQ(Rows("GetProcessLogs", *source), "");

  EXPECT_THAT(ask(kEarly, kLate, 1), ElementsAre(kBackupNoPopulation, kDeployNoStation));
  EXPECT_THAT(ask(kEarly, kLate, 2), ElementsAre(kBackupOld, kDeployWithAll));
  EXPECT_EQ(source->lngCount(), 5) << "a selected run keeps all its stations";
  EXPECT_THAT(ask(kEarly, kLate, 3), ElementsAre(kDeployRunning));
  EXPECT_THAT(ask(kEarly, kLate, 5), ElementsAre(kArchiveUnknown));
  EXPECT_THAT(ask(0, 0, 4), ElementsAre(kArchiveUnknown, kBackupNoPopulation, kDeployRunning));
  EXPECT_THAT(ask(0, 0, 4, -1, kAlpha), ElementsAre(kArchiveNoDate, kBackupOld, kDeployRunning));
  EXPECT_THAT(ask(0, 0, 4, kDeploy, -1, kBolt), ElementsAre(kDeployRunning));

  EXPECT_THAT(ask(kEarly, kLate, 0, kBackup), ElementsAre(kBackupNoPopulation, kBackupOld));
  EXPECT_THAT(ask(kEarly, kLate, 0, -1, 0), ElementsAre(kBackupNoPopulation));
  EXPECT_THAT(ask(kEarly, kLate, 0, -1, kGamma), ElementsAre(kDeployRunning, kDeployWithAll));
  EXPECT_THAT(ask(kEarly, kLate, 0, -1, -1, kBolt), ElementsAre(kDeployRunning, kDeployWithAll));
  EXPECT_THAT(ask(kEarly, kLate, 0, kEmpty), IsEmpty());
  EXPECT_EQ(status, 0);

  EXPECT_THAT(ask(kEarly, kLate, 0, 99), IsEmpty());
  EXPECT_EQ(status, 1);
  for (const auto& [from, to] : {std::pair{kLate, kEarly}, {0.0, kLate}, {kEarly, 0.0}}) {
    EXPECT_THAT(ask(from, to), IsEmpty());
    EXPECT_EQ(status, 2);
  }
  ask(kEarly, kLate);
  source->CloseProcessLogs(at.Connection());
  EXPECT_EQ(source->lngCount(), 0);
  EXPECT_EQ(kept[10], "Deploy") << "a copy of a column outlives queries and release";
}

void CheckGetProcessLogByProcess(Installation& at) {
  const auto source = at.Create<ProcessLog>();
  std::int32_t status = -1;
  const auto ask = [&](std::int32_t process) {
    source->GetProcessLogByProcess(at.Connection(), process, 0, 0, status);
    return Rows("GetProcessLogByProcess", *source);
  };
  EXPECT_EQ(ask(kDeploy), R"(101|11|Deploy|46346.25|0|0|3|0|0|1|1|1|0|
100|11|Deploy|46345.25|46345.5|0|4|2|1|0|0|1|0|
103|11|Deploy|46344|0|0|0|0|0|0|0|0|0|
)");
  EXPECT_EQ(ask(kArchive), R"(104|13|Archive|x|46345.75|46345.875|-1|1|0|0|0|0|1|0|
105|13|Archive|x|0|0|-1|1|1|0|0|0|0|0|
)");
  EXPECT_EQ(ask(kEmpty), "");
  EXPECT_EQ(status, 0);
  ask(-1);
  EXPECT_THAT(Runs(*source), ElementsAre(104, 105, 102, 106, 101, 100, 103));
  EXPECT_EQ(ask(99), "");
  EXPECT_EQ(status, 1);
  ask(kDeploy);
  source->CloseProcessLogs(at.Connection());
  EXPECT_EQ(source->lngCount(), 0);
}

void CheckGetProcessLogByUser(Installation& at) {
  const auto source = at.Create<ProcessLog>();
  std::int32_t status = -1;
  struct Filter {
    std::int32_t state = 0, process = -1, user = -1, company = -1, onStation = -1;
    double serverFrom = kEarly, stationTo = kLate;
  };
  const auto ask = [&](const Filter& filter) {
    source->GetProcessLogByUser(at.Connection(), filter.serverFrom, kLate, kEarly, filter.stationTo, filter.state,
                                filter.process, filter.user, filter.company, filter.onStation, status);
    return All(source->Records().lngProcessLogId);
  };
  ask({});
  EXPECT_EQ(status, 0);
  EXPECT_EQ(Rows("GetProcessLogByUser", *source), R"(102|10|backup|-1|0|46346|46346.125|0|0|||0|-1|0|0|-1||
106|10|backup|-1|0|46343|46343.5|0|1|alpha|A-1|0|0|-1|0|-1||
101|11|Deploy|-1|0|46346.25|0|0|1|alpha|A-1|-1|0|0|0|0|Waiting com|
100|11|Deploy|-1|0|46345.25|46345.375|0|1|alpha|A-1|0|-1|0|0|-1||
104|13|Archive|x|0|-1|46345.75|46345.875|-1|2|Beta|B-2|0|0|0|-1|-1||
101|11|Deploy|-1|0|46346.25|0|0|2|Beta|B-2|0|0|0|0|0||
100|11|Deploy|-1|0|46345.25|46345.5|0|2|Beta|B-2|0|0|-1|0|-1||
101|11|Deploy|-1|0|46346.25|46346.5|0|3|gamma|G-3|0|1|0|0|-1||
100|11|Deploy|-1|0|46345.25|46345.5|0|3|gamma|G-3|0|-1|-1|0|-1||
100|11|Deploy|-1|0|46345.25|0|0|4|Été||0|0|0|-1|-1||
)");
  EXPECT_THAT(ask({.state = 1}), ElementsAre(102, 100, 100));
  EXPECT_THAT(ask({.state = 2}), ElementsAre(106, 100));
  EXPECT_THAT(ask({.state = 3}), ElementsAre(101));
  EXPECT_THAT(ask({.state = 5}), ElementsAre(104, 101, 100));
  EXPECT_THAT(ask({.state = 4, .serverFrom = 0}), ElementsAre(102, 105, 106, 101, 104, 101, 101, 100));
  EXPECT_THAT(ask({.state = 4, .onStation = 1}), ElementsAre(105, 104));
  EXPECT_THAT(ask({.process = kDeploy, .user = kBeta}), ElementsAre(101, 100));
  EXPECT_THAT(ask({.process = kDeploy}), ElementsAre(101, 100, 101, 100, 101, 100, 100));
  EXPECT_THAT(ask({.state = 4, .process = kDeploy}), ElementsAre(101, 101, 101, 100));
  EXPECT_THAT(ask({.state = 4, .process = kDeploy, .user = kBeta}), ElementsAre(101));
  EXPECT_THAT(ask({.company = kBolt}), ElementsAre(101, 100));
  EXPECT_THAT(ask({.onStation = 1}), ElementsAre(104));
  EXPECT_THAT(ask({.user = kBeta, .onStation = 0}), ElementsAre(101, 100));
  EXPECT_THAT(ask({.serverFrom = 46346.25}), ElementsAre(101, 104, 101, 101)) << "two periods";
  EXPECT_THAT(ask({.onStation = 1, .stationTo = 46345.75}), IsEmpty());
  EXPECT_EQ(status, 0);
  EXPECT_THAT(ask({.process = 99}), IsEmpty());
  EXPECT_EQ(status, 1);
  EXPECT_THAT(ask({.user = 99}), IsEmpty());
  EXPECT_EQ(status, 1);
  EXPECT_THAT(ask({.serverFrom = kLate + 1}), IsEmpty());
  EXPECT_EQ(status, 2);
  ask({});
  source->CloseProcessLogByUser(at.Connection());
  EXPECT_EQ(source->lngCount(), 0);
}

void CheckGetProcessLogsByName(Installation& at) {
  const auto source = at.Create<ProcessLog>();
  std::int32_t status = -1;
  const auto ask = [&](double from, double to, std::string_view name) {
    source->GetProcessLogsByName(at.Connection(), from, to, name, status);
    return Rows("GetProcessLogsByName", *source);
  };
  EXPECT_EQ(ask(kEarly, kLate, "backup"), R"(102|10|backup|46346|46346.125|0|1|1|0|0|0|0|0|
106|10|backup|46343|46343.5|0|1|0|1|0|0|0|0|
)");
  EXPECT_EQ(ask(kEarly, kLate, "BACKUP"), "");
  EXPECT_EQ(status, 0);
  ask(46344, 46346.25, "");
  EXPECT_THAT(Runs(*source), ElementsAre(104, 102, 100, 103));
  EXPECT_EQ(ask(kLate, kEarly, ""), "");
  EXPECT_EQ(status, 2);
  ask(kEarly, kLate, "");
  source->CloseProcessLogsByName(at.Connection());
  EXPECT_EQ(source->lngCount(), 0);
}

void CheckGetProcessLogByTask(Installation& at) {
  const auto source = at.Create<ProcessLog>();
  std::int32_t status = -1;
  const auto ask = [&](std::int32_t run, std::int32_t state) {
    source->GetProcessLogByTask(at.Connection(), run, state, status);
    return Rows("GetProcessLogByTask", *source);
  };
  EXPECT_EQ(ask(kDeployWithAll, 1), R"(46345.25|46345.5|3|aardvark|G-3|Bolt|ba�d|0|-1|-1|0|-1||
46345.25|46345.375|1|alpha|A-1|Acme|done|0|-1|0|0|-1||
)") << "both flags: OK comes first; bytes that are no UTF-8 are replaced; names are those of the time";
  EXPECT_EQ(ask(kDeployWithAll, 5), "0|0|4|Été||||0|0|0|-1|-1||\n");
  EXPECT_EQ(ask(kDeployRunning, 3), "46346.25|0|1|alpha|A-1|Acme||-1|0|0|0|0|Waiting com|\n");
  EXPECT_EQ(ask(kDeployRunning, 4), "0|0|2|Beta|B-2|Acme||0|0|0|0|0||\n");
  EXPECT_EQ(ask(kDeployRunning, 5), "46346.25|46346.5|3|gamma|G-3|Bolt||0|1|0|0|-1||\n");
  EXPECT_EQ(ask(kBackupNoPopulation, 1), "46346|46346.125|0||||nightly|0|-1|0|0|-1||\n");
  EXPECT_EQ(ask(kDeployWithAll, 4), "");
  EXPECT_EQ(status, 0);
  EXPECT_EQ(ask(999, 1), "");
  EXPECT_EQ(status, 1);
  ask(kDeployWithAll, 1);
  source->CloseProcessLogByTask(at.Connection());
  EXPECT_EQ(source->lngCount(), 0);
}

void CheckGetProcessLogDetail(Installation& at) {
  const auto source = at.Create<ProcessLog>();
  std::int32_t status = -1;
  const auto ask = [&](std::int32_t run) {
    source->GetProcessLogDetail(at.Connection(), run, 0, 0, status);
    const ProcessLogDetail& is = source->Detail();
    std::ostringstream text;
    text << std::setprecision(12) << is.lngProcessLogId << '|' << is.strProcessName << '|' << is.dtStartDate << '|'
         << is.dtEndDate << '|' << is.bInProgress << '|' << is.bResultOk << '|' << is.bOnServer << '|' << is.strUserName
         << '|' << is.strStationName;
    return text.str();
  };
  EXPECT_EQ(ask(kBackupOld), "106|backup|46343|46343.5|0|0|-1|Alpha|A-1");
  EXPECT_EQ(ask(kDeployRunning), "101|Deploy|46346.25|0|-1|0|-1||");
  EXPECT_EQ(ask(kArchiveNoDate), "105|Archive|x|0|0|0|-1|0|alpha|A-1");
  EXPECT_EQ(status, 0);
  EXPECT_EQ(ask(999), "0||0|0|0|0|0||");
  EXPECT_EQ(status, 1);
}

void CheckGetTaskRunsByProcessLog(Installation& at) {
  const auto source = at.Create<Quorvel>();
  std::int32_t status = -1;
  const auto ask = [&](std::int32_t run, bool onStation, std::int32_t user) {
    source->GetTaskRunsByProcessLog(at.Connection(), run, onStation, user, status);
    return All(source->Records().lngTaskRunId);
  };
  ask(kDeployWithAll, false, kAlpha);
  EXPECT_EQ(Rows("GetTaskRunsByProcessLog", *source),
            R"(201|21|Copy|Teledistribution|0|1|0|copied|46345.25|46345.3125|0|-1|0|
202|22|Prepare|BatchServer|0|0|0||46345.3125|46345.34375|0|-1|0|
203|23|Check|no such type|-1|1|-1||0|0|0|0|0|
)");
  EXPECT_THAT(ask(kDeployWithAll, false, kBeta), ElementsAre(kCopyOnBeta, kPrepareOnce));
  EXPECT_THAT(ask(kDeployWithAll, false, -1), ElementsAre(kPrepareOnce, kCopyOnAlpha, kCheckOnAlpha, kCopyOnBeta));
  EXPECT_THAT(ask(kBackupNoPopulation, false, 0), ElementsAre(205));
  EXPECT_THAT(ask(kArchiveUnknown, true, kBeta), IsEmpty());
  EXPECT_EQ(status, 0);
  EXPECT_EQ(Rows("GetTaskRunsByProcessLog", *source), "");
  EXPECT_THAT(ask(kDeployWithAll, true, kAlpha), IsEmpty());
  EXPECT_EQ(status, 1);
  ask(kDeployWithAll, false, kAlpha);
  source->CloseTaskRuns(at.Connection());
  EXPECT_EQ(source->lngCount(), 0);
}

void CheckGetStepLogByTaskRun(Installation& at) {
  const auto source = at.Create<StepLog>();
  std::int32_t status = -1;
  const auto ask = [&](std::int32_t task, std::int32_t run, std::int32_t user) {
    source->GetStepLogByTaskRun(at.Connection(), task, run, user, status);
    return All(source->Records().lngStepLogId);
  };
  ask(kCopy, kDeployWithAll, kAlpha);
  EXPECT_EQ(Rows("GetStepLogByTaskRun", *source),
            R"(301|201|Send|a.zip|sent|Communication|46345.25|46345.28125|0|-1|0|5|1|
302|201|Unpack|||Station|46345.28125|46345.3125|0|-1|0|-1|1|
)");
  EXPECT_THAT(ask(kPrepare, kDeployWithAll, kBeta), ElementsAre(303)) << "ran once for all stations";
  EXPECT_THAT(ask(-1, kDeployWithAll, -1), ElementsAre(301, 302, 303));
  EXPECT_THAT(ask(kCheck, kDeployWithAll, -1), IsEmpty());
  EXPECT_EQ(status, 0);
  EXPECT_EQ(Rows("GetStepLogByTaskRun", *source), "");
  EXPECT_THAT(ask(kCopy, kDeployWithAll, kGamma), IsEmpty());
  EXPECT_EQ(status, 1);
  ask(kCopy, kDeployWithAll, kAlpha);
  source->CloseStepLog(at.Connection());
  EXPECT_EQ(source->lngCount(), 0);
}

void CheckGetLabel(Installation& at) {
  const auto source = at.Create<Labels>();
  std::int32_t status = -1;
  const auto ask = [&](std::string_view name) {
    source->GetLabel(at.Connection(), name, status);
    return source->strLabelValue();
  };
  EXPECT_EQ(ask("UseType"), "SERVEUR");
  EXPECT_EQ(ask("EMPTY"), "");
  EXPECT_EQ(status, 0);
  EXPECT_EQ(ask("usetype"), "");
  EXPECT_EQ(status, 1);
}

std::int32_t Stop(Installation& at, bool onStation, std::int32_t run) {
  std::int32_t result = -1;
  at.Create<Current>()->StopExecution(at.Connection(), onStation, run, "", result);
  return result;
}

std::int32_t Notify(Installation& at, std::int32_t run) {
  std::int32_t result = -1;
  at.Create<Labels>()->NotifyStopRequest(at.Connection(), "SRV", run, result);
  return result;
}

void CheckStopExecution(Installation& at) {
  EXPECT_EQ(Stop(at, false, kDeployRunning), 0);
  EXPECT_EQ(Stop(at, false, kDeployRunning), 0) << "asking again is no error";
  const auto runs = at.Create<ProcessLog>();
  std::int32_t status = -1;
  runs->GetProcessLogByProcess(at.Connection(), kDeploy, 0, 0, status);
  EXPECT_GT(runs->Records().dtStopRequested[0], 46000) << "and the run says so";
  EXPECT_EQ(runs->Records().dtStopRequested[1], 0);
  EXPECT_EQ(Stop(at, true, kDeployRunning), 1);
  EXPECT_EQ(Stop(at, false, kDeployWithAll), 1) << "it ended";
  EXPECT_EQ(Stop(at, false, 999), 1);
}

void CheckNotifyStopRequest(Installation& at) {
  EXPECT_EQ(Notify(at, kDeployRunning), 1) << "nobody asked yet";
  EXPECT_EQ(Stop(at, false, kDeployRunning), 0);
  EXPECT_EQ(Notify(at, kDeployRunning), 0);
}

constexpr QueryCase kRunCases[] = {
    {"GetProcessLogs", CheckGetProcessLogs},
    {"GetProcessLogByProcess", CheckGetProcessLogByProcess},
    {"GetProcessLogByUser", CheckGetProcessLogByUser},
    {"GetProcessLogsByName", CheckGetProcessLogsByName},
    {"GetProcessLogByTask", CheckGetProcessLogByTask},
    {"GetProcessLogDetail", CheckGetProcessLogDetail},
    {"GetTaskRunsByProcessLog", CheckGetTaskRunsByProcessLog},
    {"GetStepLogByTaskRun", CheckGetStepLogByTaskRun},
    {"GetLabel", CheckGetLabel},
    {"NotifyStopRequest", CheckNotifyStopRequest},
    {"StopExecution", CheckStopExecution},
};

}  // namespace

const QueryCase* CaseOf(std::string_view query) {
  for (const std::span<const QueryCase> cases :
       {std::span<const QueryCase>(kRunCases), ConnectionCases(), LogCases()}) {
    const auto found = std::ranges::find(cases, query, &QueryCase::query);
    if (found != cases.end()) return &*found;
  }
  return nullptr;
}

}  // namespace quorvel::test
