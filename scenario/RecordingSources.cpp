#include "scenario/RecordingSources.h"

#include <cstdint>
#include <string>
#include <utility>

#include "datasource/AlarmsLog.h"
#include "datasource/CommandLog.h"
#include "datasource/Current.h"
#include "datasource/Labels.h"
#include "datasource/ProcessLog.h"
#include "datasource/Quorvel.h"
#include "datasource/Saves.h"
#include "datasource/StepLog.h"
#include "datasource/TaskSchedulerLog.h"
#include "datasource/UsersImport.h"

namespace quorvel::scenario {
namespace {

using namespace datasource;  // NOLINT(google-build-using-namespace): this file wraps every class of that layer

// What all wrappers share. A release and a destruction are journal lines too: what is created and queried must go.
template <class Wrapped>
class Recorded : public Wrapped {
 public:
  using Source = Wrapped;

  Recorded(std::unique_ptr<Source> inner, CallRecorder& calls) : inner_(std::move(inner)), calls_(calls) {}
  ~Recorded() override { calls_.Note("destroy " + std::string(Source::kClassIdentifier)); }
  Recorded(const Recorded&) = delete;
  Recorded& operator=(const Recorded&) = delete;

  std::int32_t lngCount() const override { return Read("lngCount").lngCount(); }

 protected:
  // The source, for a reading call of that name: too frequent for the journal, but it may fail like any other.
  const Source& Read(std::string_view name) const {
    calls_.faults().Use(name);
    return *inner_;
  }

  template <class Method, class... Arguments>
  void Query(std::string_view name, Method method, std::int32_t& status, std::int32_t connection,
             const Arguments&... arguments) {
    calls_.Run(
        name, Joined(connection, arguments...),
        [&] { (inner_.get()->*method)(calls_.IndexOf(connection), arguments..., status); }, &status);
  }

  template <class Method>
  void Release(std::string_view name, Method method, std::int32_t connection) {
    calls_.Run(name, Joined(connection), [&] { (inner_.get()->*method)(calls_.IndexOf(connection)); });
  }

 private:
  template <class... Arguments>
  static std::string Joined(const Arguments&... arguments) {
    std::string text;
    ((text.append(text.empty() ? "" : ", ").append(ArgumentText(arguments))), ...);
    return text;
  }

