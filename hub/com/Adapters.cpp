// The ten classes of the contract over COM.
#include "hub_com/Adapters.h"

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
#include "hub_com/AdapterBase.h"
#include "hub_com/DetailFields.h"

namespace quorvel::hub_com {
namespace {

using namespace datasource;  // NOLINT(google-build-using-namespace): this file adapts every class of that layer

class ProcessLogOverCom final : public AdapterBase<ProcessLog, ProcessLogRecords> {
 public:
  using AdapterBase::AdapterBase;

  void GetProcessLogs(std::int32_t connection, DateValue dateFrom, DateValue dateTo, std::int32_t stateCode,
                      std::int32_t processId, std::int32_t userId, std::int32_t companyId, std::int32_t reserved1,
                      std::int32_t reserved2, std::int32_t& status) override {
    Query("GetProcessLogs", status, connection, dateFrom, dateTo, stateCode, processId, userId, companyId, reserved1,
          reserved2);
  }
  void CloseProcessLogs(std::int32_t connection) override { Release("CloseProcessLogs", connection); }
  void GetProcessLogByProcess(std::int32_t connection, std::int32_t processId, std::int32_t reserved1,
                              std::int32_t reserved2, std::int32_t& status) override {
    Query("GetProcessLogByProcess", status, connection, processId, reserved1, reserved2);
  }
  void GetProcessLogByUser(std::int32_t connection, DateValue serverFrom, DateValue serverTo, DateValue stationFrom,
                           DateValue stationTo, std::int32_t stateCode, std::int32_t processId, std::int32_t userId,
                           std::int32_t companyId, std::int32_t onStation, std::int32_t& status) override {
    Query("GetProcessLogByUser", status, connection, serverFrom, serverTo, stationFrom, stationTo, stateCode, processId,
          userId, companyId, onStation);
  }
  void CloseProcessLogByUser(std::int32_t connection) override { Release("CloseProcessLogByUser", connection); }
  void GetProcessLogsByName(std::int32_t connection, DateValue dateFrom, DateValue dateTo, std::string_view processName,
                            std::int32_t& status) override {
    Query("GetProcessLogsByName", status, connection, dateFrom, dateTo, processName);
  }
  void CloseProcessLogsByName(std::int32_t connection) override { Release("CloseProcessLogsByName", connection); }
  void GetProcessLogByTask(std::int32_t connection, std::int32_t processLogId, std::int32_t state,
                           std::int32_t& status) override {
    Query("GetProcessLogByTask", status, connection, processLogId, state);
  }
  void CloseProcessLogByTask(std::int32_t connection) override { Release("CloseProcessLogByTask", connection); }
  void GetProcessLogDetail(std::int32_t connection, std::int32_t processLogId, std::int32_t reserved1,
                           std::int32_t reserved2, std::int32_t& status) override {
    Clear();
    detail_ = {};
    Call("GetProcessLogDetail", status, connection, processLogId, reserved1, reserved2);
    if (status != 0) return;
    ProcessLogDetail detail;
    ForEachDetailField(detail, [this](std::string_view name, auto& field) { ReadProperty(name, field); });
    detail_ = std::move(detail);
  }
  const ProcessLogDetail& Detail() const override { return detail_; }

 private:
  ProcessLogDetail detail_;
};

class QuorvelOverCom final : public AdapterBase<Quorvel, TaskRunRecords> {
 public:
  using AdapterBase::AdapterBase;

  void GetTaskRunsByProcessLog(std::int32_t connection, std::int32_t processLogId, bool onStation, std::int32_t userId,
                               std::int32_t& status) override {
    Query("GetTaskRunsByProcessLog", status, connection, processLogId, onStation, userId);
  }
  void CloseTaskRuns(std::int32_t connection) override { Release("CloseTaskRuns", connection); }
};

class StepLogOverCom final : public AdapterBase<StepLog, StepLogRecords> {
 public:
  using AdapterBase::AdapterBase;

