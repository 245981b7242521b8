// What apt did, as its history log tells it.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Dates.h"

namespace quorvel::tools {

enum class AptAction { kInstall, kReinstall, kUpgrade, kDowngrade, kRemove, kPurge };

struct AptChange {
  AptAction action = AptAction::kInstall;
  std::string package{};     // "libc6:amd64"
  std::string oldVersion{};  // "" where there is none, as in the next
  std::string newVersion{};
  bool automatic = false;  // came along with another package
};

// One invocation: from "Start-Date" to "End-Date".
struct AptInvocation {
  DateValue start = 0;
  DateValue end = 0;  // 0 = the log knows of no end
  std::string commandLine{};
  std::string requestedBy{};
  std::string error{};
  std::vector<AptChange> changes{};  // in the order of the log
};

struct AptHistory {
  std::vector<AptInvocation> invocations{};
  std::int32_t skippedLines = 0;  // lines, or packages in a line, that could not be understood
};

// Adds the invocations of one log file. `whole` is false for a file that breaks off: its last invocation is then left
// out when its end is missing.
void ParseAptHistory(std::span<const std::string> lines, bool whole, AptHistory& history);

}  // namespace quorvel::tools
