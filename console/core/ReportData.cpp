#include "console_core/ReportData.h"

#include <algorithm>
#include <limits>
#include <map>
#include <memory>
#include <set>
#include <utility>

#include "datasource/CommandLog.h"
#include "datasource/ProcessLog.h"
#include "datasource/Quorvel.h"
#include "datasource/StepLog.h"
#include "list/Classification.h"
#include "list/CommandList.h"
#include "list/RunList.h"
#include "list/StationRecord.h"
#include "list/StepList.h"
#include "list/TaskList.h"
#include "util/PublicFunctions.h"
#include "util/PublicOstrana.h"

namespace quorvel::console {
namespace {

using datasource::Answer;
using datasource::ProcessLogRecords;

constexpr std::int32_t kReserved = 0;

struct RunKey {
  std::int32_t process = 0;
  std::int32_t run = 0;
};

RunKey ReadRunKey(std::string_view key) {
  if (!list::IsCurrentProcessName(key)) {
    throw Error(SystemError::kInvalidCall, "\"" + std::string(key) + "\" is not the key of a run");
  }
  return {util::IdentifiantNumber(key, 2), util::IdentifiantNumber(key, 4)};
}

std::vector<RunKey> ReadRunKeys(std::string_view keys) {
  constexpr std::string_view kBetweenKeys = ";";
  std::vector<RunKey> runs;
  for (std::size_t from = 0; from <= keys.size();) {
    const std::size_t end = std::min(keys.find(kBetweenKeys, from), keys.size());
    runs.push_back(ReadRunKey(keys.substr(from, end - from)));
    from = end + kBetweenKeys.size();
  }
  return runs;
}

// The text, cut between two characters where it is too long.
std::string Excerpt(std::string_view text) {
  if (text.size() <= kMostTextBytes) return std::string(text);
  std::size_t end = kMostTextBytes;
  while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0U) == 0x80U) --end;
  return std::string(text.substr(0, end)) + "\n[" + std::to_string(text.size() - end) + " more bytes]";
}

// The rows that a list marks as failed.
std::vector<std::size_t> FailedRows(const list::Rows& rows) {
  std::vector<std::size_t> failed;
  for (std::size_t row = 0; rows && row < rows->Count(); ++row) {
    if (rows->Look(row) == list::ErrorLook(true)) failed.push_back(row);
  }
  return failed;
}

list::StationCounts CountsOf(const ProcessLogRecords& records, std::size_t row) {
  return {.total = records.lngStations[row],
          .notExecuted = records.lngNotExecuted[row],
          .inProgress = records.lngInProgress[row],
          .notOk = records.lngNotOk[row],
          .ok = records.lngOk[row],
          .unknown = records.lngUnknown[row]};
}

// Asks the record sources what a report needs.
class Reader {
 public:
  Reader(datasource::RecordSourceFactory& factory, std::int32_t connection, const Platform& platform)
      : connection_(connection),
        platform_(platform),
        processLog_(datasource::CreateRecordSource<datasource::ProcessLog>(factory, "")),
        taskRuns_(datasource::CreateRecordSource<datasource::Quorvel>(factory, "")),
        stepLog_(datasource::CreateRecordSource<datasource::StepLog>(factory, "")),
        commandLog_(datasource::CreateRecordSource<datasource::CommandLog>(factory, "")) {}

  RunReport Read(const RunKey& key) {
    RunReport report{.run = key.run};
    const auto& [runs, count] = RunsOf(key.process);
    const auto ids = runs.lngProcessLogId.values();
    const auto found = std::ranges::find(ids, key.run);
    if (count < 1 || found == ids.end()) return report;
    const auto row = static_cast<std::size_t>(found - ids.begin());
    TellRun(runs, row, report);
    if (report.counts.notOk > 0) ReadStations(key.run, runs.bRunOnStation[row] != 0, report);
    return report;
  }

 private:
  // Runs that are told together mostly are of one process.
  const Answer<ProcessLogRecords>& RunsOf(std::int32_t process) {
    const auto known = runs_.find(process);
    if (known != runs_.end()) return known->second;
    std::int32_t status = 0;
    processLog_->GetProcessLogByProcess(connection_, process, kReserved, kReserved, status);
    auto answer = datasource::TakeAnswer(*processLog_, status);
    processLog_->CloseProcessLogs(connection_);
    return runs_.emplace(process, std::move(answer)).first->second;
  }

  void TellRun(const ProcessLogRecords& runs, std::size_t row, RunReport& report) const {
    report.inHistory = true;
    report.process = runs.strProcessName[row];
    report.place = util::strGetExecuteWhereName(runs.bRunOnStation[row] != 0 ? "Station" : "Server");
    report.start = runs.dtStartDate[row];
    report.end = runs.dtEndDate[row];
    report.counts = CountsOf(runs, row);
    report.duration = list::DurationText(report.start, report.end, report.counts.inProgress > 0, platform_.Now());
  }

