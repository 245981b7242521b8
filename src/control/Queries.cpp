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

std::optional<datasource::ProcessLogDetail> ucProcessLog::AskRunDetail(std::int32_t run) {
  datasource::ProcessLog& source = ProcessLogSource();
  std::int32_t status = 0;
  source.GetProcessLogDetail(f_lngConnect, run, kReserved, kReserved, status);
  return status == 0 ? std::optional(source.Detail()) : std::nullopt;
}

datasource::Answer<datasource::TaskRunRecords> ucProcessLog::AskTasks(const tree::PartOfRun& part) {
  datasource::Quorvel& source = TaskRunSource();
  std::int32_t status = 0;
  source.GetTaskRunsByProcessLog(f_lngConnect, part.run, part.onStation, part.user, status);
  auto answer = datasource::TakeAnswer(source, status);
  source.CloseTaskRuns(f_lngConnect);
  return answer;
}

// This class lives for one question, as do those of the backups.
datasource::Answer<datasource::StepLogRecords> ucProcessLog::AskSteps(const tree::TaskOfRun& task) {
  const auto source = datasource::CreateRecordSource<datasource::StepLog>(factory_, f_strServerName);
  std::int32_t status = 0;
  source->GetStepLogByTaskRun(f_lngConnect, task.task, task.run, task.user, status);
  auto answer = datasource::TakeAnswer(*source, status);
  source->CloseStepLog(f_lngConnect);
  return answer;
}

ucProcessLog::CommandLogAnswer ucProcessLog::AskCommands(std::int32_t stepLog) {
  datasource::CommandLog& source = CommandLogSource();
  std::int32_t status = 0;
  source.GetCommandLogByStepLog(f_lngConnect, stepLog, status);
  auto answer = datasource::TakeAnswer(source, status);
  source.CloseCommandLogByStepLog(f_lngConnect);
  return answer;
}

ucProcessLog::CommandLogAnswer ucProcessLog::AskDaysOfConnections(StateFilter state) {
  datasource::CommandLog& source = CommandLogSource();
  std::int32_t status = 0;
  // The newest connection of each station has no period.
  const util::Period period = state == StateFilter::kLastExecution ? util::Period{} : shown_.filter.period();
  source.GetCommunicationsByMonth(f_lngConnect, period.from, period.to, static_cast<std::int32_t>(state), shown_.userId,
                                  status);
  auto answer = datasource::TakeAnswer(source, status);
  source.CloseCommunicationsByMonth(f_lngConnect);
  return answer;
}

ucProcessLog::CommandLogAnswer ucProcessLog::AskConnections(const util::Period& period, bool failedOnly) {
  datasource::CommandLog& source = CommandLogSource();
  std::int32_t status = 0;
  source.GetCommunications(f_lngConnect, period.from, period.to, static_cast<std::int32_t>(shown_.filter.state),
                           shown_.userId, failedOnly ? 1 : 0, status);
  auto answer = datasource::TakeAnswer(source, status);
  source.CloseCommunications(f_lngConnect);
  return answer;
}

ucProcessLog::CommandLogAnswer ucProcessLog::AskCommandsOfConnection(std::int32_t communication) {
  datasource::CommandLog& source = CommandLogSource();
  std::int32_t status = 0;
  source.GetCommandLogByCommunication(f_lngConnect, communication, status);
  auto answer = datasource::TakeAnswer(source, status);
  source.CloseCommandLogByCommunication(f_lngConnect);
  return answer;
}

datasource::Answer<datasource::AlarmsLogRecords> ucProcessLog::AskAlarms() {
  datasource::AlarmsLog& source = AlarmsSource();
  std::int32_t status = 0;
  source.GetAlarms(f_lngConnect, shown_.alarmId, kReserved, status);
  auto answer = datasource::TakeAnswer(source, status);
  source.CloseAlarms(f_lngConnect);
  return answer;
}

datasource::Answer<datasource::AlarmsLogRecords> ucProcessLog::AskAlarmsOfDay(const tree::AlarmsOfNode& wanted) {
  constexpr std::int32_t kActiveAndAcknowledged = -1;
  datasource::AlarmsLog& source = AlarmsSource();
  std::int32_t status = 0;
  source.GetAlarmsByDay(f_lngConnect, wanted.day, wanted.owner, kActiveAndAcknowledged, status);
  auto answer = datasource::TakeAnswer(source, status);
  source.CloseAlarmsByDay(f_lngConnect);
  return answer;
}

datasource::Answer<datasource::SavesRecords> ucProcessLog::AskSaves(const tree::BackupsOfNode& wanted) {
  const auto source = datasource::CreateRecordSource<datasource::Saves>(factory_, f_strServerName);
  std::int32_t status = 0;
  source->GetSaves(f_lngConnect, wanted.onStation, wanted.user, wanted.period.from, wanted.period.to, status);
  auto answer = datasource::TakeAnswer(*source, status);
  source->CloseSaves(f_lngConnect);
  return answer;
}

datasource::Answer<datasource::SavesRecords> ucProcessLog::AskSaveFiles(std::int32_t save) {
  const auto source = datasource::CreateRecordSource<datasource::Saves>(factory_, f_strServerName);
  constexpr std::int32_t kAllFiles = 0;  // the state says which backups are shown, and of these all
  std::int32_t status = 0;
  source->GetSaveFiles(f_lngConnect, save, kAllFiles, "", status);
  auto answer = datasource::TakeAnswer(*source, status);
  source->CloseSaveFiles(f_lngConnect);
  return answer;
}

datasource::Answer<datasource::UsersImportRecords> ucProcessLog::AskImports(std::int32_t importId) {
  datasource::UsersImport& source = ImportSource();
  std::int32_t status = 0;
  source.GetUsersImports(f_lngConnect, importId, status);
  auto answer = datasource::TakeAnswer(source, status);
  source.CloseUsersImports(f_lngConnect);
  return answer;
}

datasource::Answer<datasource::UsersImportRecords> ucProcessLog::AskImportRuns(const tree::ImportPart& part) {
  datasource::UsersImport& source = ImportSource();
  std::int32_t status = 0;
  source.GetUsersImportByProcess(f_lngConnect, part.import, part.name, part.process, part.run, status);
  auto answer = datasource::TakeAnswer(source, status);
  source.CloseUsersImportByProcess(f_lngConnect);
  return answer;
}

// Lives for one question too, and has no release.
datasource::Answer<datasource::TaskSchedulerLogRecords> ucProcessLog::AskSystemLogs() {
  constexpr std::int32_t kSchedulersLog = 3;  // a kind of log, no level
  const auto source = datasource::CreateRecordSource<datasource::TaskSchedulerLog>(factory_, f_strServerName);
  std::int32_t status = 0;
  source->GetTaskSchedulerLogs(f_lngConnect, shown_.filter.start, shown_.filter.end, kSchedulersLog,
                               static_cast<std::int32_t>(shown_.filter.state), shown_.companyId, status);
  return datasource::TakeAnswer(*source, status);
}

}  // namespace quorvel
