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

// Every probe has these stations.
constexpr std::string_view kProbeStations = R"sql(
CREATE TEMP TABLE number AS
  WITH RECURSIVE n(i) AS (VALUES (1) UNION ALL SELECT i + 1 FROM n WHERE i < 500) SELECT i FROM n;
CREATE TEMP TABLE probe AS SELECT 10000000 AS id, 46300.5 AS date;
INSERT INTO station (station_id, name, identifier)
  SELECT id + i, printf('! %03d', i), printf('P-%03d', i) FROM probe, number;
)sql";

constexpr std::string_view kProbeRuns = R"sql(
INSERT INTO process (process_id, name) SELECT id, '! Probe' FROM probe;
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

// In January 2027, which no other row of the histories reaches.
constexpr std::string_view kProbeViews = R"sql(
UPDATE probe SET date = 46388.25;
INSERT INTO communication (communication_id, station_id, station_name, start_date, end_date, size_kb, report, ok)
  SELECT id + 500 * day.i + s.i, id + s.i, printf('! %03d', s.i), date + day.i + s.i / 1000.0,
         date + day.i + s.i / 1000.0 + 0.001, s.i, '', -1
  FROM probe, number day, number s WHERE day.i <= 20;
INSERT INTO command_log (communication_id, communication_date, kind, text, start_date, end_date, ok)
  SELECT communication_id, c.start_date, 1, 'command ' || i, c.start_date, c.start_date, -1
  FROM probe JOIN communication c ON communication_id > id AND station_id IN (id + 1, id + 500), number WHERE i <= 20;

INSERT INTO alarm (alarm_id, owner_id, raised_date, severity, origin, text)
  SELECT id + 500 * day.i + s.i, id + s.i, date + day.i + s.i / 1000.0, 1, 'Server', 'alarm ' || day.i
  FROM probe, number day, number s WHERE day.i <= 20;

INSERT INTO backup (backup_id, station_id, name, saved_date, size_kb, ok)
  SELECT id + 500 * n.i + s.i, id + s.i, 'Base', date + n.i / 1000.0, n.i, -1
  FROM probe, number n, number s WHERE n.i <= 20;
INSERT INTO backup_file (backup_id, name, path, saved_date, size_kb, ok)
  SELECT backup_id, 'file ' || i, '/folder/' || (i % 4), saved_date, i, -1
  FROM probe JOIN backup ON backup_id > id AND station_id < id + 20, number WHERE i <= 20;

INSERT INTO user_import (user_import_id, name) SELECT id, 'Probe' FROM probe;
INSERT INTO import_run (import_run_id, user_import_id, name, process_id, batch_number, start_date)
  SELECT id + i, id, 'Probe', id + i, i, date FROM probe, number WHERE i <= 20;
INSERT INTO imported_user (import_run_id, user_name, ok)
  SELECT id + r.i, 'User ' || u.i, -1 FROM probe, number r, number u WHERE r.i <= 20 AND u.i <= 20;
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

std::filesystem::path MakeViewsHistory(const std::filesystem::path& folder, std::int32_t rows) {
  return Write(folder, "views-" + std::to_string(rows) + ".db",
               {.stations = kStations,
                .runs = 1,
                .days = kDays,
                .processes = 1,
                .communications = rows,
                .alarms = rows,
                .saves = rows,
                .saveFiles = rows,
                .imports = rows / kRowsOfRun,
                .importedUsers = rows,
                .systemRows = rows});
}

std::filesystem::path MakeLongPartsHistory(const std::filesystem::path& folder) {
  constexpr std::int32_t kRowsOfPart = 1'000'000;
  std::filesystem::path file = Write(folder, "long-parts.db",
                                     {.stations = kStations,
                                      .runs = 1,
                                      .days = 1,
                                      .processes = 1,
                                      .detailRuns = 0,
                                      .communications = kRowsOfPart,
                                      .alarms = 0,
                                      .saves = 1,
                                      .saveFiles = kRowsOfPart,
                                      .imports = 1,
                                      .importedUsers = kRowsOfPart,
                                      .systemRows = 0,
                                      .now = DateFromCivil({2026, 11, 21})});
  Change(file, "UPDATE import_run SET user_import_id = 1, name = 'By hand', process_id = 0");
  return file;
}

void AddProbe(const std::filesystem::path& history) {
  Change(history, std::string(kProbeStations).append(kProbeRuns));
}

void AddViewsProbe(const std::filesystem::path& history) {
  Change(history, std::string(kProbeStations).append(kProbeViews));
}

}  // namespace quorvel::bench
