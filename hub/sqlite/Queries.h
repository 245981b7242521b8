// The statements about runs, their stations, tasks, steps and commands, and about settings. Identifiers of -1 do not
// filter; FilteredBy makes of each the statement for a given one (see Filters.h).
//
// Every order comes from the indexes in history.sql: processes and stations by name are the outer loops (CROSS JOIN
// fixes that), runs and parts the inner ones, so nothing that grows with the history is scanned or sorted. A test holds
// every statement that the sources send to that.
#pragma once

#include <string_view>

namespace quorvel::hub {

// Does the thing that a query asks about exist?
inline constexpr std::string_view kProcessExists = "SELECT 1 FROM process WHERE process_id = :id";
inline constexpr std::string_view kStationExists = "SELECT 1 FROM station WHERE station_id = :id";
inline constexpr std::string_view kRunExists = "SELECT 1 FROM process_run WHERE process_run_id = :id";
inline constexpr std::string_view kStepExists = "SELECT 1 FROM step_log WHERE step_log_id = :id";
inline constexpr std::string_view kRunExistsThere =
    "SELECT 1 FROM process_run WHERE process_run_id = :run AND (on_station <> 0) = :onStation";

// StopExecution: the run is there, and a station of it is in progress.
inline constexpr std::string_view kRunIsRunningThere = R"sql(
  SELECT 1 FROM process_run r
  WHERE r.process_run_id = :run AND (r.on_station <> 0) = :onStation
    AND EXISTS (SELECT 1 FROM station_run s WHERE s.process_run_id = r.process_run_id AND s.state = 3))sql";

// GetProcessLogs. The columns up to the run's start and place repeat for each station of a run.
inline constexpr std::string_view kStationsOfRuns = R"sql(
  SELECT r.process_run_id, p.process_id, p.name, p.on_server, p.on_station, r.start_date, r.on_station,
         ifnull(s.station_id, -1), s.in_progress, s.ok, s.not_ok, s.unknown, s.executed
  FROM process p
  CROSS JOIN process_run r ON r.process_id = p.process_id
  LEFT JOIN station_run s ON s.process_run_id = r.process_run_id
  WHERE (:process = -1 OR p.process_id = :process)
    AND r.start_date >= :from AND r.start_date < :to
    AND (:station = -1 OR EXISTS (
      SELECT 1 FROM station_run x WHERE x.process_run_id = r.process_run_id AND x.station_id = :station))
    AND (:company = -1 OR EXISTS (
      SELECT 1 FROM station_run x CROSS JOIN station t ON t.station_id = x.station_id
      WHERE x.process_run_id = r.process_run_id AND t.company_id = :company))
    AND (:state = 0 OR :state = (SELECT o.outcome FROM run_outcome o WHERE o.process_run_id = r.process_run_id))
  ORDER BY p.name, p.process_id, r.start_date DESC, r.process_run_id DESC)sql";

// The same for "Last execution": of each process the newest run that the other filters leave.
inline constexpr std::string_view kStationsOfLastRuns = R"sql(
  SELECT r.process_run_id, p.process_id, p.name, p.on_server, p.on_station, r.start_date, r.on_station,
         ifnull(s.station_id, -1), s.in_progress, s.ok, s.not_ok, s.unknown, s.executed
  FROM process p
  CROSS JOIN process_run r ON r.process_run_id = (
    SELECT n.process_run_id FROM process_run n
    WHERE n.process_id = p.process_id
      AND (:station = -1 OR EXISTS (
        SELECT 1 FROM station_run x WHERE x.process_run_id = n.process_run_id AND x.station_id = :station))
      AND (:company = -1 OR EXISTS (
        SELECT 1 FROM station_run x CROSS JOIN station t ON t.station_id = x.station_id
        WHERE x.process_run_id = n.process_run_id AND t.company_id = :company))
    ORDER BY n.start_date DESC, n.process_run_id DESC LIMIT 1)
  LEFT JOIN station_run s ON s.process_run_id = r.process_run_id
  WHERE (:process = -1 OR p.process_id = :process)
  ORDER BY p.name, p.process_id)sql";

