// What the runs of a sample leave for what is told beside them: connections that carried commands, and failures.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "datasource/Column.h"
#include "tools/HistoryRows.h"
#include "tools/SampleParts.h"
#include "tools/SampleTime.h"

namespace quorvel::tools {

// A connection that commands of steps refer to.
struct CarriedConnection {
  std::int32_t id = 0;
  std::int32_t station = 0;  // index
  datasource::Flag fromStation = datasource::kFalse;
  Second start = 0;
  DateValue end = 0;           // of the last command, 0 = in progress
  std::int32_t transfers = 0;  // files that arrived
  ResultFlags result{};        // of the last command, unless that failed without the line
  std::string_view report{};   // why it failed, "" = it did not
};

// How a run went.
struct RunFact {
  Second end = 0;                // 0 = not ended
  std::int32_t failedParts = 0;  // those that are NOT OK
  // Of the first of them.
  std::int32_t station = kNoStation;  // index
  Second failedAt = 0;
  const Failure* failure = nullptr;
};

struct SampleFacts {
  std::vector<RunFact> runs{};  // one for each planned run
  std::vector<CarriedConnection> connections{};
  std::int32_t lastConnection = 0;  // identifiers up to this one are taken
};

}  // namespace quorvel::tools
