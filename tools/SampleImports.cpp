#include "tools/SampleImports.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tools/SampleNames.h"
#include "tools/SamplePeople.h"
#include "tools/SampleRandom.h"
#include "tools/SampleRare.h"

namespace quorvel::tools {
namespace {

using datasource::kFalse;
using datasource::kTrue;

constexpr std::uint64_t kImportsStream = 5;
constexpr std::int32_t kRunsPerDay = 3;
constexpr std::int32_t kMostRuns = 5000;
constexpr std::int64_t kMostUsers = 100000;  // where nothing else is asked for
constexpr std::int64_t kMostUsersPerRun = 24;
constexpr Second kMostDelay = 20;  // after the start of the process's run
constexpr std::int64_t kFailedPerMille = 70;
constexpr std::int64_t kChangedPerMille = 300;

struct Import {
  std::string_view name;
  std::string_view formerName;  // "" = always had its name
  std::size_t processes;        // that run it
  std::int64_t byHandPerMille;
  std::int64_t weight;
};
constexpr Import kImports[] = {
    {"Head office directory", "Directory", 2, 120, 55},
    {"Shop managers", "", 1, 0, 20},
    {"Seasonal staff", "", 0, 1000, 12},
    {"Équipes | remplaçants\tété", "", 1, 300, 8},
    {kLongLabel, "", 1, 500, 5},
};

constexpr std::string_view kRefusals[] = {
    "Account exists already",
    "Mail address missing",
    "Department \"Achats | Paris\" unknown",
    "Password refused: too short",
    "Line 17 of the file cannot be read:\r\n\tunexpected end",
    "Nom d'utilisateur réservé",
};

struct PlannedImport {
  Second at = 0;
  std::size_t import = 0;
  std::int32_t processId = 0;  // 0 = by hand
  std::int32_t batchNumber = 0;
};

class ImportPlanner {
 public:
  ImportPlanner(const SampleOptions& options, const SamplePlan& plan, SampleRandom& random)
      : options_(options), plan_(plan), random_(random), runsOfProcess_(plan.processes.size()) {
    for (std::size_t i = 0; i < plan.runs.size(); ++i) {
      const PlannedRun& run = plan.runs[i];
      if (run.start != 0) runsOfProcess_[static_cast<std::size_t>(run.process)].push_back(i);
    }
    std::erase_if(runsOfProcess_, [](const auto& runs) { return runs.empty(); });
  }

  // In the order of their start; runs by hand are numbered in it.
  std::vector<PlannedImport> Plan() {
    const std::int32_t count = options_.imports.value_or(std::min(kMostRuns, options_.days * kRunsPerDay));
    std::vector<PlannedImport> imports;
    imports.reserve(static_cast<std::size_t>(count));
    for (std::int32_t i = 0; i < count; ++i) imports.push_back(AnyImport());
    std::ranges::stable_sort(imports, {}, &PlannedImport::at);
    std::int32_t byHand = 0;
    for (PlannedImport& import : imports) {
      if (import.processId == 0) import.batchNumber = ++byHand;
    }
    return imports;
  }

 private:
  PlannedImport AnyImport() {
    const Import& kind = AnyByWeight(kImports, &Import::weight, random_);
    PlannedImport import{.import = static_cast<std::size_t>(&kind - kImports)};
    if (kind.processes == 0 || runsOfProcess_.empty() || random_.PerMille(kind.byHandPerMille)) {
      import.at = AnyTime(options_, plan_.now, random_);
      return import;
    }
    const auto which = static_cast<std::size_t>(random_.Below(static_cast<std::int64_t>(kind.processes)));
    const std::vector<std::size_t>& runs = runsOfProcess_[(import.import + which) % runsOfProcess_.size()];
    const std::size_t number = AnyOf(runs, random_);
    const PlannedRun& run = plan_.runs[number];
    import.at = run.start + random_.Below(kMostDelay);
    import.processId = run.process + 1;
    import.batchNumber = static_cast<std::int32_t>(number) + 1;
    return import;
  }

  const SampleOptions& options_;
  const SamplePlan& plan_;
  SampleRandom& random_;
  std::vector<std::vector<std::size_t>> runsOfProcess_;  // of those that have runs
};

// How many users each run imports.
class UserShares {
 public:
  UserShares(const SampleOptions& options, std::size_t runs)
      : options_(options),
        runs_(static_cast<std::int64_t>(runs)),
        most_(std::clamp<std::int64_t>(2 * kMostUsers / std::max<std::int64_t>(1, runs_), 1, kMostUsersPerRun)) {}

  std::int64_t Next(SampleRandom& random) {
    const std::int64_t run = run_++;
    if (!options_.importedUsers) return random.Below(most_ + 1);
    const std::int64_t all = *options_.importedUsers;
    return all * (run + 1) / runs_ - all * run / runs_;
  }

 private:
  const SampleOptions& options_;
  std::int64_t runs_;
  std::int64_t most_;
  std::int64_t run_ = 0;
};

void WriteUser(std::int32_t importRunId, std::optional<std::size_t> odd, SampleRandom& random, HistoryWriter& writer) {
  const std::string name = AnyPerson(random);
  ImportedUserRow row{.name = name, .ok = kTrue};
  if (random.PerMille(kFailedPerMille)) {
    row.ok = kFalse;
    row.report = AnyOf(kRefusals, random);
  } else if (random.PerMille(kChangedPerMille)) {
    row.report = "Changed";
  }
  if (odd) {
    // As many names as texts are hard to show; the last flag is of no writer of today.
    row.name = OddStationNames()[*odd % OddStationNames().size()];
    row.report = OddReports()[*odd];
    row.ok = *odd % 2 == 0 ? kFalse : datasource::Flag{1};
  }
  writer.Add(importRunId, row);
}

std::int32_t WriteRun(const SamplePlan& plan, const PlannedImport& planned, HistoryWriter& writer) {
  const Import& import = kImports[planned.import];
  const bool former = !import.formerName.empty() && planned.at < plan.renamed;
  return writer.Add(ImportRunRow{.importId = static_cast<std::int32_t>(planned.import) + 1,
                                 .name = former ? import.formerName : import.name,
                                 .processId = planned.processId,
                                 .batchNumber = planned.batchNumber,
                                 .start = DateAt(planned.at)});
}

}  // namespace

void WriteSampleImports(const SampleOptions& options, const SamplePlan& plan, HistoryWriter& writer) {
  SampleRandom random(options.seed, kImportsStream);
  const std::vector<PlannedImport> imports = ImportPlanner(options, plan, random).Plan();
  if (imports.empty()) return;
  std::int32_t id = 0;
  for (const Import& import : kImports) writer.Add(UserImportRow{++id, import.name});

  UserShares shares(options, imports.size());
  const RareCases rare(plan.rareCases, std::ssize(imports), std::ssize(OddReports()));
  for (std::size_t i = 0; i < imports.size(); ++i) {
    const std::int32_t runId = WriteRun(plan, imports[i], writer);
    const auto odd = rare.At(static_cast<std::int64_t>(i));
    std::int64_t users = shares.Next(random);
    if (odd && !options.importedUsers) users = std::max<std::int64_t>(1, users);
    for (std::int64_t user = 0; user < users; ++user) {
      WriteUser(runId, user == 0 ? odd : std::nullopt, random, writer);
    }
  }
}

}  // namespace quorvel::tools
