#include "tools/SampleHistory.h"

#include <algorithm>
#include <cstddef>

#include "platform/Error.h"
#include "tools/SampleDetail.h"
#include "tools/SampleNames.h"
#include "tools/SampleParts.h"
#include "tools/SamplePlan.h"

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
  Require(options.stations >= 0 && options.runs >= 0 && options.detailRuns.value_or(0) >= 0 &&
              options.stationRows.value_or(0) >= 0,
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
    const bool former = !station.formerName.empty() && runStart < plan.renamed;
    row.stationName = former ? station.formerName : station.name;
    row.identifier = station.identifier;
    row.company = CompanyOf(station);
  }
  writer.Add(run, row);
}

void WriteRuns(const SamplePlan& plan, std::uint64_t seed, HistoryWriter& writer) {
  SampleDetail detail(plan, writer);
  for (std::size_t i = 0; i < plan.runs.size(); ++i) {
    const PlannedRun& run = plan.runs[i];
    const RunParts parts = PartsOf(plan, i, seed);
    const ProcessRunRow row{static_cast<std::int32_t>(i) + 1, run.process + 1, DateAt(run.start),
                            DateAt(EndOf(run, parts)), run.onStation};
    writer.Add(row);
    for (const StationPart& part : parts.stations) WriteStationRun(plan, row, run.start, part, writer);
    detail.Write(run, row, parts);
  }
}

}  // namespace

RowCounts WriteSampleHistory(const SampleOptions& options, const std::filesystem::path& file, Existing existing) {
  Check(options);
  const SamplePlan plan = PlanSample(options);
  HistoryWriter writer(file, existing);
  WriteNames(plan, writer);
  WriteRuns(plan, options.seed, writer);
  writer.Finish();
  return writer.counts();
}

}  // namespace quorvel::tools