// GetProcessLogByProcess and GetProcessLogsByName. Each station is in one state, so the five numbers add up to all of
// them, and every station is looked at once.
inline constexpr std::string_view kRunsWithCounts = R"sql(
  SELECT r.process_run_id, p.process_id, p.name, r.start_date, r.end_date, r.on_station,
         (SELECT count(*) FROM station_run s WHERE s.process_run_id = r.process_run_id AND s.state = 1),
         (SELECT count(*) FROM station_run s WHERE s.process_run_id = r.process_run_id AND s.state = 2),
         (SELECT count(*) FROM station_run s WHERE s.process_run_id = r.process_run_id AND s.state = 3),
         (SELECT count(*) FROM station_run s WHERE s.process_run_id = r.process_run_id AND s.state = 4),
         (SELECT count(*) FROM station_run s WHERE s.process_run_id = r.process_run_id AND s.state = 5),
         ifnull((SELECT q.requested_date FROM stop_request q WHERE q.process_run_id = r.process_run_id), 0)
  FROM process p
  CROSS JOIN process_run r ON r.process_id = p.process_id
  WHERE (:process = -1 OR p.process_id = :process)
    AND (:name = '' OR p.name COLLATE BINARY = :name)
    AND r.start_date >= :from AND r.start_date < :to
  ORDER BY p.name, p.process_id, r.start_date DESC, r.process_run_id DESC)sql";

// GetProcessLogByUser. :from and :to span both periods, so that one range of the index is read.
inline constexpr std::string_view kRunsOfStations = R"sql(
  SELECT s.process_run_id, p.process_id, p.name, p.on_server, p.on_station, s.run_start_date, s.end_date, s.on_station,
         t.station_id, t.name, t.identifier, s.in_progress, s.ok, s.not_ok, s.unknown, s.executed, s.wait_state
  FROM station t
  CROSS JOIN process p
  CROSS JOIN station_run s ON s.station_id = t.station_id AND s.process_id = p.process_id
  WHERE (:station = -1 OR t.station_id = :station)
    AND (:company = -1 OR t.company_id = :company)
    AND (:process = -1 OR p.process_id = :process)
    AND s.run_start_date >= :from AND s.run_start_date < :to
    AND CASE WHEN s.on_station <> 0
             THEN :onStation <> 0 AND s.run_start_date >= :stationFrom AND s.run_start_date < :stationTo
             ELSE :onStation <> 1 AND s.run_start_date >= :serverFrom AND s.run_start_date < :serverTo END
    AND (:state = 0 OR s.state = :state)
  ORDER BY t.name, t.station_id, p.name, p.process_id, s.run_start_date DESC, s.process_run_id DESC)sql";

// The same for "Last execution": the newest part of each station in each process.
inline constexpr std::string_view kLastRunsOfStations = R"sql(
  SELECT s.process_run_id, p.process_id, p.name, p.on_server, p.on_station, s.run_start_date, s.end_date, s.on_station,
         t.station_id, t.name, t.identifier, s.in_progress, s.ok, s.not_ok, s.unknown, s.executed, s.wait_state
  FROM station t
  CROSS JOIN process p
  CROSS JOIN station_run s ON s.station_run_id = (
    SELECT n.station_run_id FROM station_run n
    WHERE n.station_id = t.station_id AND n.process_id = p.process_id
      AND (:onStation = -1 OR (n.on_station <> 0) = :onStation)
    ORDER BY n.run_start_date DESC, n.process_run_id DESC LIMIT 1)
  WHERE (:station = -1 OR t.station_id = :station)
    AND (:company = -1 OR t.company_id = :company)
    AND (:process = -1 OR p.process_id = :process)
  ORDER BY t.name, t.station_id, p.name, p.process_id)sql";

// GetProcessLogByTask.
inline constexpr std::string_view kStationsOfState = R"sql(
  SELECT start_date, end_date, station_id, station_name, identifier, company, report, in_progress, ok, not_ok, unknown,
         executed, wait_state
  FROM station_run
  WHERE process_run_id = :run AND state = :state
  ORDER BY station_name, station_id, station_run_id)sql";

