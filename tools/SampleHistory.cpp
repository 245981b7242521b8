#include "tools/SampleHistory.h"

#include <algorithm>
#include <cstddef>

#include "platform/Error.h"
#include "tools/SampleAlarms.h"
#include "tools/SampleBackups.h"
#include "tools/SampleConnections.h"
#include "tools/SampleDetail.h"
#include "tools/SampleImports.h"
#include "tools/SampleNames.h"
#include "tools/SampleParts.h"
#include "tools/SamplePlan.h"
#include "tools/SampleSystemLog.h"

namespace quorvel::tools {
namespace {

using datasource::kFalse;
using datasource::kTrue;

struct Label {
  std::string_view name;
  std::string_view value;
};
// The display periods: a week on the server, a month on a station.
constexpr Label kLabels[] = {{"UseType", "SERVEUR"},
                             {"SERVER_LOGS_DISPLAY_PERIOD", "7"},
                             {"SERVER_LOGS_DISPLAY_TYPE", "1"},
                             {"STATION_LOGS_DISPLAY_PERIOD", "1"},
                             {"STATION_LOGS_DISPLAY_TYPE", "0"}};

void Require(bool holds, const char* otherwise) {
  if (!holds) throw Error(SystemError::kInvalidCall, otherwise);
}

void Check(const SampleOptions& options) {
  const std::optional<std::int32_t> counts[] = {options.stations,      options.runs,           options.detailRuns,
                                                options.stationRows,   options.communications, options.alarms,
                                                options.saves,         options.saveFiles,      options.imports,
                                                options.importedUsers, options.systemRows};
  Require(std::ranges::none_of(counts, [](const auto& count) { return count.value_or(0) < 0; }),
          "A sample cannot hold a negative number of anything");
  Require(options.processes.value_or(1) >= 1, "A sample needs a process");
  Require(options.days >= 1, "A sample needs a day");
  Require(CivilFromDate(options.now).has_value() && options.now > options.days,
          "The days of a sample must lie after 1899");
}

std::string_view CompanyOf(const PlannedStation& station) {
  return station.companyId == 0 ? "" : Companies()[static_cast<std::size_t>(station.companyId - 1)].name;
}

void WriteNames(const SamplePlan& plan, HistoryWriter& writer) {
  for (const Label& label : kLabels) writer.AddLabel(label.name, label.value);
  for (std::int32_t i = 0; i < plan.companies; ++i) {
    writer.Add(CompanyRow{i + 1, Companies()[static_cast<std::size_t>(i)].name});
  }
  std::int32_t id = 0;
  for (const PlannedStation& station : plan.stations) {
    writer.Add(StationRow{++id, station.name, station.identifier, station.companyId});
  }
  id = 0;
  for (const PlannedProcess& process : plan.processes) {
    const Place place = process.kind->place;
    writer.Add(ProcessRow{++id, process.name, place == Place::kStation ? kFalse : kTrue,
                          place == Place::kServer ? kFalse : kTrue});
  }
}

Second EndOf(const PlannedRun& run, const RunParts& parts) {
  const auto isRunning = [](const StationPart& part) { return part.result.inProgress != kFalse; };
  if (run.kind == RunKind::kNoStart || isRunning(parts.server) || std::ranges::any_of(parts.stations, isRunning)) {
    return 0;
  }
  Second end = parts.server.end;
  for (const StationPart& part : parts.stations) end = std::max(end, part.end);
  return end;
}

void WriteStationRun(const SamplePlan& plan, const ProcessRunRow& run, Second runStart, const StationPart& part,
                     HistoryWriter& writer) {
  StationRunRow row{.stationId = part.station + 1,
                    .report = part.report,
                    .start = DateAt(part.start),
                    .end = DateAt(part.end),
                    .result = part.result,
                    .unknown = part.unknown,
                    .executed = part.executed,
                    .waitState = part.waitState};
  if (part.station != kNoStation) {
    const PlannedStation& station = plan.stations[static_cast<std::size_t>(part.station)];
    row.stationName = NameAt(plan, station, runStart);
    row.identifier = station.identifier;
    row.company = CompanyOf(station);
  }
  writer.Add(run, row);
}

RunFact FactOf(const PlannedRun& run, const RunParts& parts) {
  RunFact fact{.end = EndOf(run, parts)};
  for (const StationPart& part : parts.stations) {
    if (part.state != PartState::kNotOk || fact.failedParts++ > 0) continue;
    fact.station = part.station;
    fact.failedAt = part.end;
    fact.failure = part.failure;
  }
  return fact;
}

SampleFacts WriteRuns(const SamplePlan& plan, std::uint64_t seed, HistoryWriter& writer) {
  SampleFacts facts;
  SampleDetail detail(plan, writer, facts);
  for (std::size_t i = 0; i < plan.runs.size(); ++i) {
    const PlannedRun& run = plan.runs[i];
    const RunParts parts = PartsOf(plan, i, seed);
    facts.runs.push_back(FactOf(run, parts));
    const ProcessRunRow row{static_cast<std::int32_t>(i) + 1, run.process + 1, DateAt(run.start),
                            DateAt(facts.runs.back().end), run.onStation};
    writer.Add(row);
    for (const StationPart& part : parts.stations) WriteStationRun(plan, row, run.start, part, writer);
    detail.Write(run, row, parts);
  }
  return facts;
}

}  // namespace

RowCounts WriteSampleHistory(const SampleOptions& options, const std::filesystem::path& file, Existing existing) {
  Check(options);
  const SamplePlan plan = PlanSample(options);
  HistoryWriter writer(file, existing);
  WriteNames(plan, writer);
  const SampleFacts facts = WriteRuns(plan, options.seed, writer);
  WriteSampleConnections(options, plan, facts, writer);
  WriteSampleAlarms(options, plan, facts, writer);
  WriteSampleBackups(options, plan, writer);
  WriteSampleImports(options, plan, writer);
  WriteSampleSystemLog(options, plan, facts, writer);
  writer.Finish();
  return writer.counts();
}

}  // namespace quorvel::tools
