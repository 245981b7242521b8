#include "tools/SamplePlan.h"

#include <algorithm>
#include <cstddef>
#include <span>

#include "tools/SampleNames.h"
#include "tools/SampleRandom.h"

namespace quorvel::tools {
namespace {

using datasource::kFalse;
using datasource::kTrue;

constexpr std::uint64_t kRunsStream = 1;
constexpr std::int32_t kFewStations = 5;
constexpr std::int64_t kDetailBudget = 20000;  // station rows with tasks, where nothing else is asked for

// Where the rare cases are put.
struct RareRun {
  RunKind kind;
  const ProcessTemplate& (*process)();  // null = an ordinary process
  Second beforeNow;                     // 0 = has no start
  std::int32_t stations;                // at most
  datasource::Flag onStation = kFalse;
};
constexpr std::int32_t kEverybody = 1'000'000'000;
constexpr RareRun kRareRuns[] = {
    {RunKind::kEveryWaitState, nullptr, 210 * kMinute, kEverybody},
    {RunKind::kEveryOutcome, ProtocolCheckProcess, 14 * kHour, kStationsForRareCases},
    {RunKind::kEveryTaskType, SiteAuditProcess, 3 * kHour, 6},
    {RunKind::kServerFailed, SiteAuditProcess, 20 * kHour, 6},
    {RunKind::kServerAtWork, SiteAuditProcess, 2 * kMinute, 4},
    {RunKind::kEveryText, OddNamesProcess, 13 * kHour, kStationsForRareCases},
    {RunKind::kNoPopulation, StatisticsProcess, 9 * kHour, 0},
    {RunKind::kNoStations, StatisticsProcess, 11 * kHour, 0},
    {RunKind::kNoStart, StatisticsProcess, 0, 0},
    {RunKind::kOneStation, ProtocolCheckProcess, 5 * kHour, 1, 1},
    {RunKind::kOneStation, OddNamesProcess, 6 * kHour, 1, kTrue},
};
constexpr const ProcessTemplate& (*kRareProcesses[])() = {SiteAuditProcess, ProtocolCheckProcess, OddNamesProcess,
                                                          StatisticsProcess};
// "Till software 7.2 rollout", where a sample is large enough to have it.
constexpr std::int32_t kWaitingProcess = 3;

std::int32_t Size(std::size_t size) {
  return static_cast<std::int32_t>(size);
}

std::int32_t ProcessCount(const SampleOptions& options) {
  if (options.processes) return *options.processes;
  const std::int32_t kinds = Size(OrdinaryProcesses().size() + std::size(kRareProcesses));
  return std::min(options.runs, std::min(kinds, 2 + options.runs / 10));
}

bool HasRareCases(const SampleOptions& options) {
  return options.stations >= kStationsForRareCases && options.runs >= kRunsForRareCases &&
         ProcessCount(options) >= kProcessesForRareCases;
}

// The first station of a company; stations of one company stand together.
std::int32_t FirstStation(const SamplePlan& plan, std::int32_t company) {
  const auto stations = static_cast<std::int64_t>(plan.stations.size());
  return static_cast<std::int32_t>((company * stations + plan.companies - 1) / plan.companies);
}

void PlanStations(SamplePlan& plan, const SampleOptions& options) {
  plan.companies = std::min(Size(Companies().size()), options.stations);
  plan.stations.resize(static_cast<std::size_t>(options.stations));
  for (std::int32_t company = 0; company < plan.companies; ++company) {
    const std::int32_t first = FirstStation(plan, company);
    for (std::int32_t i = first; i < FirstStation(plan, company + 1); ++i) {
      plan.stations[static_cast<std::size_t>(i)] = {
          StationName(Companies()[static_cast<std::size_t>(company)], i - first), "", StationIdentifier(i + 1),
          company + 1};
    }
  }
}

void PlanOddStations(SamplePlan& plan) {
  const std::span<const std::string_view> names = OddStationNames();
  const std::size_t distance = plan.stations.size() / (names.size() + 1);
  for (std::size_t i = 0; i < names.size(); ++i) plan.stations[(i + 1) * distance].name = names[i];
  PlannedStation& nameless = plan.stations[names.size() * distance];
  nameless.identifier.clear();
  nameless.companyId = 0;
  PlannedStation& renamed = plan.stations[distance + 1];
  renamed.formerName = renamed.name + " (annex)";
}

// The nth ordinary process: one of each kind, then the same for one company after the other.
PlannedProcess OrdinaryProcess(const SamplePlan& plan, std::int32_t n) {
  const std::int32_t kinds = Size(OrdinaryProcesses().size());
  const std::int32_t round = n / kinds;
  PlannedProcess process;
  process.kind = &OrdinaryProcesses()[static_cast<std::size_t>(n % kinds)];
  process.name = process.kind->name;
  process.company = (round == 0 ? n : round - 1) % std::max(1, plan.companies);
  if (round > 0) {
    const std::int32_t companies = Size(Companies().size());
    process.name.append(", ").append(Companies()[static_cast<std::size_t>((round - 1) % companies)].name);
    if (round > companies) process.name += " " + std::to_string((round - 1) / companies + 1);
  }
  return process;
}

void PlanProcesses(SamplePlan& plan, const SampleOptions& options) {
  const std::int32_t rare = HasRareCases(options) ? Size(std::size(kRareProcesses)) : 0;
  for (std::int32_t i = 0; i < ProcessCount(options) - rare; ++i) plan.processes.push_back(OrdinaryProcess(plan, i));
  if (rare == 0) return;
  for (const auto& process : kRareProcesses) plan.processes.push_back({&process(), std::string(process().name), 0});
}

std::int32_t AnyProcess(const std::vector<PlannedProcess>& processes, SampleRandom& random) {
  const auto weight = [](const PlannedProcess& process) { return process.kind->weight; };
  return static_cast<std::int32_t>(&AnyByWeight(processes, weight, random) - processes.data());
}

void SetPopulation(PlannedRun& run, const SamplePlan& plan, SampleRandom& random) {
  const PlannedProcess& process = plan.processes[static_cast<std::size_t>(run.process)];
  const std::int32_t all = Size(plan.stations.size());
  const bool ownRun =
      process.kind->place == Place::kStation || (process.kind->place == Place::kBoth && random.PerMille(300));
  run.onStation = ownRun && all > 0 ? kTrue : kFalse;
  run.firstStation = static_cast<std::int32_t>(random.Below(all));
  const Population population = ownRun ? Population::kOne : process.kind->population;
  if (all == 0 || population == Population::kNone) {
    run.stationCount = 0;
  } else if (!ownRun && IsForCompany(process)) {
    run.firstStation = FirstStation(plan, process.company);
    run.stationCount = FirstStation(plan, process.company + 1) - run.firstStation;
  } else if (population == Population::kAll) {
    run.firstStation = 0;
    run.stationCount = all;
  } else {
    run.stationCount = std::min(all, population == Population::kOne ? 1 : kFewStations);
  }
}

void PlanOrdinaryRuns(SamplePlan& plan, const SampleOptions& options, std::int32_t count) {
  SampleRandom random(options.seed, kRunsStream);
  // Each process runs once at least.
  const auto ordinary =
      std::ranges::count_if(plan.processes, [](const PlannedProcess& p) { return p.kind->weight > 0; });
  for (std::int32_t i = 0; i < count; ++i) {
    PlannedRun run;
    run.start = AnyTime(options, plan.now, random);
    run.process = i < ordinary ? i : AnyProcess(plan.processes, random);
    SetPopulation(run, plan, random);
    plan.runs.push_back(run);
  }
}

void PlanRareRuns(SamplePlan& plan) {
  const std::int32_t ordinary = Size(plan.processes.size() - std::size(kRareProcesses));
  for (const RareRun& rare : kRareRuns) {
    PlannedRun run;
    run.kind = rare.kind;
    run.start = rare.beforeNow == 0 ? 0 : plan.now - rare.beforeNow;
    run.stationCount = std::min(rare.stations, Size(plan.stations.size()));
    run.onStation = rare.onStation;
    run.process = std::min(kWaitingProcess, ordinary - 1);
    if (rare.process != nullptr) {
      const auto found = std::ranges::find(plan.processes, &rare.process(), &PlannedProcess::kind);
      run.process = static_cast<std::int32_t>(found - plan.processes.begin());
    }
    run.detailed = rare.process != nullptr;
    plan.runs.push_back(run);
  }
}

std::int64_t RowsOf(const PlannedRun& run) {
  return run.kind == RunKind::kNoStations ? 0 : std::max(1, run.stationCount);
}

// Runs of everybody or of a company may have more or fewer stations than they would have.
bool CanBeFitted(const PlannedRun& run) {
  return run.kind == RunKind::kOrdinary && run.onStation == kFalse && run.stationCount > kFewStations;
}

// Scales the populations that may change so that all rows together are `wanted`; what one run cannot take goes to the
// runs after it.
void FitStationRows(SamplePlan& plan, std::int64_t wanted) {
  std::int64_t fitted = 0;
  std::int64_t fixed = 0;
  for (const PlannedRun& run : plan.runs) (CanBeFitted(run) ? fitted : fixed) += RowsOf(run);
  const std::int64_t target = std::max<std::int64_t>(0, wanted - fixed);
  const std::int64_t most = Size(plan.stations.size());
  std::int64_t seen = 0;
  std::int64_t given = 0;
  for (PlannedRun& run : plan.runs) {
    if (!CanBeFitted(run)) continue;
    seen += run.stationCount;
    const std::int64_t due = target * seen / fitted - given;
    run.stationCount = static_cast<std::int32_t>(std::clamp<std::int64_t>(due, 1, most));
    given += run.stationCount;
  }
}

// Positions of the runs, the last run of each process first, then the others, newest first.
std::vector<std::size_t> ByInterest(const SamplePlan& plan) {
  std::vector<bool> seen(plan.processes.size());
  std::vector<std::size_t> last;
  std::vector<std::size_t> others;
  for (std::size_t i = plan.runs.size(); i-- > 0;) {
    const auto process = static_cast<std::size_t>(plan.runs[i].process);
    (seen[process] ? others : last).push_back(i);
    seen[process] = true;
  }
  last.insert(last.end(), others.begin(), others.end());
  return last;
}

void ChooseDetailed(SamplePlan& plan, std::optional<std::int32_t> count) {
  std::int64_t budget = count ? *count : kDetailBudget;
  for (const std::size_t i : ByInterest(plan)) {
    PlannedRun& run = plan.runs[i];
    const std::int64_t cost = count ? 1 : RowsOf(run);
    if (cost > budget) continue;
    budget -= cost;
    run.detailed = true;
  }
}

}  // namespace

SamplePlan PlanSample(const SampleOptions& options) {
  SamplePlan plan;
  plan.now = SecondOf(options.now);
  plan.renamed = plan.now - options.days * kDay / 2;
  PlanStations(plan, options);
  PlanProcesses(plan, options);
  plan.rareCases = HasRareCases(options);
  PlanOrdinaryRuns(plan, options, options.runs - (plan.rareCases ? Size(std::size(kRareRuns)) : 0));
  if (plan.rareCases) {
    PlanOddStations(plan);
    PlanRareRuns(plan);
  }
  std::ranges::stable_sort(plan.runs, {}, &PlannedRun::start);
  if (options.stationRows) FitStationRows(plan, *options.stationRows);
  ChooseDetailed(plan, options.detailRuns);
  return plan;
}

std::string_view NameAt(const SamplePlan& plan, const PlannedStation& station, Second time) {
  return !station.formerName.empty() && time < plan.renamed ? station.formerName : station.name;
}

bool IsForCompany(const PlannedProcess& process) {
  const Population population = process.kind->population;
  return population == Population::kCompany || (population == Population::kAll && process.name != process.kind->name);
}

}  // namespace quorvel::tools
