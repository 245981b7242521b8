// Numbers and records that cross the control's boundary.
#pragma once

#include <cstdint>
#include <string>

namespace quorvel {

// The buttons of a mouse, as events have them.
enum class MouseButton : std::int32_t { kLeft = 1, kRight = 2 };

// How the host opened the viewer (`p_FromType`).
enum class tlFromType : std::int32_t {
  tlAllOnStation = 0,
  tlOneUser = 1,
  tlOneCompany = 2,
  tlAllProcess = 3,
  tlOneProcess = 4,
  tlLogs = 5,
  tlAllAlarms = 6,
  tlOneAlarm = 7,
  tlAllImports = 8,
};

// What follows up to the identifiers is published for hosts, in these orders; the control itself filters by
// StateFilter, and arranges by tree::RootCriterion.
enum class tlExecuteMode : std::int32_t { tlAll = 0, tlManual = 1, tlAuto = 2, tlDetail = 3 };

enum class ltUserState : std::int32_t {
  ltUserOk = 0,
  ltUserNoOk = 1,
  ltUserInProgress = 2,
  ltUserNoExecute = 3,
  ltUserUndefined = 4,
};

enum class enumLogsType : std::int32_t {
  enumProcessus = 0,
  enumCommunication = 1,
  enumSystem = 2,
  enumImports = 3,
  enumAllLogsType = 4,
};

enum class enumState : std::int32_t {
  enumOnError = 0,
  enumOk = 1,
  enumInProgress = 2,
  enumLastExecution = 3,
  enumUndefined = 4,
  enumAll = 5,
};

enum class enumGroupBy : std::int32_t { enumOrigin = 0, enumUser = 1, enumDate = 2, enumProcess = 3 };

// What a node or a row stands for; "" where it says nothing of that kind.
struct LogIdentifiers {
  std::string strProcessId;
  std::string strCurrentProcessIdAttributedByTheServer;
  std::string strCurrentProcessId;
  std::string strState;
  std::string strUserId;
  std::string strTaskId;
  std::string strStepId;
  std::string strStepIdAttributedByTheServer;
  std::string strCommandType;
  std::string strConnectionId;
};

// State filter: what `cboState` asks for. Numbers differently from the state groups of a run and from the published
// enumerations; none stands for another.
enum class StateFilter : std::int32_t {
  kAll = 0,
  kOk = 1,  // "Information" on the system tab
  kError = 2,
  kInProgress = 3,
  kLastExecution = 4,
  kUnknown = 5,  // "Before" on the system tab
};

}  // namespace quorvel
