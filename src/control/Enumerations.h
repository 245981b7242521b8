// Numbers that cross the control's boundary.
#pragma once

#include <cstdint>

namespace quorvel {

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
