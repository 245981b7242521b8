// The ten classes of this library.
#include "hub_com/server/Classes.h"

#include <guiddef.h>

#include "datasource/AlarmsLog.h"
#include "datasource/CommandLog.h"
#include "datasource/Current.h"
#include "datasource/Labels.h"
#include "datasource/Quorvel.h"
#include "datasource/Saves.h"
#include "datasource/StepLog.h"
#include "datasource/TaskSchedulerLog.h"
#include "datasource/UsersImport.h"
#include "hub_com/server/Methods.h"
#include "platform/windows/ComObject.h"

namespace quorvel::hub_com {
namespace {

using namespace datasource;  // NOLINT(google-build-using-namespace): this file lists every class of that layer

constexpr IID kProcessLogIdentity = {0x9D6DA27D, 0x866A, 0x4B34, {0x9D, 0xEA, 0x36, 0x71, 0x40, 0xA3, 0x11, 0x38}};
constexpr IID kQuorvelIdentity = {0x2EA7D7BA, 0x8AED, 0x41A9, {0x93, 0x20, 0x9A, 0xC3, 0xF0, 0x91, 0xE7, 0x03}};
constexpr IID kStepLogIdentity = {0x1DB751BA, 0xA688, 0x4295, {0xB0, 0x45, 0x31, 0xF9, 0xD4, 0xC7, 0x3F, 0x88}};
constexpr IID kCommandLogIdentity = {0x16CBD4C7, 0x1761, 0x400B, {0xB2, 0x8F, 0x1E, 0x21, 0x82, 0x04, 0x09, 0xFC}};
constexpr IID kAlarmsLogIdentity = {0x566FBB72, 0x6D0E, 0x4DAB, {0xAB, 0x49, 0x16, 0x91, 0xBA, 0xA5, 0x89, 0x0C}};
constexpr IID kSavesIdentity = {0xDC825581, 0x01EE, 0x4165, {0x9A, 0xA6, 0x41, 0x83, 0x75, 0x2F, 0x31, 0x84}};
constexpr IID kUsersImportIdentity = {0x99FBE33C, 0xF94D, 0x4F7C, {0x83, 0xE6, 0xA6, 0x65, 0x37, 0x63, 0x40, 0x16}};
constexpr IID kTaskSchedulerLogIdentity = {
    0x3D1FBDA5, 0x83B7, 0x4C30, {0x9F, 0x37, 0x04, 0xBE, 0xC0, 0x07, 0x57, 0x7E}};
constexpr IID kLabelsIdentity = {0x582DF88C, 0x0D62, 0x4BBF, {0x92, 0xBA, 0xB4, 0xB6, 0x07, 0x3B, 0x13, 0x19}};
constexpr IID kCurrentIdentity = {0xBD58440C, 0x9440, 0x4B17, {0xBB, 0xA5, 0x21, 0x06, 0xE6, 0xDB, 0xBE, 0x51}};

// Properties of one value.
Flag OnServer(const ProcessLog& source) {
  return source.Detail().bOnServer;
}
std::string_view StationName(const ProcessLog& source) {
  return source.Detail().strStationName;
}
std::string_view LabelValue(const Labels& source) {
  return source.strLabelValue();
}

// The calls of each class in the order of its interface, which is that of the type library.
using ProcessLogMethods = MethodTable<ProcessLog, &ProcessLog::GetProcessLogs, &ProcessLog::CloseProcessLogs,
                                      &ProcessLog::GetProcessLogByProcess, &ProcessLog::GetProcessLogByUser,
                                      &ProcessLog::CloseProcessLogByUser, &ProcessLog::GetProcessLogsByName,
                                      &ProcessLog::CloseProcessLogsByName, &ProcessLog::GetProcessLogByTask,
                                      &ProcessLog::CloseProcessLogByTask, &ProcessLog::GetProcessLogDetail>;
using QuorvelMethods = MethodTable<Quorvel, &Quorvel::GetTaskRunsByProcessLog, &Quorvel::CloseTaskRuns>;
using StepLogMethods = MethodTable<StepLog, &StepLog::GetStepLogByTaskRun, &StepLog::CloseStepLog>;
using CommandLogMethods =
    MethodTable<CommandLog, &CommandLog::GetCommunications, &CommandLog::CloseCommunications,
                &CommandLog::GetCommunicationsByMonth, &CommandLog::CloseCommunicationsByMonth,
                &CommandLog::GetCommandLogByCommunication, &CommandLog::CloseCommandLogByCommunication,
                &CommandLog::GetCommandLogByStepLog, &CommandLog::CloseCommandLogByStepLog>;
using AlarmsLogMethods =
    MethodTable<AlarmsLog, &AlarmsLog::GetAlarms, &AlarmsLog::CloseAlarms, &AlarmsLog::GetAlarmsByDay,
                &AlarmsLog::CloseAlarmsByDay, &AlarmsLog::AcknowledgeAlarms, &AlarmsLog::ActivateAlarms>;
using SavesMethods =
    MethodTable<Saves, &Saves::GetSaves, &Saves::CloseSaves, &Saves::GetSaveFiles, &Saves::CloseSaveFiles>;
using UsersImportMethods = MethodTable<UsersImport, &UsersImport::GetUsersImports, &UsersImport::CloseUsersImports,
                                       &UsersImport::GetUsersImportByProcess, &UsersImport::CloseUsersImportByProcess>;
using TaskSchedulerLogMethods = MethodTable<TaskSchedulerLog, &TaskSchedulerLog::GetTaskSchedulerLogs>;
using LabelsMethods = MethodTable<Labels, &Labels::GetLabel, &Labels::NotifyStopRequest>;
using CurrentMethods = MethodTable<Current, &Current::StopExecution>;

// `kIdentity` and `kMethods` of the class.
template <class Source, const IID& kIdentity, const Method* (*kMethods)()>
HRESULT Create(REFIID wanted, void** object) noexcept {
  return windows::Answering(kIdentity, [&] {
    const auto made = windows::MakeObject<HubObject>(Source::kClassIdentifier, kIdentity, kMethods());
    return made->QueryInterface(wanted, object);
  });
}

constexpr windows::ComClass kClasses[] = {
    {{0x6ECE58DD, 0xFDCC, 0x4CC0, {0x8F, 0x1F, 0x9F, 0x7A, 0x8B, 0x50, 0x85, 0x48}},
     L"clRecordHub.ProcessLog.1",
     L"clRecordHub.ProcessLog",
     L"Runs of processes",
     Create<ProcessLog, kProcessLogIdentity, ProcessLogMethods::Get<&OnServer, &StationName>>},
    {{0x4221CCF1, 0x3AB1, 0x46A7, {0xBB, 0x86, 0x3D, 0x0A, 0x7C, 0x26, 0x30, 0x1B}},
     L"clRecordHub.Quorvel.1",
     L"clRecordHub.Quorvel",
     L"Runs of the tasks inside one process run",
     Create<Quorvel, kQuorvelIdentity, QuorvelMethods::Get<>>},
    {{0xCD9D36B2, 0x7E93, 0x4393, {0x9F, 0x9B, 0xBA, 0x8B, 0x73, 0xE9, 0x48, 0x52}},
     L"clRecordHub.StepLog.1",
     L"clRecordHub.StepLog",
     L"Runs of the steps inside one task run",
     Create<StepLog, kStepLogIdentity, StepLogMethods::Get<>>},
    {{0x12089863, 0xA237, 0x49BC, {0xBE, 0x77, 0x01, 0x58, 0xF7, 0x49, 0xA8, 0xC9}},
     L"clRecordHub.CommandLog.1",
     L"clRecordHub.CommandLog",
     L"Connections with stations, and commands",
     Create<CommandLog, kCommandLogIdentity, CommandLogMethods::Get<>>},
    {{0x0A291CED, 0x5D19, 0x4136, {0x97, 0xB4, 0x3D, 0x2E, 0x09, 0xF6, 0x49, 0x57}},
     L"clRecordHub.AlarmsLog.1",
     L"clRecordHub.AlarmsLog",
     L"Alarms with their acknowledgement",
     Create<AlarmsLog, kAlarmsLogIdentity, AlarmsLogMethods::Get<>>},
    {{0x5F8FBADF, 0xEBF5, 0x4531, {0xBE, 0x1A, 0x0E, 0x71, 0xC3, 0x37, 0x7C, 0x11}},
     L"clRecordHub.Saves.1",
     L"clRecordHub.Saves",
     L"Backups and the files in them",
     Create<Saves, kSavesIdentity, SavesMethods::Get<>>},
    {{0x208B7DB1, 0x3016, 0x4B11, {0x9C, 0xF8, 0xDB, 0x22, 0x7F, 0x2B, 0x79, 0xB9}},
     L"clRecordHub.UsersImport.1",
     L"clRecordHub.UsersImport",
     L"Runs of user imports",
     Create<UsersImport, kUsersImportIdentity, UsersImportMethods::Get<>>},
    {{0xD1CA865D, 0x3E8C, 0x4CBE, {0x8B, 0x88, 0x5C, 0xB1, 0x7A, 0x7B, 0x63, 0xF1}},
     L"clRecordHub.TaskSchedulerLog.1",
     L"clRecordHub.TaskSchedulerLog",
     L"The scheduler's own log",
     Create<TaskSchedulerLog, kTaskSchedulerLogIdentity, TaskSchedulerLogMethods::Get<>>},
    {{0xA7837EB3, 0x0E28, 0x42D0, {0xA5, 0x44, 0x3E, 0x0A, 0x07, 0x77, 0x52, 0xFE}},
     L"clRecordHub.Labels.1",
     L"clRecordHub.Labels",
     L"Named settings of the installation",
     Create<Labels, kLabelsIdentity, LabelsMethods::Get<&LabelValue>>},
    {{0x3D38482B, 0x1D03, 0x4CB9, {0x81, 0x31, 0xE5, 0x4D, 0x6B, 0x90, 0x51, 0x88}},
     L"clRecordHub.Current.1",
     L"clRecordHub.Current",
     L"The executions that are running now",
     Create<Current, kCurrentIdentity, CurrentMethods::Get<>>},
};

constexpr windows::ComLibrary kLibrary = {
    .typeLibrary = {0x3F570308, 0x97D7, 0x4C45, {0xB4, 0x41, 0x44, 0xAD, 0x72, 0x28, 0x3F, 0xD9}},
    .majorVersion = 1,
    .minorVersion = 0,
    .classes = kClasses,
    .localServer = L"clRecordHubServer.exe"};

}  // namespace

const windows::ComLibrary& Library() {
  return kLibrary;
}

}  // namespace quorvel::hub_com
