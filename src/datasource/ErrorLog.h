// "Ostrana.log": the plain-text error log in the user's temporary folder.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string_view>

#include "platform/Platform.h"

namespace quorvel::datasource {

inline constexpr std::string_view kLineEnd = "\r\n";

// The two codes that an error number is logged as: numbers above object error + 512 are the suite's own, counted from
// there; everything else is a system or run-time error.
struct ErrorCodes {
  std::int32_t application = 0;
  std::int32_t system = 0;
};
ErrorCodes SplitErrorNumber(std::int32_t number);

// Where the log of the current user lies.
std::filesystem::path ErrorLogFile(const Platform& platform);

// Appends one record to the log and trims the log first when it has outgrown its limit. Never raises: a log that cannot
// be written is given up, step by step, so that what can still be done is done. The pointer is the hourglass meanwhile
// and the default afterwards.
void WriteErrorLog(Platform& platform, std::int32_t number, std::string_view source, std::string_view description,
                   std::string_view errorType, std::string_view errorText);

}  // namespace quorvel::datasource