// GetProcessLogDetail.
inline constexpr std::string_view kRunDetail = R"sql(
  SELECT p.name, r.start_date, r.end_date, r.on_station,
         (SELECT o.outcome FROM run_outcome o WHERE o.process_run_id = r.process_run_id)
  FROM process_run r JOIN process p ON p.process_id = r.process_id
  WHERE r.process_run_id = :run)sql";
inline constexpr std::string_view kFirstTwoStations =
    "SELECT station_name, identifier FROM station_run WHERE process_run_id = :run LIMIT 2";

// GetTaskRunsByProcessLog: the station's own tasks, and between them those that ran once for all stations. The last
// column orders the rows and is not read.
inline constexpr std::string_view kTasksOfStation = R"sql(
  SELECT task_run_id, task_id, task_name, task_type, not_executed, station_scope, waiting, report, start_date, end_date,
         in_progress, ok, not_ok, position
  FROM task_run WHERE process_run_id = :run AND station_id = :station
  UNION ALL
  SELECT task_run_id, task_id, task_name, task_type, not_executed, station_scope, waiting, report, start_date, end_date,
         in_progress, ok, not_ok, position
  FROM task_run WHERE process_run_id = :run AND station_id = 0 AND :station <> 0
  ORDER BY position, task_run_id)sql";
inline constexpr std::string_view kTasksOfRun = R"sql(
  SELECT task_run_id, task_id, task_name, task_type, not_executed, station_scope, waiting, report, start_date, end_date,
         in_progress, ok, not_ok
  FROM task_run WHERE process_run_id = :run
  ORDER BY station_id, position, task_run_id)sql";

// GetStepLogByTaskRun: does the task run exist, and its steps; by the exact index, or with an identifier of -1.
inline constexpr std::string_view kTaskRunExists = R"sql(
  SELECT 1 FROM task_run WHERE process_run_id = :run AND station_id IN (0, :station) AND task_id = :task)sql";
inline constexpr std::string_view kAnyTaskRunExists = R"sql(
  SELECT 1 FROM task_run
  WHERE process_run_id = :run AND (:station = -1 OR station_id IN (0, :station)) AND (:task = -1 OR task_id = :task))sql";
inline constexpr std::string_view kStepsOfTask = R"sql(
  SELECT step_log_id, task_run_id, step_name, settings, report, execute_where, start_date, end_date, in_progress, ok,
         not_ok, step_kind, station_scope
  FROM step_log
  WHERE task_run_id IN (
    SELECT task_run_id FROM task_run
    WHERE process_run_id = :run AND station_id IN (0, :station) AND task_id = :task)
  ORDER BY task_run_id, step_log_id)sql";
inline constexpr std::string_view kStepsOfAnyTask = R"sql(
  SELECT step_log_id, task_run_id, step_name, settings, report, execute_where, start_date, end_date, in_progress, ok,
         not_ok, step_kind, station_scope
  FROM step_log
  WHERE task_run_id IN (
    SELECT task_run_id FROM task_run
    WHERE process_run_id = :run AND (:station = -1 OR station_id IN (0, :station)) AND (:task = -1 OR task_id = :task))
  ORDER BY task_run_id, step_log_id)sql";

// GetCommandLogByStepLog.
inline constexpr std::string_view kCommandsOfStep = R"sql(
  SELECT communication_id, communication_date, command_log_id, kind, result, text, report, start_date, end_date,
         in_progress, ok, not_ok
  FROM command_log WHERE step_log_id = :step
  ORDER BY command_log_id)sql";

// GetLabel.
inline constexpr std::string_view kLabelValue = "SELECT value FROM label WHERE name = :name";

// StopExecution and NotifyStopRequest. The date is the local time in days since 1899-12-30.
inline constexpr std::string_view kRequestStop = R"sql(
  INSERT INTO stop_request (process_run_id, on_station, requested_date)
  VALUES (:run, -:onStation, julianday('now', 'localtime') - 2415018.5)
  ON CONFLICT (process_run_id) DO UPDATE
  SET on_station = excluded.on_station, requested_date = excluded.requested_date, server_name = '', notified_date = 0)sql";
inline constexpr std::string_view kNotifyStop = R"sql(
  UPDATE stop_request SET server_name = :server, notified_date = julianday('now', 'localtime') - 2415018.5
  WHERE process_run_id = :run)sql";

}  // namespace quorvel::hub
