#include "tools/SampleParts.h"

#include <algorithm>
#include <span>

#include "tools/SampleRandom.h"

namespace quorvel::tools {
namespace {

using datasource::Flag;
using datasource::kFalse;
using datasource::kTrue;

constexpr std::uint64_t kFirstRunStream = 1000;

// How a night went: chances in a thousand for each station, for so many nights of a hundred.
struct Quality {
  std::int64_t nights;
  std::int64_t notOk;
  std::int64_t notExecuted;
  std::int64_t unknown;
  bool serverFails;
};
constexpr Quality kQualities[] = {{58, 0, 0, 0, false},   {28, 8, 0, 0, false}, {7, 20, 15, 4, false},
                                  {4, 120, 30, 8, false}, {2, 0, 0, 40, false}, {1, 0, 0, 0, true}};
constexpr std::int64_t kWeakStationNotOk = 60;
constexpr Second kServerTaskSeconds = 45;

struct Flags {
  PartState state;
  ResultFlags result;
  Flag unknown;
  Flag executed;
};

constexpr Flags FlagsOf(PartState state) {
  switch (state) {
    case PartState::kOk:
      return {state, kSuccessResult, kFalse, kTrue};
    case PartState::kNotOk:
      return {state, kFailureResult, kFalse, kTrue};
    case PartState::kInProgress:
      return {state, kRunningResult, kFalse, kTrue};
    case PartState::kUnknown:
      return {state, kNoResult, kTrue, kTrue};
    case PartState::kNotExecuted:
    case PartState::kOdd:
      break;
  }
  return {PartState::kNotExecuted, kNoResult, kFalse, kFalse};
}

constexpr Flags kEveryOutcome[] = {
    FlagsOf(PartState::kOk),
    FlagsOf(PartState::kNotOk),
    FlagsOf(PartState::kInProgress),
    FlagsOf(PartState::kNotExecuted),
    FlagsOf(PartState::kUnknown),
    {PartState::kOdd, {.ok = kTrue, .notOk = kTrue}, kFalse, kTrue},
    {PartState::kOdd, {.ok = 1}, kFalse, 1},
    {PartState::kOdd, {.notOk = 1}, kFalse, 1},
    {PartState::kOdd, {.inProgress = 1}, kFalse, 1},
    {PartState::kOdd, kNoResult, 1, 1},
    {PartState::kOdd, kNoResult, kFalse, kTrue},
};

void SetFlags(StationPart& part, const Flags& flags) {
  part.state = flags.state;
  part.result = flags.result;
  part.unknown = flags.unknown;
  part.executed = flags.executed;
}

const Quality& AnyQuality(SampleRandom& random) {
  return AnyByWeight(kQualities, &Quality::nights, random);
}

class RunTeller {
 public:
  RunTeller(const SamplePlan& plan, std::size_t runNumber, std::uint64_t seed)
      : plan_(plan),
        run_(plan.runs[runNumber]),
        process_(*plan.processes[static_cast<std::size_t>(run_.process)].kind),
        random_(seed, kFirstRunStream + runNumber),
        quality_(run_.kind == RunKind::kOrdinary ? AnyQuality(random_) : kQualities[0]) {
    for (std::size_t i = 0; i < process_.tasks.size(); ++i) {
      (process_.tasks[i]->onStation ? stationTasks_ : serverTasks_).push_back(i);
    }
  }

  RunParts Tell() {
    RunParts parts;
    parts.server = ServerPart();
    if (run_.stationCount == 0 && run_.kind != RunKind::kNoStations) parts.stations.push_back(parts.server);
    parts.stations.reserve(static_cast<std::size_t>(run_.stationCount));
    const auto all = static_cast<std::int32_t>(plan_.stations.size());
    for (std::int32_t i = 0; i < run_.stationCount; ++i) {
      parts.stations.push_back(StationPartOf((run_.firstStation + i) % all, parts.server));
    }
    TellRareCases(parts);
    return parts;
  }

 private:
  StationPart ServerPart() {
    StationPart part;
    if (run_.kind == RunKind::kNoStart) {
      SetFlags(part, FlagsOf(PartState::kNotExecuted));
      return part;
    }
    part.start = run_.start;
    const bool alone = run_.stationCount == 0;
    const Second length = alone ? WorkSeconds() : kServerTaskSeconds * static_cast<Second>(serverTasks_.size());
    const bool fails = (quality_.serverFails && !serverTasks_.empty()) || run_.kind == RunKind::kServerFailed;
    EndAt(part, part.start + length, fails ? PartState::kNotOk : PartState::kOk);
    return part;
  }

  StationPart StationPartOf(std::int32_t station, const StationPart& server) {
    StationPart part;
    part.station = station;
    part.start = server.end + random_.Below(process_.windowMinutes * kMinute + 1);
    const Second end = part.start + WorkSeconds();
    const bool keptFromIt = server.state == PartState::kNotOk;
    const PartState outcome = keptFromIt ? PartState::kNotExecuted : Outcome(station);
    if (server.state == PartState::kInProgress || part.start > plan_.now) {
      SetFlags(part, FlagsOf(PartState::kInProgress));
      part.start = 0;
      part.waitState = server.state == PartState::kInProgress ? "Waiting prerequisite" : "Waiting com";
      part.stoppedAtTask = FirstTask();
    } else {
      EndAt(part, end, outcome);
    }
    if (keptFromIt && part.state == PartState::kNotExecuted) part.report = "Not begun: " + server.report;
    return part;
  }

