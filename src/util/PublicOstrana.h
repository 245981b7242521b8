// Stored codes and dates as people read them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Platform.h"

namespace quorvel::util {

// Display name of a task type; empty for a code that is not in the table, in that letter case. The text lives forever.
std::string_view strGetTypeTaskName(std::string_view typeCode);

// Display name of the place where a step runs; empty for an unknown code. The text lives forever.
std::string_view strGetExecuteWhereName(std::string_view placeCode);

// The flag that callers pass to see date and time.
inline constexpr std::int32_t kDateAndTime = -1;

// A date as text: the short date when `flag` is 1, date and time for any other flag. Empty for the date 0 and for a
// date that cannot be shown.
std::string strFormatDateTime(const Platform& platform, DateValue value, std::int32_t flag);

}  // namespace quorvel::util