  std::unique_ptr<Source> inner_;
  CallRecorder& calls_;
};

class RecordedProcessLog : public Recorded<ProcessLog> {
 public:
  using Recorded::Recorded;
  void GetProcessLogs(std::int32_t connection, DateValue dateFrom, DateValue dateTo, std::int32_t stateCode,
                      std::int32_t processId, std::int32_t userId, std::int32_t companyId, std::int32_t reserved1,
                      std::int32_t reserved2, std::int32_t& status) override {
    Query("GetProcessLogs", &ProcessLog::GetProcessLogs, status, connection, dateFrom, dateTo, stateCode, processId,
          userId, companyId, reserved1, reserved2);
  }
  void CloseProcessLogs(std::int32_t connection) override {
    Release("CloseProcessLogs", &ProcessLog::CloseProcessLogs, connection);
  }
  void GetProcessLogByProcess(std::int32_t connection, std::int32_t processId, std::int32_t reserved1,
                              std::int32_t reserved2, std::int32_t& status) override {
    Query("GetProcessLogByProcess", &ProcessLog::GetProcessLogByProcess, status, connection, processId, reserved1,
          reserved2);
  }
  void GetProcessLogByUser(std::int32_t connection, DateValue serverFrom, DateValue serverTo, DateValue stationFrom,
                           DateValue stationTo, std::int32_t stateCode, std::int32_t processId, std::int32_t userId,
                           std::int32_t companyId, std::int32_t onStation, std::int32_t& status) override {
    Query("GetProcessLogByUser", &ProcessLog::GetProcessLogByUser, status, connection, serverFrom, serverTo,
          stationFrom, stationTo, stateCode, processId, userId, companyId, onStation);
  }
  void CloseProcessLogByUser(std::int32_t connection) override {
    Release("CloseProcessLogByUser", &ProcessLog::CloseProcessLogByUser, connection);
  }
  void GetProcessLogsByName(std::int32_t connection, DateValue dateFrom, DateValue dateTo, std::string_view processName,
                            std::int32_t& status) override {
    Query("GetProcessLogsByName", &ProcessLog::GetProcessLogsByName, status, connection, dateFrom, dateTo, processName);
  }
  void CloseProcessLogsByName(std::int32_t connection) override {
    Release("CloseProcessLogsByName", &ProcessLog::CloseProcessLogsByName, connection);
  }
  void GetProcessLogByTask(std::int32_t connection, std::int32_t processLogId, std::int32_t state,
                           std::int32_t& status) override {
    Query("GetProcessLogByTask", &ProcessLog::GetProcessLogByTask, status, connection, processLogId, state);
  }
  void CloseProcessLogByTask(std::int32_t connection) override {
    Release("CloseProcessLogByTask", &ProcessLog::CloseProcessLogByTask, connection);
  }
  void GetProcessLogDetail(std::int32_t connection, std::int32_t processLogId, std::int32_t reserved1,
                           std::int32_t reserved2, std::int32_t& status) override {
    Query("GetProcessLogDetail", &ProcessLog::GetProcessLogDetail, status, connection, processLogId, reserved1,
          reserved2);
  }
  const ProcessLogRecords& Records() const override { return Read("Records").Records(); }
  const ProcessLogDetail& Detail() const override { return Read("Detail").Detail(); }
};

class RecordedTaskRuns : public Recorded<Quorvel> {
 public:
  using Recorded::Recorded;
  void GetTaskRunsByProcessLog(std::int32_t connection, std::int32_t processLogId, bool onStation, std::int32_t userId,
                               std::int32_t& status) override {
    Query("GetTaskRunsByProcessLog", &Quorvel::GetTaskRunsByProcessLog, status, connection, processLogId, onStation,
          userId);
  }
  void CloseTaskRuns(std::int32_t connection) override {
    Release("CloseTaskRuns", &Quorvel::CloseTaskRuns, connection);
  }
  const TaskRunRecords& Records() const override { return Read("Records").Records(); }
};

class RecordedStepLog : public Recorded<StepLog> {
 public:
  using Recorded::Recorded;
  void GetStepLogByTaskRun(std::int32_t connection, std::int32_t taskId, std::int32_t processLogId, std::int32_t userId,
                           std::int32_t& status) override {
    Query("GetStepLogByTaskRun", &StepLog::GetStepLogByTaskRun, status, connection, taskId, processLogId, userId);
  }
  void CloseStepLog(std::int32_t connection) override { Release("CloseStepLog", &StepLog::CloseStepLog, connection); }
  const StepLogRecords& Records() const override { return Read("Records").Records(); }
};

class RecordedCommandLog : public Recorded<CommandLog> {
 public:
  using Recorded::Recorded;
  void GetCommunications(std::int32_t connection, DateValue dateFrom, DateValue dateTo, std::int32_t stateCode,
                         std::int32_t userId, std::int32_t failedOnly, std::int32_t& status) override {
    Query("GetCommunications", &CommandLog::GetCommunications, status, connection, dateFrom, dateTo, stateCode, userId,
          failedOnly);
  }
  void CloseCommunications(std::int32_t connection) override {
    Release("CloseCommunications", &CommandLog::CloseCommunications, connection);
  }
  void GetCommunicationsByMonth(std::int32_t connection, DateValue dateFrom, DateValue dateTo, std::int32_t stateCode,
                                std::int32_t userId, std::int32_t& status) override {
    Query("GetCommunicationsByMonth", &CommandLog::GetCommunicationsByMonth, status, connection, dateFrom, dateTo,
          stateCode, userId);
  }
  void CloseCommunicationsByMonth(std::int32_t connection) override {
    Release("CloseCommunicationsByMonth", &CommandLog::CloseCommunicationsByMonth, connection);
  }
  void GetCommandLogByCommunication(std::int32_t connection, std::int32_t communicationId,
                                    std::int32_t& status) override {
    Query("GetCommandLogByCommunication", &CommandLog::GetCommandLogByCommunication, status, connection,
          communicationId);
  }
  void CloseCommandLogByCommunication(std::int32_t connection) override {
    Release("CloseCommandLogByCommunication", &CommandLog::CloseCommandLogByCommunication, connection);
  }
  void GetCommandLogByStepLog(std::int32_t connection, std::int32_t stepLogId, std::int32_t& status) override {
    Query("GetCommandLogByStepLog", &CommandLog::GetCommandLogByStepLog, status, connection, stepLogId);
  }
  void CloseCommandLogByStepLog(std::int32_t connection) override {
    Release("CloseCommandLogByStepLog", &CommandLog::CloseCommandLogByStepLog, connection);
  }
  const CommandLogRecords& Records() const override { return Read("Records").Records(); }
};

class RecordedAlarmsLog : public Recorded<AlarmsLog> {
 public:
  using Recorded::Recorded;
  void GetAlarms(std::int32_t connection, std::int32_t alarmId, std::int32_t reserved, std::int32_t& status) override {
    Query("GetAlarms", &AlarmsLog::GetAlarms, status, connection, alarmId, reserved);
  }
  void CloseAlarms(std::int32_t connection) override { Release("CloseAlarms", &AlarmsLog::CloseAlarms, connection); }
  void GetAlarmsByDay(std::int32_t connection, DateValue day, std::int32_t ownerId, std::int32_t state,
                      std::int32_t& status) override {
    Query("GetAlarmsByDay", &AlarmsLog::GetAlarmsByDay, status, connection, day, ownerId, state);
  }
  void CloseAlarmsByDay(std::int32_t connection) override {
    Release("CloseAlarmsByDay", &AlarmsLog::CloseAlarmsByDay, connection);
  }
  void AcknowledgeAlarms(std::int32_t connection, std::span<const std::int32_t> alarmIds, std::string_view userName,
                         std::int32_t& status) override {
    Query("AcknowledgeAlarms", &AlarmsLog::AcknowledgeAlarms, status, connection, alarmIds, userName);
  }
  void ActivateAlarms(std::int32_t connection, std::span<const std::int32_t> alarmIds, std::int32_t& status) override {
    Query("ActivateAlarms", &AlarmsLog::ActivateAlarms, status, connection, alarmIds);
  }
  const AlarmsLogRecords& Records() const override { return Read("Records").Records(); }
};

class RecordedSaves : public Recorded<Saves> {
 public:
  using Recorded::Recorded;
  void GetSaves(std::int32_t connection, std::int32_t onStation, std::int32_t userId, DateValue dateFrom,
                DateValue dateTo, std::int32_t& status) override {
    Query("GetSaves", &Saves::GetSaves, status, connection, onStation, userId, dateFrom, dateTo);
  }
  void CloseSaves(std::int32_t connection) override { Release("CloseSaves", &Saves::CloseSaves, connection); }
  void GetSaveFiles(std::int32_t connection, std::int32_t saveId, std::int32_t failedOnly, std::string_view nameFilter,
                    std::int32_t& status) override {
    Query("GetSaveFiles", &Saves::GetSaveFiles, status, connection, saveId, failedOnly, nameFilter);
  }
  void CloseSaveFiles(std::int32_t connection) override {
    Release("CloseSaveFiles", &Saves::CloseSaveFiles, connection);
  }
  const SavesRecords& Records() const override { return Read("Records").Records(); }
};

class RecordedUsersImport : public Recorded<UsersImport> {
 public:
  using Recorded::Recorded;
  void GetUsersImports(std::int32_t connection, std::int32_t importId, std::int32_t& status) override {
    Query("GetUsersImports", &UsersImport::GetUsersImports, status, connection, importId);
  }
  void CloseUsersImports(std::int32_t connection) override {
    Release("CloseUsersImports", &UsersImport::CloseUsersImports, connection);
  }
  void GetUsersImportByProcess(std::int32_t connection, std::int32_t importId, std::string_view name,
                               std::int32_t processId, std::int32_t importLogId, std::int32_t& status) override {
    Query("GetUsersImportByProcess", &UsersImport::GetUsersImportByProcess, status, connection, importId, name,
          processId, importLogId);
  }
  void CloseUsersImportByProcess(std::int32_t connection) override {
    Release("CloseUsersImportByProcess", &UsersImport::CloseUsersImportByProcess, connection);
  }
  const UsersImportRecords& Records() const override { return Read("Records").Records(); }
};

class RecordedTaskSchedulerLog : public Recorded<TaskSchedulerLog> {
 public:
  using Recorded::Recorded;
  void GetTaskSchedulerLogs(std::int32_t connection, DateValue dateFrom, DateValue dateTo, std::int32_t kind,
                            std::int32_t stateCode, std::int32_t companyId, std::int32_t& status) override {
    Query("GetTaskSchedulerLogs", &TaskSchedulerLog::GetTaskSchedulerLogs, status, connection, dateFrom, dateTo, kind,
          stateCode, companyId);
  }
  const TaskSchedulerLogRecords& Records() const override { return Read("Records").Records(); }
};

class RecordedLabels : public Recorded<Labels> {
 public:
  using Recorded::Recorded;
  void GetLabel(std::int32_t connection, std::string_view name, std::int32_t& status) override {
    Query("GetLabel", &Labels::GetLabel, status, connection, name);
  }
  const std::string& strLabelValue() const override { return Read("strLabelValue").strLabelValue(); }
  void NotifyStopRequest(std::int32_t connection, std::string_view serverName, std::int32_t processLogId,
                         std::int32_t& result) override {
    Query("NotifyStopRequest", &Labels::NotifyStopRequest, result, connection, serverName, processLogId);
  }
};

class RecordedCurrent : public Recorded<Current> {
 public:
  using Recorded::Recorded;
  void StopExecution(std::int32_t connection, bool onStation, std::int32_t processLogId, std::string_view reserved,
                     std::int32_t& result) override {
    Query("StopExecution", &Current::StopExecution, result, connection, onStation, processLogId, reserved);
  }
};

// Wraps an object that answers as the wrapper's class; leaves any other as it is.
template <class Wrapper>
void WrapAs(std::unique_ptr<RecordSource>& made, CallRecorder& calls) {
  using Source = typename Wrapper::Source;
  auto* const source = dynamic_cast<Source*>(made.get());
  if (source == nullptr) return;
  static_cast<void>(made.release());  // it is the wrapper's now
  made = std::make_unique<Wrapper>(std::unique_ptr<Source>(source), calls);
}

template <class... Wrappers>
void WrapAsOneOf(std::unique_ptr<RecordSource>& made, std::string_view classIdentifier, CallRecorder& calls) {
  ((classIdentifier == Wrappers::Source::kClassIdentifier ? WrapAs<Wrappers>(made, calls) : void()), ...);
}

}  // namespace

std::unique_ptr<RecordSource> RecordingFactory::Create(std::string_view classIdentifier, std::string_view serverName) {
  std::unique_ptr<RecordSource> made;
  const std::string_view className = classIdentifier.substr(classIdentifier.find('.') + 1);
  calls_.Run("Create" + std::string(className), ArgumentText(serverName),
             [&] { made = inner_.Create(classIdentifier, serverName); });
  WrapAsOneOf<RecordedProcessLog, RecordedTaskRuns, RecordedStepLog, RecordedCommandLog, RecordedAlarmsLog,
              RecordedSaves, RecordedUsersImport, RecordedTaskSchedulerLog, RecordedLabels, RecordedCurrent>(
      made, classIdentifier, calls_);
  return made;
}

}  // namespace quorvel::scenario
