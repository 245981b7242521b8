#include "tools/SampleAlarms.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tools/SampleNames.h"
#include "tools/SamplePeople.h"
#include "tools/SampleRandom.h"
#include "tools/SampleRare.h"

namespace quorvel::tools {
namespace {

using datasource::Flag;
using datasource::kFalse;
using datasource::kTrue;

constexpr std::uint64_t kAlarmsStream = 3;
constexpr std::int64_t kStationDaysPerAlarm = 20;  // alarms that no run raised
constexpr std::int64_t kMostAlarms = 20000;
constexpr std::int64_t kFromRunPerMille = 600;
constexpr std::int64_t kOnServerPerMille = 80;
constexpr std::int64_t kRaisedByServerPerMille = 600;
constexpr Second kMostReportDelay = 50;
// Alarms are looked at in the morning; few stay active for days.
constexpr Second kFresh = 2 * kDay;
constexpr std::int64_t kFreshAcknowledgedPerMille = 250;
constexpr std::int64_t kOldAcknowledgedPerMille = 850;
constexpr Second kMostReaction = 14 * kHour;

constexpr std::string_view kServer = "Server";
constexpr std::string_view kRouter = "Router 2";

// "#" stands for a number.
struct Trouble {
  std::int32_t severity;
  std::int64_t least;
  std::int64_t most;
  std::string_view text;
};
constexpr Trouble kStationTroubles[] = {
    {3, 12, 72, "No sign of life for # hours"},         {2, 85, 99, "Disk C: # % full"},
    {1, 61, 600, "Clock differs by # seconds"},         {1, 50, 900, "Line quality poor: # repeats"},
    {2, 1, 12, "Till #: receipt printer has no paper"}, {3, 1, 12, "Till # does not start"},
    {2, 5, 90, "Running on battery for # minutes"},
};
constexpr Trouble kServerTroubles[] = {
    {3, 1, 8, "Router # does not answer"},
    {2, 2, 20, "Queue of received files: # hours behind"},
    {2, 85, 99, "Disk D: # % full"},
};
constexpr std::int32_t kRunSeverity = 2;
constexpr std::int32_t kSevereRun = 3;
constexpr std::int32_t kManyStations = 3;  // so many failed ones make a run severe

// 0 = a plain alarm, 1 to 5 what it triggered.
struct Action {
  std::int32_t number;
  std::int64_t weight;
};
constexpr Action kActions[] = {{0, 62}, {1, 22}, {2, 4}, {3, 4}, {4, 5}, {5, 3}};

// Each action from either origin, active and acknowledged, and what no writer of today leaves.
struct RareAlarm {
  std::int32_t action;
  std::string_view origin;
  Flag acknowledged;
  std::optional<std::int32_t> severity{};
  bool withoutDate = false;
  bool ofServer = false;  // and of no run
};
constexpr RareAlarm kRareAlarms[] = {
    {0, kServer, kFalse}, {0, kServer, kTrue},     {0, kRouter, kFalse},          {0, kRouter, kTrue},
    {1, kServer, kFalse}, {1, kRouter, kTrue},     {2, kServer, kTrue},           {2, kRouter, kFalse},
    {3, kServer, kFalse}, {3, kRouter, kTrue},     {4, kServer, kTrue},           {4, kRouter, kFalse},
    {5, kServer, kFalse}, {5, kRouter, kTrue},     {6, kServer, kFalse},          {-1, kRouter, kFalse},
    {42, kServer, kTrue}, {1, "server", kFalse},   {0, "server", kTrue},          {0, "", kFalse},
    {0, kServer, 1, 9},   {0, kRouter, kFalse, 0}, {0, kServer, kFalse, 3, true}, {0, kServer, kFalse, 2, false, true},
};

struct PlannedAlarm {
  Second at = 0;
  std::optional<std::size_t> run{};  // index
};

std::vector<std::size_t> FailedRuns(const SampleFacts& facts) {
  std::vector<std::size_t> runs;
  for (std::size_t i = 0; i < facts.runs.size(); ++i) {
    if (facts.runs[i].failedParts > 0) runs.push_back(i);
  }
  return runs;
}

std::vector<PlannedAlarm> PlanAlarms(const SampleOptions& options, const SamplePlan& plan, const SampleFacts& facts,
                                     SampleRandom& random) {
  const std::vector<std::size_t> failed = FailedRuns(facts);
  const std::int64_t usual =
      static_cast<std::int64_t>(failed.size()) + std::int64_t{options.stations} * options.days / kStationDaysPerAlarm;
  const std::int64_t count = options.alarms ? *options.alarms : std::min(usual, kMostAlarms);
  std::vector<PlannedAlarm> alarms(static_cast<std::size_t>(count));
  std::size_t next = 0;
  for (PlannedAlarm& alarm : alarms) {
    if (!failed.empty() && random.PerMille(kFromRunPerMille)) {
      // The newest first; again only when each had one.
      alarm.run = failed[failed.size() - 1 - next++ % failed.size()];
      const Second delay = random.Below(kMostReportDelay);
      alarm.at = std::min(plan.now, facts.runs[*alarm.run].failedAt + delay);
    } else {
      alarm.at = AnyTime(options, plan.now, random);
    }
  }
  std::ranges::stable_sort(alarms, {}, &PlannedAlarm::at);
  return alarms;
}

class AlarmTeller {
 public:
  AlarmTeller(const SamplePlan& plan, const SampleFacts& facts, SampleRandom& random, HistoryWriter& writer)
      : plan_(plan), facts_(facts), random_(random), writer_(writer) {}

