// Who and what is in a sample: its stations, processes and runs, before anything is written.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "datasource/Column.h"
#include "tools/SampleHistory.h"
#include "tools/SampleProcesses.h"
#include "tools/SampleTime.h"

namespace quorvel::tools {

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
  bool rareCases = false;  // the sample is large enough to hold every rare case
};

SamplePlan PlanSample(const SampleOptions& options);

// What a station was called at that time.
std::string_view NameAt(const SamplePlan& plan, const PlannedStation& station, Second time);

// Some stations, by index, have bad lines or old disks.
constexpr bool IsWeakStation(std::int32_t station) {
  constexpr std::int32_t kEvery = 61;
  return station % kEvery == kEvery / 2;
}

// Whether only stations of the process's company take part in its runs.
bool IsForCompany(const PlannedProcess& process);

}  // namespace quorvel::tools
