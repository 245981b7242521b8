// What happened to each station of a planned run.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tools/HistoryRows.h"
#include "tools/SampleNames.h"
#include "tools/SamplePlan.h"

namespace quorvel::tools {

// kOdd: flags that no writer of today sets; tasks and steps repeat them.
enum class PartState { kOk, kNotOk, kInProgress, kNotExecuted, kUnknown, kOdd };

inline constexpr std::int32_t kNoStation = -1;

struct StationPart {
  std::int32_t station = kNoStation;  // index
  PartState state = PartState::kOk;
  Second start = 0;
  Second end = 0;
  ResultFlags result{};
  datasource::Flag unknown = datasource::kFalse;
  datasource::Flag executed = datasource::kFalse;
  std::string_view waitState{};
  std::string report{};
  // Where a part ended that is not OK, and why. Indexes into the process's tasks and that task's steps.
  std::size_t stoppedAtTask = 0;
  std::size_t stoppedAtStep = 0;
  const Failure* failure = nullptr;
};

struct RunParts {
  StationPart server;                   // the part of the tasks that run once for all stations
  std::vector<StationPart> stations{};  // one that stands for no station in a run without a population
};

// The same for the same plan, seed and run number, whatever else is in the sample.
RunParts PartsOf(const SamplePlan& plan, std::size_t runNumber, std::uint64_t seed);

}  // namespace quorvel::tools
