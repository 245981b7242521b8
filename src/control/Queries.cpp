// The questions that the views ask of the record sources. An answer is taken before the tree or the list hears of it:
// no component works while either of them changes.
#include "control/ucProcessLog.h"

namespace quorvel {
namespace {

constexpr std::int32_t kReserved = 0;

}  // namespace

ucProcessLog::ProcessLogAnswer ucProcessLog::AskProcesses() {
  datasource::ProcessLog& source = ProcessLogSource();
  std::int32_t status = 0;
  source.GetProcessLogs(f_lngConnect, shown_.filter.start, shown_.filter.end,
                        static_cast<std::int32_t>(shown_.filter.state), shown_.processId, shown_.userId,
                        shown_.companyId, kReserved, kReserved, status);
  auto answer = datasource::TakeAnswer(source, status);
  source.CloseProcessLogs(f_lngConnect);
  return answer;
}

ucProcessLog::ProcessLogAnswer ucProcessLog::AskRuns(std::int32_t processId) {
  datasource::ProcessLog& source = ProcessLogSource();
  std::int32_t status = 0;
  source.GetProcessLogByProcess(f_lngConnect, processId, kReserved, kReserved, status);
  auto answer = datasource::TakeAnswer(source, status);
  source.CloseProcessLogs(f_lngConnect);
  return answer;
}

// One period serves the runs on the server and those on stations.
ucProcessLog::ProcessLogAnswer ucProcessLog::AskParts(std::int32_t processId, std::int32_t userId) {
  constexpr std::int32_t kServerAndStations = -1;
  const OptionsFilter& filter = shown_.filter;
  datasource::ProcessLog& source = ProcessLogSource();
  std::int32_t status = 0;
  source.GetProcessLogByUser(f_lngConnect, filter.start, filter.end, filter.start, filter.end,
                             static_cast<std::int32_t>(filter.state), processId, userId, shown_.companyId,
                             kServerAndStations, status);
  auto answer = datasource::TakeAnswer(source, status);
  source.CloseProcessLogByUser(f_lngConnect);
  return answer;
}

ucProcessLog::ProcessLogAnswer ucProcessLog::AskStations(std::int32_t run, std::int32_t state) {
  datasource::ProcessLog& source = ProcessLogSource();
  std::int32_t status = 0;
  source.GetProcessLogByTask(f_lngConnect, run, state, status);
  auto answer = datasource::TakeAnswer(source, status);
  source.CloseProcessLogByTask(f_lngConnect);
  return answer;
}

datasource::Answer<datasource::TaskRunRecords> ucProcessLog::AskTasks(const tree::PartOfRun& part) {
  datasource::Quorvel& source = TaskRunSource();
  std::int32_t status = 0;
  source.GetTaskRunsByProcessLog(f_lngConnect, part.run, part.onStation, part.user, status);
  auto answer = datasource::TakeAnswer(source, status);
  source.CloseTaskRuns(f_lngConnect);
  return answer;
}

// This class lives for one question.
datasource::Answer<datasource::StepLogRecords> ucProcessLog::AskSteps(const tree::TaskOfRun& task) {
  const auto source = datasource::CreateRecordSource<datasource::StepLog>(factory_, f_strServerName);
  std::int32_t status = 0;
  source->GetStepLogByTaskRun(f_lngConnect, task.task, task.run, task.user, status);
  auto answer = datasource::TakeAnswer(*source, status);
  source->CloseStepLog(f_lngConnect);
  return answer;
}

datasource::Answer<datasource::CommandLogRecords> ucProcessLog::AskCommands(std::int32_t stepLog) {
  datasource::CommandLog& source = CommandLogSource();
  std::int32_t status = 0;
  source.GetCommandLogByStepLog(f_lngConnect, stepLog, status);
  auto answer = datasource::TakeAnswer(source, status);
  source.CloseCommandLogByStepLog(f_lngConnect);
  return answer;
}

}  // namespace quorvel
