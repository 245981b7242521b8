// Numbers of the errors that the hub raises itself.
#pragma once

#include <cstdint>
#include <string>
#include <utility>

#include "platform/Error.h"

namespace quorvel::hub {

// Each description names the file, says what is wrong and, where SQLite said so, ends with its text and code.
inline constexpr std::int32_t kNotAHistory = ComponentError(21);     // another kind of file, or of database
inline constexpr std::int32_t kOtherVersion = ComponentError(22);    // a history of an older or newer schema
inline constexpr std::int32_t kHistoryLocked = ComponentError(23);   // another program holds it
inline constexpr std::int32_t kHistoryDamaged = ComponentError(24);  // truncated or overwritten
inline constexpr std::int32_t kHistoryFailed = ComponentError(25);   // any other refusal of SQLite

// The source of all errors that the hub raises.
inline constexpr const char* kErrorSource = "clRecordHub";

// A system error raised by the hub.
inline Error HubError(SystemError number, std::string description) {
  return {static_cast<std::int32_t>(number), kErrorSource, std::move(description)};
}

}  // namespace quorvel::hub
