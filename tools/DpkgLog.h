// What dpkg did to each package, as its log tells it.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "platform/Dates.h"

namespace quorvel::tools {

struct DpkgRecord {
  DateValue date = 0;
  std::string package{};  // "libc6:amd64"
  std::string state{};    // of a "status" record: "unpacked", "installed", ...; "" for what dpkg is about to do
  std::string text{};     // the record as logged, without its date
};

struct DpkgLog {
  std::vector<DpkgRecord> records{};  // by date; records of the same second in the order of the log
  std::int32_t skippedLines = 0;      // lines that could not be understood
};

// Adds the records of one log file. Starts of dpkg and kept configuration files belong to no package and are left out.
void ParseDpkgLog(std::span<const std::string> lines, DpkgLog& log);

// Puts the records of all files in order.
void SortByDate(DpkgLog& log);

}  // namespace quorvel::tools
