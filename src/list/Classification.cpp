#include "list/Classification.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "util/KeyPrefixes.h"
#include "util/PublicFunctions.h"

namespace quorvel::list {
namespace {

using datasource::kTrue;

struct TaskIcon {
  std::string_view taskType;
  std::string_view base;
  bool runsOnStationAlone = false;  // never shown as waiting for the server
};

constexpr TaskIcon kTaskIcons[] = {
    {"ControlServer", "ControlServer"},
    {"ControlStation", "ControlStation", true},
    {"Synchro", "ExchangeFolder"},
    {"ExportSQLToFileServer", "ExportSQLServer"},
    {"ExportSQLToFileStation", "ExportSQLStation", true},
    {"FtpExplicitServer", "FTPServer"},
    {"FtpExplicitStation", "FTPStation", true},
    {"Inventory", "ProcessInventory"},
    {"MailAgent", "Message"},
    {"BatchServer", "ProgramServer"},
    {"BatchStation", "ProgramStation", true},
    {"Logiciel", "Softdist"},
    {"Telecollecte", "Telecol"},
    {"Teledistribution", "Teledist"},
    {"TransferSpecific", "Transfer"},
    {"ManageServer", "ManagementServer"},
    {"ManageStation", "ManagementStation"},
    {"SupervisionServer", "SupervisionServer"},
    {"SupervisionStation", "SupervisionStation"},
    {"BackupServer", "BackupServer"},
    {"BackupStation", "BackupStation"},
    {"Restore", "RestoreStation"},
    {"SqlServer", "SynchroSQLServer"},
    {"SqlStation", "SynchroSQLStation"},
    {"MessageQueuing", "MessageQueuing"},
    {"FileManagementServer", "FileManagementServer"},
    {"FileManagementStation", "FileManagementStation"},
};
// Any other type shows, and waits, as a program on the server does.
constexpr const TaskIcon& kOtherTask = *std::ranges::find(kTaskIcons, "BatchServer", &TaskIcon::taskType);

// The keys of one task type: executed or not (+1), for the station or once for all (+2).
using TaskKeys = std::array<std::string, 4>;

// Made once, so that a row's key costs no text of its own.
std::array<TaskKeys, std::size(kTaskIcons)> AllTaskKeys() {
  std::array<TaskKeys, std::size(kTaskIcons)> all;
  std::ranges::transform(kTaskIcons, all.begin(), [](const TaskIcon& icon) {
    const std::string base(icon.base);
    return TaskKeys{base, base + "NotExec", base + "Global", base + "NotExecGlobal"};
  });
  return all;
}

constexpr std::string_view kTaskWaitingServer = "TaskWaitingServer";

struct StepIcon {
  std::string_view station;
  std::string_view global;
};

// By step kind, from 0.
constexpr std::array<StepIcon, 5> kStepIcons{{
    {"Step", "StepGlobal"},
    {"StepCom", "StepComGlobal"},
    {"StepFTP", "StepFTPGlobal"},
    {"StepMailNotes", "StepMailNotesGlobal"},
    {"StepMailOEX", "StepMailOEXGlobal"},
}};

struct AlarmIcon {
  std::string_view fromServer;
  std::string_view fromStation;
};

// By action, from 1.
constexpr std::array<AlarmIcon, 5> kAlarmActionIcons{{
    {"AlarmActionMailFromServer", "AlarmActionMailFromStation"},
    {"AlarmActionProcessFromServer", "AlarmActionProcessFromStation"},
    {"AlarmActionFileFromServer", "AlarmActionFileFromStation"},
    {"AlarmActionProgramFromServer", "AlarmActionProgramFromStation"},
    {"AlarmActionTriggerSnmpTrapFromServer", "AlarmActionTriggerSnmpTrapFromStation"},
}};
constexpr AlarmIcon kActiveAlarm{"AlarmFromServer", "AlarmFromStation"};
constexpr AlarmIcon kAcknowledgedAlarm{"AlarmFromServerIsAcquitted", "AlarmFromStationIsAcquitted"};

struct WaitState {
  std::string_view text;
  Classified shown;
};

constexpr WaitState kWaitStates[] = {
    {"Waiting com", {"User_WaitingCom", "Waiting for connection"}},
    {"Waiting station in com", {"User_WaitingStation", "Waiting for station report, online"}},
    {"Waiting station out com", {"User_WaitingStation", "Waiting for station report, offline"}},
    {"Waiting execution in com", {"User_WaitingExecution", "Waiting for online execution"}},
    {"Waiting execution out com", {"User_WaitingExecution", "Waiting for delayed execution"}},
    {"Waiting prerequisite", {"User_WaitingPrerequisite", "Waiting for prerequisites to be met"}},
    {"To run", {"User", kInProgressCaption}},
};
constexpr Classified kPlainUser{"User", ""};

// What a station's flags come to. The last case fits nothing and is shown plainly; it is counted as unknown.
struct UserOutcome {
  Classified shown;
  StateGroup group;
};
constexpr UserOutcome kUserInProgress{kPlainUser, StateGroup::kInProgress};
constexpr UserOutcome kUserOk{{"User_Ok", kUserOkCaption}, StateGroup::kOk};
constexpr UserOutcome kUserNotOk{{"User_NoOk", kUserNotOkCaption}, StateGroup::kNotOk};
constexpr UserOutcome kUserUnknown{{"User_Undefined", kUnknownCaption}, StateGroup::kUnknown};
constexpr UserOutcome kUserNotExecuted{{"User_NoExecute", kNotExecutedCaption}, StateGroup::kNotExecuted};
constexpr UserOutcome kUserOther{kPlainUser, StateGroup::kUnknown};

const UserOutcome& OutcomeOf(const UserFlags& flags) {
  if (flags.inProgress != 0) return kUserInProgress;
  if (flags.ok == kTrue) return kUserOk;
  if (flags.notOk == kTrue) return kUserNotOk;
  if (flags.unknown == kTrue) return kUserUnknown;
  if (flags.executed == 0) return kUserNotExecuted;
  return kUserOther;
}

Classified ClassifyWaiting(std::string_view waitState) {
  const auto* const found = std::ranges::find(kWaitStates, waitState, &WaitState::text);
  return found == std::end(kWaitStates) ? kPlainUser : found->shown;
}

}  // namespace

std::string_view SetStateAndIconToListview(datasource::ErrorsProcess& errors, widgets::ListView& list, std::size_t row,
                                           Flag inProgress, Flag notOk, Flag ok, Flag unknown) {
  struct Outcome {
    Flag flag;
    Classified shown;
  };
  const Outcome outcomes[] = {
      {inProgress, {"ProcessStart", kInProgressCaption}},
      {notOk, {"ProcessNONOK", kNotOkCaption}},
      {unknown, {"ProcessUndefined", kUnknownCaption}},
      {ok, {"ProcessOk", kOkCaption}},
  };
  const auto* const first = std::ranges::find_if(outcomes, [](const Outcome& outcome) { return outcome.flag != 0; });
  if (first == std::end(outcomes)) return kNotExecutedCaption;
  return datasource::Logging(errors, "Quorvel: ucProcessLog.SetStateAndIconToListview", std::string_view(), [&] {
    list.SetIcon(row, first->shown.icon);
    return first->shown.caption;
  });
}

Classified ClassifyUser(const UserFlags& flags, std::string_view waitState) {
  const UserOutcome& outcome = OutcomeOf(flags);
  return outcome.group == StateGroup::kInProgress ? ClassifyWaiting(waitState) : outcome.shown;
}

StateGroup GroupOfUser(const UserFlags& flags) {
  return OutcomeOf(flags).group;
}

std::string_view ResultCaption(bool inProgress, bool ok, bool notOk) {
  if (inProgress) return kInProgressCaption;
  if (ok) return kUserOkCaption;
  return notOk ? kUserNotOkCaption : std::string_view();
}

std::string_view GetLogIconeTask(std::string_view taskType, Flag notExecuted, std::int32_t stationScope, Flag waiting,
                                 bool serverMode) {
  static const std::array<TaskKeys, std::size(kTaskIcons)> keys = AllTaskKeys();
  const auto* const found = std::ranges::find(kTaskIcons, taskType, &TaskIcon::taskType);
  const TaskIcon& icon = found == std::end(kTaskIcons) ? kOtherTask : *found;
  if (notExecuted != 0 && waiting != 0 && !serverMode && !icon.runsOnStationAlone) return kTaskWaitingServer;
  const TaskKeys& variants = keys[static_cast<std::size_t>(&icon - std::begin(kTaskIcons))];
  return variants[(notExecuted != 0 ? 1U : 0U) + (stationScope == 0 ? 2U : 0U)];
}

std::string_view GetLogIconeStep(std::int32_t stepKind, std::int32_t stationScope) {
  if (stepKind < 0 || stepKind >= static_cast<std::int32_t>(kStepIcons.size())) return {};
  const StepIcon& icon = kStepIcons[static_cast<std::size_t>(stepKind)];
  return stationScope != 0 ? icon.station : icon.global;
}

std::string_view GetLogIconeAlarm(std::int32_t action, std::string_view origin, Flag acknowledged) {
  const bool triggered = action >= 1 && action <= static_cast<std::int32_t>(kAlarmActionIcons.size());
  const AlarmIcon& icon = triggered           ? kAlarmActionIcons[static_cast<std::size_t>(action - 1)]
                          : acknowledged != 0 ? kAcknowledgedAlarm
                                              : kActiveAlarm;
  return origin == "Server" ? icon.fromServer : icon.fromStation;
}

std::int32_t GetProcessState(Flag first, Flag second, Flag third, Flag fourth) {
  if (first == 0 && second == 0 && third == 0 && fourth == 0) return 4;
  if (first == kTrue) return 3;
  if (second == kTrue) return 1;
  if (third == kTrue) return 2;
  return 0;
}

bool IsFilesTransferLogError(std::int32_t kind, std::int32_t result) {
  if (result < 91 || result > 94) return result != 0;
  return kind != 89 && kind != 90;
}

bool IsCurrentProcessName(std::string_view key) {
  return util::Identifiant(key, 1) == util::kProcessPrefix && !util::Identifiant(key, 2).empty() &&
         !util::Identifiant(key, 3).empty() && !util::Identifiant(key, 4).empty() && util::Identifiant(key, 5).empty();
}

bool IsImportName(std::string_view key) {
  return util::Identifiant(key, 1) == util::kImportPrefix && !util::Identifiant(key, 2).empty() &&
         !util::Identifiant(key, 3).empty() && util::Identifiant(key, 4).empty();
}

}  // namespace quorvel::list