  void ReadStations(std::int32_t run, bool onStation, RunReport& report) {
    std::int32_t status = 0;
    processLog_->GetProcessLogByTask(connection_, run, static_cast<std::int32_t>(list::StateGroup::kNotOk), status);
    const auto [stations, count] = datasource::TakeAnswer(*processLog_, status);
    processLog_->CloseProcessLogByTask(connection_);
    const std::size_t most = std::min({static_cast<std::size_t>(std::max(count, 0)), kMostStations, stationsLeft_});
    stationsLeft_ -= most;
    std::set<std::int32_t> sharedTasks;
    for (std::size_t row = 0; row < most; ++row) {
      FailedStation& station = report.stations.emplace_back();
      station.name = list::StationName(stations, row);
      station.identifier = stations.strIdentifier[row];
      station.company = stations.strCompany[row];
      station.report = Excerpt(stations.strReport[row]);
      station.start = stations.dtStartDate[row];
      station.end = stations.dtEndDate[row];
      ReadTasks(run, onStation, stations.lngUserId[row], sharedTasks, report);
    }
  }

  // Into the last station of the report; what ran once for all stations goes beside them, the first time that it is
  // met. A run without a population has one station, whose tasks all ran once.
  void ReadTasks(std::int32_t run, bool onStation, std::int32_t user, std::set<std::int32_t>& sharedTasks,
                 RunReport& report) {
    constexpr bool kServerMode = true;  // decides on icons alone
    std::int32_t status = 0;
    taskRuns_->GetTaskRunsByProcessLog(connection_, run, onStation, user, status);
    const auto [tasks, count] = datasource::TakeAnswer(*taskRuns_, status);
    taskRuns_->CloseTaskRuns(connection_);
    for (const std::size_t row : FailedRows(list::TaskListRows(tasks, count, "", platform_, kServerMode))) {
      const bool shared = tasks.lngStationScope[row] == 0 && user != 0;
      if (shared && !sharedTasks.insert(tasks.lngTaskRunId[row]).second) continue;
      FailedTask& task = (shared ? report.sharedTasks : report.stations.back().tasks).emplace_back();
      task.name = tasks.strTaskName[row];
      task.report = Excerpt(tasks.strReport[row]);
      ReadSteps(tasks.lngTaskId[row], run, user, task);
    }
  }

  void ReadSteps(std::int32_t taskId, std::int32_t run, std::int32_t user, FailedTask& task) {
    std::int32_t status = 0;
    stepLog_->GetStepLogByTaskRun(connection_, taskId, run, user, status);
    const auto [steps, count] = datasource::TakeAnswer(*stepLog_, status);
    stepLog_->CloseStepLog(connection_);
    for (const std::size_t row : FailedRows(list::StepListRows(steps, count, "", platform_))) {
      FailedStep& step = task.steps.emplace_back();
      step.name = steps.strStepName[row];
      step.settings = Excerpt(steps.strSettings[row]);
      step.report = Excerpt(steps.strReport[row]);
      ReadCommands(steps.lngStepLogId[row], step);
    }
  }

  void ReadCommands(std::int32_t stepLog, FailedStep& step) {
    std::int32_t status = 0;
    commandLog_->GetCommandLogByStepLog(connection_, stepLog, status);
    const auto [commands, count] = datasource::TakeAnswer(*commandLog_, status);
    commandLog_->CloseCommandLogByStepLog(connection_);
    std::vector<std::size_t> failed = FailedRows(list::CommandListRows(commands, count, "", platform_));
    const std::size_t most = std::min(failed.size(), kMostCommands);
    step.commandsLeftOut = failed.size() - most;
    failed.resize(most);
    for (const std::size_t row : failed) {
      step.commands.push_back(
          {Excerpt(commands.strText[row]), commands.lngResult[row], Excerpt(commands.strReport[row])});
    }
  }

  std::int32_t connection_;
  const Platform& platform_;
  std::unique_ptr<datasource::ProcessLog> processLog_;
  std::unique_ptr<datasource::Quorvel> taskRuns_;
  std::unique_ptr<datasource::StepLog> stepLog_;
  std::unique_ptr<datasource::CommandLog> commandLog_;
  std::map<std::int32_t, Answer<ProcessLogRecords>> runs_;  // by process
  std::size_t stationsLeft_ = kMostStationsInAll;
};

}  // namespace

ReportData CollectReport(datasource::RecordSourceFactory& factory, std::int32_t connection, const Platform& platform,
                         std::string_view keys) {
  std::vector<RunKey> runs = ReadRunKeys(keys);
  ReportData data{.made = platform.Now()};
  const std::size_t most = std::min(runs.size(), kMostRuns);
  data.runsLeftOut = runs.size() - most;
  runs.resize(most);
  Reader reader(factory, connection, platform);
  for (const RunKey& each : runs) data.runs.push_back(reader.Read(each));
  return data;
}

}  // namespace quorvel::console