  void Tell(const PlannedAlarm& alarm, std::optional<std::size_t> rare) {
    AlarmRow row{.raised = DateAt(alarm.at)};
    if (alarm.run) {
      TellRun(*alarm.run, row);
    } else {
      TellTrouble(row);
    }
    row.action = AnyByWeight(kActions, &Action::weight, random_).number;
    SetOrigin(row);
    const bool fresh = plan_.now - alarm.at < kFresh;
    if (random_.PerMille(fresh ? kFreshAcknowledgedPerMille : kOldAcknowledgedPerMille)) row.acknowledged = kTrue;
    if (rare) MakeRare(*rare, row);
    if (row.acknowledged != kFalse) Acknowledge(alarm.at, row);
    writer_.Add(row);
  }

 private:
  void TellRun(std::size_t index, AlarmRow& row) {
    const RunFact& fact = facts_.runs[index];
    row.ownerId = fact.station + 1;
    row.severity = fact.failedParts < kManyStations ? kRunSeverity : kSevereRun;
    row.processRunId = static_cast<std::int32_t>(index) + 1;
    row.processName = plan_.processes[static_cast<std::size_t>(plan_.runs[index].process)].name;
    row.text = fact.failure->report;
  }

  void TellTrouble(AlarmRow& row) {
    const bool onServer = plan_.stations.empty() || random_.PerMille(kOnServerPerMille);
    const Trouble& trouble = AnyOf(
        onServer ? std::span<const Trouble>(kServerTroubles) : std::span<const Trouble>(kStationTroubles), random_);
    if (!onServer) row.ownerId = 1 + static_cast<std::int32_t>(random_.Below(std::ssize(plan_.stations)));
    row.severity = trouble.severity;
    const std::int64_t number = trouble.least + random_.Below(trouble.most - trouble.least + 1);
    text_ = Fill(trouble.text, "#", std::to_string(number));
    row.text = text_;
  }

  void SetOrigin(AlarmRow& row) {
    row.origin = kServer;
    if (row.ownerId == 0 || random_.PerMille(kRaisedByServerPerMille)) return;
    row.origin = plan_.stations[static_cast<std::size_t>(row.ownerId - 1)].name;
  }

  static void MakeRare(std::size_t rare, AlarmRow& row) {
    const RareAlarm& alarm = kRareAlarms[rare];
    row.action = alarm.action;
    row.origin = alarm.origin;
    row.acknowledged = alarm.acknowledged;
    row.severity = alarm.severity.value_or(row.severity);
    if (alarm.withoutDate) row.raised = 0;
    if (alarm.ofServer) {
      row.ownerId = row.processRunId = 0;
      row.processName = {};
    }
    if (rare < OddReports().size()) row.text = OddReports()[rare];
  }

  void Acknowledge(Second raised, AlarmRow& row) {
    row.acknowledgedBy = AnyOf(Operators(), random_);
    const Second reaction = kMinute + random_.Below(kMostReaction);
    row.acknowledgedDate = DateAt(std::min(plan_.now, raised + reaction));
  }

  const SamplePlan& plan_;
  const SampleFacts& facts_;
  SampleRandom& random_;
  HistoryWriter& writer_;
  std::string text_;
};

}  // namespace

void WriteSampleAlarms(const SampleOptions& options, const SamplePlan& plan, const SampleFacts& facts,
                       HistoryWriter& writer) {
  SampleRandom random(options.seed, kAlarmsStream);
  const std::vector<PlannedAlarm> alarms = PlanAlarms(options, plan, facts, random);
  const RareCases rare(plan.rareCases, std::ssize(alarms), std::ssize(kRareAlarms));
  AlarmTeller teller(plan, facts, random, writer);
  for (std::size_t i = 0; i < alarms.size(); ++i) teller.Tell(alarms[i], rare.At(static_cast<std::int64_t>(i)));
}

}  // namespace quorvel::tools
