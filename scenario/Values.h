// How numbers, dates and error numbers are written in scripts and prints.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/Dates.h"

namespace quorvel::scenario {

// All raise ScriptError for a text of another form.
std::int32_t NumberOf(std::string_view text);
float DecimalOf(std::string_view text);
// "0" or "1".
bool FlagOf(std::string_view text);
// "2026-11-20", "2026-11-20T23:05:07".
DateValue DateOf(std::string_view text);
// "23:05" or "23:05:07", as a fraction of a day.
DateValue TimeOf(std::string_view text);

// Errors of components are written as eight hexadecimal digits, 80040204, other errors in decimal, 53.
std::int32_t ErrorNumberOf(std::string_view text);
std::string ErrorNumberText(std::int32_t number);

// "23:05:07".
std::string TimeText(DateValue date);

}  // namespace quorvel::scenario