  void GetStepLogByTaskRun(std::int32_t connection, std::int32_t taskId, std::int32_t processLogId, std::int32_t userId,
                           std::int32_t& status) override {
    Query("GetStepLogByTaskRun", status, connection, taskId, processLogId, userId);
  }
  void CloseStepLog(std::int32_t connection) override { Release("CloseStepLog", connection); }
};

class CommandLogOverCom final : public AdapterBase<CommandLog, CommandLogRecords> {
 public:
  using AdapterBase::AdapterBase;

  void GetCommunications(std::int32_t connection, DateValue dateFrom, DateValue dateTo, std::int32_t stateCode,
                         std::int32_t userId, std::int32_t failedOnly, std::int32_t& status) override {
    Query("GetCommunications", status, connection, dateFrom, dateTo, stateCode, userId, failedOnly);
  }
  void CloseCommunications(std::int32_t connection) override { Release("CloseCommunications", connection); }
  void GetCommunicationsByMonth(std::int32_t connection, DateValue dateFrom, DateValue dateTo, std::int32_t stateCode,
                                std::int32_t userId, std::int32_t& status) override {
    Query("GetCommunicationsByMonth", status, connection, dateFrom, dateTo, stateCode, userId);
  }
  void CloseCommunicationsByMonth(std::int32_t connection) override {
    Release("CloseCommunicationsByMonth", connection);
  }
  void GetCommandLogByCommunication(std::int32_t connection, std::int32_t communicationId,
                                    std::int32_t& status) override {
    Query("GetCommandLogByCommunication", status, connection, communicationId);
  }
  void CloseCommandLogByCommunication(std::int32_t connection) override {
    Release("CloseCommandLogByCommunication", connection);
  }
  void GetCommandLogByStepLog(std::int32_t connection, std::int32_t stepLogId, std::int32_t& status) override {
    Query("GetCommandLogByStepLog", status, connection, stepLogId);
  }
  void CloseCommandLogByStepLog(std::int32_t connection) override { Release("CloseCommandLogByStepLog", connection); }
};

class AlarmsLogOverCom final : public AdapterBase<AlarmsLog, AlarmsLogRecords> {
 public:
  using AdapterBase::AdapterBase;

  void GetAlarms(std::int32_t connection, std::int32_t alarmId, std::int32_t reserved, std::int32_t& status) override {
    Query("GetAlarms", status, connection, alarmId, reserved);
  }
  void CloseAlarms(std::int32_t connection) override { Release("CloseAlarms", connection); }
  void GetAlarmsByDay(std::int32_t connection, DateValue day, std::int32_t ownerId, std::int32_t state,
                      std::int32_t& status) override {
    Query("GetAlarmsByDay", status, connection, day, ownerId, state);
  }
  void CloseAlarmsByDay(std::int32_t connection) override { Release("CloseAlarmsByDay", connection); }
  void AcknowledgeAlarms(std::int32_t connection, std::span<const std::int32_t> alarmIds, std::string_view userName,
                         std::int32_t& status) override {
    Call("AcknowledgeAlarms", status, connection, alarmIds, userName);
  }
  void ActivateAlarms(std::int32_t connection, std::span<const std::int32_t> alarmIds, std::int32_t& status) override {
    Call("ActivateAlarms", status, connection, alarmIds);
  }
};

class SavesOverCom final : public AdapterBase<Saves, SavesRecords> {
 public:
  using AdapterBase::AdapterBase;

