#include "tools/AptRuns.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <string_view>
#include <unordered_map>

namespace quorvel::tools {
namespace {

constexpr DateValue kLongestRun = 0.25;

struct Period {
  DateValue first;
  DateValue last;
};

std::string_view NameOf(std::string_view package) {
  return package.substr(0, package.find(':'));
}

// apt writes the machine's own architecture for packages that dpkg logs as "all".
bool IsSamePackage(std::string_view wanted, std::string_view logged) {
  const std::string_view name = NameOf(logged);
  if (name != NameOf(wanted)) return false;
  const std::string_view architecture = logged.substr(name.size());
  return logged == wanted || architecture.empty() || architecture == ":all";
}

// Whether the package is where the action wants it.
bool IsReached(const AptStep& step) {
  const auto isState = [](const DpkgRecord* record) { return !record->state.empty(); };
  const auto last = std::find_if(step.records.rbegin(), step.records.rend(), isState);
  if (last == step.records.rend()) return false;
  const std::string& state = (*last)->state;
  const bool isGone = state == "not-installed" || state == "config-files";
  // A package that nobody asked for only has to be at rest.
  if (step.change == nullptr) return state == "installed" || isGone;
  switch (step.change->action) {
    case AptAction::kPurge:
      return state == "not-installed";
    case AptAction::kRemove:
      return isGone;
    default:
      return state == "installed";
  }
}

class Matcher {
 public:
  Matcher(const AptHistory& history, const DpkgLog& log, DateValue now)
      : invocations_(history.invocations), records_(log.records), now_(now), claimed_(log.records.size()) {
    for (std::size_t i = 0; i < records_.size(); ++i) byName_[NameOf(records_[i].package)].push_back(i);
  }

  AptRuns Match() {
    AptRuns result;
    for (const AptInvocation& invocation : invocations_) result.runs.push_back(ClaimPackages(invocation));
    // Only now: records of the second in which one invocation ended and the next began are claimed by name first.
    for (AptRun& run : result.runs) {
      ClaimTriggers(run);
      Judge(run);
    }
    result.foreignRecords = static_cast<std::size_t>(std::ranges::count(claimed_, false));
    return result;
  }

 private:
  Period PeriodOf(const AptInvocation& invocation) const {
    if (invocation.end != 0) return {invocation.start, invocation.end};
    if (&invocation == &invocations_.back()) return {invocation.start, std::numeric_limits<double>::infinity()};
    return {invocation.start, std::nextafter((&invocation + 1)->start, 0.0)};
  }

  bool IsRunning(const AptInvocation& invocation) const {
    return &invocation == &invocations_.back() && invocation.end == 0 && now_ - invocation.start < kLongestRun;
  }

  AptRun ClaimPackages(const AptInvocation& invocation) {
    AptRun run{.invocation = &invocation};
    const Period period = PeriodOf(invocation);
    for (const AptChange& change : invocation.changes) {
      AptStep step{.package = change.package, .change = &change};
      const auto named = byName_.find(NameOf(change.package));
      if (named != byName_.end()) Claim(named->second, period, step);
      run.steps.push_back(std::move(step));
    }
    return run;
  }

  void Claim(const std::vector<std::size_t>& candidates, const Period& period, AptStep& step) {
    const auto dateOf = [this](std::size_t i) { return records_[i].date; };
    const auto begin = std::ranges::lower_bound(candidates, period.first, {}, dateOf);
    const auto end = std::ranges::upper_bound(candidates, period.last, {}, dateOf);
    for (auto i = begin; i < end; ++i) {
      if (claimed_[*i] || !IsSamePackage(step.package, records_[*i].package)) continue;
      claimed_[*i] = true;
      step.records.push_back(&records_[*i]);
    }
  }

  std::span<const DpkgRecord> RecordsIn(const Period& period) const {
    const auto begin = std::ranges::lower_bound(records_, period.first, {}, &DpkgRecord::date);
    const auto end = std::ranges::upper_bound(records_, period.last, {}, &DpkgRecord::date);
    return begin < end ? std::span(begin, end) : std::span<const DpkgRecord>();
  }

  void ClaimTriggers(AptRun& run) {
    for (const DpkgRecord& record : RecordsIn(PeriodOf(*run.invocation))) {
      const auto index = static_cast<std::size_t>(&record - records_.data());
      if (claimed_[index]) continue;
      claimed_[index] = true;
      auto step = std::ranges::find(run.triggers, record.package, &AptStep::package);
      if (step == run.triggers.end()) step = run.triggers.insert(step, AptStep{.package = record.package});
      step->records.push_back(&record);
    }
  }

  void Judge(AptRun& run) {
    const AptInvocation& invocation = *run.invocation;
    const bool running = IsRunning(invocation);
    const bool endedWell = invocation.end != 0 && invocation.error.empty();
    const bool logged = !RecordsIn(PeriodOf(invocation)).empty();
    const auto judge = [&](AptStep& step) {
      if (IsReached(step)) return AptState::kDone;
      if (running) return step.records.empty() ? AptState::kNotBegun : AptState::kRunning;
      return endedWell && !logged ? AptState::kDone : AptState::kFailed;
    };
    for (AptStep& step : run.steps) step.state = judge(step);
    for (AptStep& step : run.triggers) step.state = judge(step);
    if (!endedWell) TellCauseFromRest(run.steps);
    const std::size_t failed = CountIn(AptState::kFailed, run.steps) + CountIn(AptState::kFailed, run.triggers);
    run.state = running ? AptState::kRunning : endedWell && failed == 0 ? AptState::kDone : AptState::kFailed;
  }

  // Where dpkg got stuck with a package, those that it never came to did not fail themselves.
  static void TellCauseFromRest(std::vector<AptStep>& steps) {
    const auto isStuck = [](const AptStep& step) { return step.state == AptState::kFailed && !step.records.empty(); };
    if (std::ranges::none_of(steps, isStuck)) return;
    for (AptStep& step : steps) {
      if (step.records.empty() && step.state == AptState::kFailed) step.state = AptState::kNotBegun;
    }
  }

  std::span<const AptInvocation> invocations_;
  std::span<const DpkgRecord> records_;
  DateValue now_;
  std::unordered_map<std::string_view, std::vector<std::size_t>> byName_;
  std::vector<bool> claimed_;
};

}  // namespace

AptRuns MatchAptRuns(const AptHistory& history, const DpkgLog& log, DateValue now) {
  return Matcher(history, log, now).Match();
}

std::size_t CountIn(AptState state, std::span<const AptStep> steps) {
  return static_cast<std::size_t>(std::ranges::count(steps, state, &AptStep::state));
}

}  // namespace quorvel::tools
