// Who and what is in a sample: its stations, processes and runs, before anything is written.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "datasource/Column.h"
#include "tools/SampleHistory.h"
#include "tools/SampleProcesses.h"

namespace quorvel::tools {

// Local time in whole seconds since 1899-12-30; 0 = none.
using Second = std::int64_t;
inline constexpr Second kMinute = 60;
inline constexpr Second kHour = 3600;
inline constexpr Second kDay = 86400;

constexpr DateValue DateAt(Second second) {
  const Second day = second / kDay;
  return static_cast<double>(day) + static_cast<double>(second % kDay) / static_cast<double>(kDay);
}

// A run is ordinary or holds one group of rare cases.
enum class RunKind {
  kOrdinary,
  kEveryWaitState,
  kEveryOutcome,
  kEveryTaskType,
  kServerFailed,  // a task that runs once for all stations failed, and kept the others from running
  kServerAtWork,  // those tasks are still running
  kEveryText,
  kNoPopulation,
  kNoStations,
  kNoStart,
  kOneStation,
};

struct PlannedStation {
  std::string name{};
  std::string formerName{};  // "" = always had its name
  std::string identifier{};
  std::int32_t companyId = 0;
};

struct PlannedProcess {
  const ProcessTemplate* kind = nullptr;
  std::string name{};
  std::int32_t company = 0;  // index of the company whose stations take part, where not all do
};

struct PlannedRun {
  RunKind kind = RunKind::kOrdinary;
  Second start = 0;
  std::int32_t process = 0;  // index
  // Stations by index, counted on from the last to the first; 0 stations = a run without a population.
  std::int32_t firstStation = 0;
  std::int32_t stationCount = 0;
  datasource::Flag onStation = datasource::kFalse;
  bool detailed = false;
};

// Identifiers are indexes plus 1. Runs stand in the order of their start.
struct SamplePlan {
  Second now = 0;
  Second renamed = 0;  // when stations with a former name changed it
  std::vector<PlannedStation> stations{};
  std::vector<PlannedProcess> processes{};
  std::vector<PlannedRun> runs{};
  std::int32_t companies = 0;
};

SamplePlan PlanSample(const SampleOptions& options);

}  // namespace quorvel::tools
