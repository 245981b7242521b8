#include "datasource/Contract.h"

#include <algorithm>
#include <array>

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

namespace quorvel::datasource {
namespace {

using Names = std::string_view;

constexpr Names kStationRows[] = {"lngProcessLogId",   "lngProcessId", "strProcessName", "bProcessOnServer",
                                  "bProcessOnStation", "dtStartDate",  "bRunOnStation",  "lngUserId",
                                  "bInProgress",       "bResultOk",    "bResultNotOk",   "bResultUnknown",
                                  "bExecuted"};
constexpr Names kRunRows[] = {"lngProcessLogId", "lngProcessId", "strProcessName", "dtStartDate", "dtEndDate",
                              "bRunOnStation",   "lngStations",  "lngOk",          "lngNotOk",    "lngInProgress",
                              "lngNotExecuted",  "lngUnknown",   "dtStopRequested"};
constexpr Names kUserRows[] = {
    "lngProcessLogId", "lngProcessId",  "strProcessName", "bProcessOnServer", "bProcessOnStation", "dtStartDate",
    "dtEndDate",       "bRunOnStation", "lngUserId",      "strUserName",      "strIdentifier",     "bInProgress",
    "bResultOk",       "bResultNotOk",  "bResultUnknown", "bExecuted",        "strWaitState"};
constexpr Names kStateRows[] = {"dtStartDate",    "dtEndDate", "lngUserId",   "strUserName", "strIdentifier",
                                "strCompany",     "strReport", "bInProgress", "bResultOk",   "bResultNotOk",
                                "bResultUnknown", "bExecuted", "strWaitState"};
constexpr Names kTaskRows[] = {"lngTaskRunId",    "lngTaskId", "strTaskName", "strTaskType", "bNotExecuted",
                               "lngStationScope", "bWaiting",  "strReport",   "dtStartDate", "dtEndDate",
                               "bInProgress",     "bResultOk", "bResultNotOk"};
constexpr Names kStepRows[] = {"lngStepLogId",    "lngTaskRunId", "strStepName",    "strSettings", "strReport",
                               "strExecuteWhere", "dtStartDate",  "dtEndDate",      "bInProgress", "bResultOk",
                               "bResultNotOk",    "lngStepKind",  "lngStationScope"};
constexpr Names kCommunicationRows[] = {"lngCommunicationId", "dtCommunicationDate", "dtCommunicationEnd", "lngUserId",
                                        "strUserName",        "bFromStation",        "lngSizeKb",          "strReport",
                                        "bInProgress",        "bResultOk",           "bResultNotOk"};
constexpr Names kDayRows[] = {"dtCommunicationDate", "lngCommunications"};
constexpr Names kCommandRows[] = {
    "lngCommunicationId", "dtCommunicationDate", "lngCommandLogId", "lngKind",     "lngResult", "strText",
    "strReport",          "dtStartDate",         "dtEndDate",       "bInProgress", "bResultOk", "bResultNotOk"};
constexpr Names kAlarmRows[] = {"lngAlarmId",     "lngOwnerId",        "strOwnerName",   "dtDate",
                                "lngSeverity",    "lngAction",         "strOrigin",      "strText",
                                "bAcknowledged",  "strAcknowledgedBy", "dtAcknowledged", "lngProcessLogId",
                                "strProcessName", "lngProcessId",      "bRunOnStation"};
constexpr Names kSaveRows[] = {"lngSaveId", "lngUserId", "strUserName", "strName", "dtDate", "lngSizeKb", "bResultOk"};
constexpr Names kFileRows[] = {"lngSaveId", "strName", "dtDate", "lngSizeKb", "strPath", "bResultOk"};
constexpr Names kImportRows[] = {"strName", "lngProcessId", "strProcessName"};
constexpr Names kImportRunRows[] = {"lngImportLogId", "lngBatchNumber", "dtDate",
                                    "strUserName",    "bResultOk",      "strReport"};
constexpr Names kSchedulerRows[] = {"lngLevel", "lngLogId",   "strDate",     "strMachine",
                                    "strLabel", "strCompany", "strUserName", "strAttachment"};

constexpr std::string_view kProcessLog = "{9D6DA27D-866A-4B34-9DEA-367140A31138}";
constexpr std::string_view kQuorvel = "{2EA7D7BA-8AED-41A9-9320-9AC3F091E703}";
constexpr std::string_view kStepLog = "{1DB751BA-A688-4295-B045-31F9D4C73F88}";
constexpr std::string_view kCommandLog = "{16CBD4C7-1761-400B-B28F-1E21820409FC}";
constexpr std::string_view kAlarmsLog = "{566FBB72-6D0E-4DAB-AB49-1691BAA5890C}";
constexpr std::string_view kSaves = "{DC825581-01EE-4165-9AA6-4183752F3184}";
constexpr std::string_view kUsersImport = "{99FBE33C-F94D-4F7C-83E6-A66537634016}";
constexpr std::string_view kTaskSchedulerLog = "{3D1FBDA5-83B7-4C30-9F37-04BEC007577E}";
constexpr std::string_view kLabels = "{582DF88C-0D62-4BBF-92BA-B4B6073B1319}";
constexpr std::string_view kCurrent = "{BD58440C-9440-4B17-BBA5-2106E6DBBE51}";

constexpr QueryContract kQueries[] = {
    {ProcessLog::kClassIdentifier, "GetProcessLogs", "CloseProcessLogs", kStationRows, kProcessLog},
    {ProcessLog::kClassIdentifier, "GetProcessLogByProcess", "CloseProcessLogs", kRunRows, kProcessLog},
    {ProcessLog::kClassIdentifier, "GetProcessLogByUser", "CloseProcessLogByUser", kUserRows, kProcessLog},
    {ProcessLog::kClassIdentifier, "GetProcessLogsByName", "CloseProcessLogsByName", kRunRows, kProcessLog},
    {ProcessLog::kClassIdentifier, "GetProcessLogByTask", "CloseProcessLogByTask", kStateRows, kProcessLog},
    {ProcessLog::kClassIdentifier, "GetProcessLogDetail", "", {}, kProcessLog},
    {Quorvel::kClassIdentifier, "GetTaskRunsByProcessLog", "CloseTaskRuns", kTaskRows, kQuorvel},
    {StepLog::kClassIdentifier, "GetStepLogByTaskRun", "CloseStepLog", kStepRows, kStepLog},
    {CommandLog::kClassIdentifier, "GetCommunications", "CloseCommunications", kCommunicationRows, kCommandLog},
    {CommandLog::kClassIdentifier, "GetCommunicationsByMonth", "CloseCommunicationsByMonth", kDayRows, kCommandLog},
    {CommandLog::kClassIdentifier, "GetCommandLogByCommunication", "CloseCommandLogByCommunication", kCommandRows,
     kCommandLog},
    {CommandLog::kClassIdentifier, "GetCommandLogByStepLog", "CloseCommandLogByStepLog", kCommandRows, kCommandLog},
    {AlarmsLog::kClassIdentifier, "GetAlarms", "CloseAlarms", kAlarmRows, kAlarmsLog},
    {AlarmsLog::kClassIdentifier, "GetAlarmsByDay", "CloseAlarmsByDay", kAlarmRows, kAlarmsLog},
    {AlarmsLog::kClassIdentifier, "AcknowledgeAlarms", "", {}, kAlarmsLog},
    {AlarmsLog::kClassIdentifier, "ActivateAlarms", "", {}, kAlarmsLog},
    {Saves::kClassIdentifier, "GetSaves", "CloseSaves", kSaveRows, kSaves},
    {Saves::kClassIdentifier, "GetSaveFiles", "CloseSaveFiles", kFileRows, kSaves},
    {UsersImport::kClassIdentifier, "GetUsersImports", "CloseUsersImports", kImportRows, kUsersImport},
    {UsersImport::kClassIdentifier, "GetUsersImportByProcess", "CloseUsersImportByProcess", kImportRunRows,
     kUsersImport},
    {TaskSchedulerLog::kClassIdentifier, "GetTaskSchedulerLogs", "", kSchedulerRows, kTaskSchedulerLog},
    {Labels::kClassIdentifier, "GetLabel", "", {}, kLabels},
    {Labels::kClassIdentifier, "NotifyStopRequest", "", {}, kLabels},
    {Current::kClassIdentifier, "StopExecution", "", {}, kCurrent},
};

}  // namespace

std::span<const QueryContract> Queries() {
  return kQueries;
}

const QueryContract& ContractOf(std::string_view query) {
  const auto* const found = std::ranges::find(kQueries, query, &QueryContract::query);
  if (found == std::end(kQueries)) {
    throw Error(SystemError::kInvalidCall, "No query of the contract: " + std::string(query));
  }
  return *found;
}

}  // namespace quorvel::datasource