  Second WorkSeconds() {
    const Second most = process_.workMinutes * kMinute;
    return most / 2 + random_.Below(most / 2 + 1);
  }

  PartState Outcome(std::int32_t station) {
    const bool weak = IsWeakStation(station) && run_.kind == RunKind::kOrdinary;
    const std::int64_t notOk = quality_.notOk + (weak ? kWeakStationNotOk : 0);
    const std::int64_t draw = random_.Below(1000);
    if (draw < notOk) return PartState::kNotOk;
    if (draw < notOk + quality_.notExecuted) return PartState::kNotExecuted;
    if (draw < notOk + quality_.notExecuted + quality_.unknown) return PartState::kUnknown;
    return PartState::kOk;
  }

  // Gives the part its end and outcome; one whose end lies ahead is in progress.
  void EndAt(StationPart& part, Second end, PartState outcome) {
    if (end > plan_.now) {
      SetFlags(part, FlagsOf(PartState::kInProgress));
      part.waitState = random_.PerMille(500) ? "To run" : "Waiting station in com";
      Stop(part);
      return;
    }
    part.end = end;
    Conclude(part, outcome);
  }

  void Conclude(StationPart& part, PartState outcome) {
    SetFlags(part, FlagsOf(outcome));
    switch (outcome) {
      case PartState::kOk:
        part.report = SuccessReport();
        break;
      case PartState::kNotOk:
        Stop(part);
        part.report = part.failure->report;
        break;
      case PartState::kUnknown:
        Stop(part);
        part.report = "No report received from the station";
        break;
      case PartState::kNotExecuted:
        part.start = 0;
        part.end = 0;
        part.report = "Switched off during the run";
        break;
      case PartState::kInProgress:
      case PartState::kOdd:
        break;
    }
  }

  std::string SuccessReport() {
    // Drawn one after the other: compilers order the arguments of a call as they like.
    const std::string_view text = AnyOf(SuccessReports(), random_);
    const std::int64_t number = 12 + random_.Below(4000);
    return Fill(text, "#", std::to_string(number));
  }

  // The tasks that a part can stop at: the station's own, or all where there are none.
  const std::vector<std::size_t>& Tasks(const StationPart& part) const {
    const bool own = part.station != kNoStation && !stationTasks_.empty();
    return own || serverTasks_.empty() ? stationTasks_ : serverTasks_;
  }

  std::size_t FirstTask() const { return stationTasks_.empty() ? 0 : stationTasks_.front(); }

  void Stop(StationPart& part) {
    const std::span<const std::size_t> tasks = Tasks(part);
    part.stoppedAtTask = run_.kind == RunKind::kServerFailed ? tasks.front() : AnyOf(tasks, random_);
    const std::span<const StepTemplate> steps = process_.tasks[part.stoppedAtTask]->steps;
    part.stoppedAtStep = static_cast<std::size_t>(random_.Below(static_cast<std::int64_t>(steps.size())));
    // It is always a command that fails.
    if (steps[part.stoppedAtStep].commands.empty()) part.stoppedAtStep = 0;
    part.failure = &AnyOf(FailuresOf(steps[part.stoppedAtStep].risk), random_);
  }

  void TellRareCases(RunParts& parts) {
    if (run_.kind == RunKind::kEveryWaitState) TellWaitStates(parts.stations);
    if (run_.kind == RunKind::kEveryOutcome) TellOutcomes(parts.stations, std::span(kEveryOutcome));
    // The audit has stations in the states of today's writers alone, so that its tasks show each of their icons.
    if (run_.kind == RunKind::kEveryTaskType) TellOutcomes(parts.stations, std::span(kEveryOutcome).first(5));
    if (run_.kind == RunKind::kEveryText) TellTexts(parts.stations);
  }

  void TellWaitStates(std::vector<StationPart>& parts) const {
    const std::span<const std::string_view> texts = WaitStates();
    for (std::size_t i = 0; i < texts.size(); ++i) {
      StationPart& part = parts[i];
      part.waitState = texts[i];
      part.report.clear();
      part.end = 0;
      part.stoppedAtTask = FirstTask();
      part.stoppedAtStep = 0;
      SetFlags(part, FlagsOf(PartState::kInProgress));
    }
  }

  void TellOutcomes(std::vector<StationPart>& parts, std::span<const Flags> outcomes) {
    for (std::size_t i = 0; i < outcomes.size(); ++i) {
      Conclude(parts[i], outcomes[i].state);
      SetFlags(parts[i], outcomes[i]);
      if (outcomes[i].result.inProgress == kFalse) continue;
      parts[i].end = 0;
      Stop(parts[i]);
    }
  }

  void TellTexts(std::vector<StationPart>& parts) {
    const std::span<const std::string> reports = OddReports();
    for (std::size_t i = 0; i < reports.size(); ++i) {
      Conclude(parts[i], i % 2 == 0 ? PartState::kOk : PartState::kNotOk);
      parts[i].report = reports[i];
    }
  }

  const SamplePlan& plan_;
  const PlannedRun& run_;
  const ProcessTemplate& process_;
  SampleRandom random_;
  const Quality& quality_;
  std::vector<std::size_t> serverTasks_;
  std::vector<std::size_t> stationTasks_;
};

}  // namespace

RunParts PartsOf(const SamplePlan& plan, std::size_t runNumber, std::uint64_t seed) {
  return RunTeller(plan, runNumber, seed).Tell();
}

}  // namespace quorvel::tools