  void GetSaves(std::int32_t connection, std::int32_t onStation, std::int32_t userId, DateValue dateFrom,
                DateValue dateTo, std::int32_t& status) override {
    Query("GetSaves", status, connection, onStation, userId, dateFrom, dateTo);
  }
  void CloseSaves(std::int32_t connection) override { Release("CloseSaves", connection); }
  void GetSaveFiles(std::int32_t connection, std::int32_t saveId, std::int32_t failedOnly, std::string_view nameFilter,
                    std::int32_t& status) override {
    Query("GetSaveFiles", status, connection, saveId, failedOnly, nameFilter);
  }
  void CloseSaveFiles(std::int32_t connection) override { Release("CloseSaveFiles", connection); }
};

class UsersImportOverCom final : public AdapterBase<UsersImport, UsersImportRecords> {
 public:
  using AdapterBase::AdapterBase;

  void GetUsersImports(std::int32_t connection, std::int32_t importId, std::int32_t& status) override {
    Query("GetUsersImports", status, connection, importId);
  }
  void CloseUsersImports(std::int32_t connection) override { Release("CloseUsersImports", connection); }
  void GetUsersImportByProcess(std::int32_t connection, std::int32_t importId, std::string_view name,
                               std::int32_t processId, std::int32_t importLogId, std::int32_t& status) override {
    Query("GetUsersImportByProcess", status, connection, importId, name, processId, importLogId);
  }
  void CloseUsersImportByProcess(std::int32_t connection) override { Release("CloseUsersImportByProcess", connection); }
};

class TaskSchedulerLogOverCom final : public AdapterBase<TaskSchedulerLog, TaskSchedulerLogRecords> {
 public:
  using AdapterBase::AdapterBase;

  void GetTaskSchedulerLogs(std::int32_t connection, DateValue dateFrom, DateValue dateTo, std::int32_t kind,
                            std::int32_t stateCode, std::int32_t companyId, std::int32_t& status) override {
    Query("GetTaskSchedulerLogs", status, connection, dateFrom, dateTo, kind, stateCode, companyId);
  }
};

class LabelsOverCom final : public CallsOverCom<Labels> {
 public:
  using CallsOverCom::CallsOverCom;

  std::int32_t lngCount() const override { return 0; }
  void GetLabel(std::int32_t connection, std::string_view name, std::int32_t& status) override {
    value_.clear();
    Call("GetLabel", status, connection, name);
    if (status == 0) ReadProperty("strLabelValue", value_);
  }
  const std::string& strLabelValue() const override { return value_; }
  void NotifyStopRequest(std::int32_t connection, std::string_view serverName, std::int32_t processLogId,
                         std::int32_t& result) override {
    Call("NotifyStopRequest", result, connection, serverName, processLogId);
  }

 private:
  std::string value_;
};

class CurrentOverCom final : public CallsOverCom<Current> {
 public:
  using CallsOverCom::CallsOverCom;

  std::int32_t lngCount() const override { return 0; }
  void StopExecution(std::int32_t connection, bool onStation, std::int32_t processLogId, std::string_view reserved,
                     std::int32_t& result) override {
    Call("StopExecution", result, connection, onStation, processLogId, reserved);
  }
};

template <class Source>
std::unique_ptr<RecordSource> Make(SourceLink link) {
  return std::make_unique<Source>(std::move(link));
}

constexpr Adapter kAdapters[] = {
    {ProcessLog::kClassIdentifier, Make<ProcessLogOverCom>},
    {Quorvel::kClassIdentifier, Make<QuorvelOverCom>},
    {StepLog::kClassIdentifier, Make<StepLogOverCom>},
    {CommandLog::kClassIdentifier, Make<CommandLogOverCom>},
    {AlarmsLog::kClassIdentifier, Make<AlarmsLogOverCom>},
    {Saves::kClassIdentifier, Make<SavesOverCom>},
    {UsersImport::kClassIdentifier, Make<UsersImportOverCom>},
    {TaskSchedulerLog::kClassIdentifier, Make<TaskSchedulerLogOverCom>},
    {Labels::kClassIdentifier, Make<LabelsOverCom>},
    {Current::kClassIdentifier, Make<CurrentOverCom>},
};

}  // namespace

std::span<const Adapter> Adapters() {
  return kAdapters;
}

}  // namespace quorvel::hub_com
