#include "Histories.h"

#include <string>
#include <string_view>

#include "hub/sqlite/Database.h"
#include "tools/SampleHistory.h"

namespace quorvel::bench {
namespace {

constexpr std::int32_t kStations = 3'000;
constexpr std::int32_t kProcesses = 200;
constexpr std::int32_t kDays = 365;
constexpr std::int32_t kRowsOfRun = 50;

constexpr std::string_view kProbe = R"sql(
CREATE TEMP TABLE number AS
  WITH RECURSIVE n(i) AS (VALUES (1) UNION ALL SELECT i + 1 FROM n WHERE i < 500) SELECT i FROM n;
CREATE TEMP TABLE probe AS SELECT 10000000 AS id, 46300.5 AS date;

INSERT INTO process (process_id, name) SELECT id, '! Probe' FROM probe;
INSERT INTO station (station_id, name, identifier)
  SELECT id + i, printf('! %03d', i), printf('P-%03d', i) FROM probe, number;
INSERT INTO process_run (process_run_id, process_id, start_date, end_date)
  SELECT id + i, id, date - i, date - i + 0.25 FROM probe, number WHERE i <= 15;
INSERT INTO station_run (process_run_id, station_id, station_name, identifier, report, start_date, end_date, ok,
                         executed, process_id, run_start_date)
  SELECT process_run_id, station_id, name, identifier, 'done by ' || name, start_date, end_date, -1, -1, process_id,
         start_date
  FROM probe JOIN process_run ON process_id = id, station WHERE station_id > id;
INSERT INTO task_run (task_run_id, process_run_id, station_id, position, task_id, task_name, task_type, station_scope,
                      start_date, end_date, ok)
  SELECT id + 20 * (station_id - id) + i, process_run_id, station_id, i, i, 'Task ' || i, 'BatchServer', station_id,
         start_date, end_date, -1
  FROM probe JOIN station_run ON process_run_id = id + 1, number WHERE i <= 20;
INSERT INTO step_log (task_run_id, step_name, execute_where, start_date, end_date, ok, step_kind)
  SELECT task_run_id, 'Step ' || i, 'Station', start_date, end_date, -1, 1
  FROM probe JOIN task_run ON task_run_id > id AND task_id = 1, number WHERE i <= 20;
INSERT INTO command_log (step_log_id, kind, text, start_date, end_date, ok)
  SELECT step_log_id, 1, 'command ' || i, s.start_date, s.end_date, -1
  FROM probe JOIN step_log s ON task_run_id > id AND step_name = 'Step 1', number WHERE i <= 20;
)sql";

void Change(const std::filesystem::path& history, std::string_view script) {
  const hub::Database database(history, hub::Access::kReadWrite);
  database.Execute("PRAGMA synchronous = OFF; BEGIN");
  database.Execute(script);
  database.Execute("COMMIT");
}

std::filesystem::path Write(const std::filesystem::path& folder, const std::string& name,
                            const tools::SampleOptions& options) {
  std::filesystem::create_directories(folder);
  std::filesystem::path file = folder / name;
  tools::WriteSampleHistory(options, file, tools::Existing::kReplace);
  return file;
}

}  // namespace

std::filesystem::path MakeHistory(const std::filesystem::path& folder, std::int32_t rows) {
  return Write(
      folder, std::to_string(rows) + ".db",
      {.stations = kStations, .runs = rows / kRowsOfRun, .days = kDays, .processes = kProcesses, .stationRows = rows});
}

std::filesystem::path MakeLongRunHistory(const std::filesystem::path& folder) {
  constexpr std::int32_t kStationsOfRun = 1'000'000;
  std::filesystem::path file = Write(folder, "long-run.db",
                                     {.stations = kStationsOfRun,
                                      .runs = 1,
                                      .days = 30,
                                      .processes = 1,
                                      .detailRuns = 0,
                                      .stationRows = kStationsOfRun});
  Change(file, "UPDATE station_run SET ok = -1, not_ok = 0, report = report || ' on ' || station_name");
  return file;
}

void AddProbe(const std::filesystem::path& history) {
  Change(history, kProbe);
}

}  // namespace quorvel::bench
