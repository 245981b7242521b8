// The statements about alarms, backups, user imports and the scheduler's log. What Queries.h says of orders and filters
// holds here too.
#pragma once

#include <string_view>

namespace quorvel::hub {

inline constexpr std::string_view kAlarmExists = "SELECT 1 FROM alarm WHERE alarm_id = :id";
inline constexpr std::string_view kBackupExists = "SELECT 1 FROM backup WHERE backup_id = :id";
inline constexpr std::string_view kImportExists = "SELECT 1 FROM user_import WHERE user_import_id = :id";

// GetAlarms.
inline constexpr std::string_view kAlarms = R"sql(
  SELECT a.alarm_id, t.station_id, t.name, a.raised_date, a.severity, a.action, a.origin, a.text, a.acknowledged,
         a.acknowledged_by, a.acknowledged_date, a.process_run_id, a.process_name, ifnull(r.process_id, 0),
         ifnull(r.on_station, 0)
  FROM station t
  CROSS JOIN alarm a ON a.owner_id = t.station_id
  LEFT JOIN process_run r ON r.process_run_id = a.process_run_id
  WHERE (:alarm = -1 OR a.alarm_id = :alarm)
  ORDER BY t.name, t.station_id, a.raised_date DESC, a.alarm_id DESC)sql";

// GetAlarmsByDay.
inline constexpr std::string_view kAlarmsOfDay = R"sql(
  SELECT a.alarm_id, t.station_id, t.name, a.raised_date, a.severity, a.action, a.origin, a.text, a.acknowledged,
         a.acknowledged_by, a.acknowledged_date, a.process_run_id, a.process_name, ifnull(r.process_id, 0),
         ifnull(r.on_station, 0)
  FROM alarm a
  CROSS JOIN station t ON t.station_id = a.owner_id
  LEFT JOIN process_run r ON r.process_run_id = a.process_run_id
  WHERE (:owner = -1 OR a.owner_id = :owner)
    AND a.raised_date >= :from AND a.raised_date < :to
    AND (:state = -1 OR (a.acknowledged <> 0) = :state)
  ORDER BY a.raised_date DESC, a.alarm_id DESC)sql";

// GetSaves.
inline constexpr std::string_view kBackups = R"sql(
  SELECT b.backup_id, t.station_id, t.name, b.name, b.saved_date, b.size_kb, b.ok
  FROM station t
  CROSS JOIN backup b ON b.station_id = t.station_id
  WHERE (:station = -1 OR t.station_id = :station) AND (t.station_id <> 0) = :onStation
    AND b.saved_date >= :from AND b.saved_date < :to
  ORDER BY t.name, t.station_id, b.saved_date DESC, b.backup_id DESC)sql";

// GetSaveFiles.
inline constexpr std::string_view kFilesOfBackup = R"sql(
  SELECT backup_id, name, saved_date, size_kb, path, ok
  FROM backup_file
  WHERE backup_id = :backup
    AND (:failedOnly = 0 OR ok <> -1)
    AND (:part = '' OR instr(lower(name), lower(:part)) > 0)
  ORDER BY name, backup_file_id)sql";

// AcknowledgeAlarms and ActivateAlarms; an alarm that is in that state already stays as it is. The date is the local
// time in days since 1899-12-30.
inline constexpr std::string_view kAcknowledgeAlarm = R"sql(
  UPDATE alarm SET acknowledged = -1, acknowledged_by = :user,
                   acknowledged_date = julianday('now', 'localtime') - 2415018.5
  WHERE alarm_id = :alarm AND acknowledged = 0)sql";
inline constexpr std::string_view kActivateAlarm = R"sql(
  UPDATE alarm SET acknowledged = 0, acknowledged_by = '', acknowledged_date = 0
  WHERE alarm_id = :alarm AND acknowledged <> 0)sql";

// GetUsersImports. Sorts one row for each name and process of the import.
inline constexpr std::string_view kNamesOfImport = R"sql(
  SELECT r.name, r.process_id,
         ifnull((SELECT p.name FROM process p WHERE p.process_id = r.process_id), '') AS process_name
  FROM import_run r
  WHERE r.user_import_id = :import
  GROUP BY r.name, r.process_id
  ORDER BY r.name, process_name COLLATE NOCASE, r.process_id)sql";

// GetUsersImportByProcess. The columns up to the date repeat for each user of a run; a run that imported nobody has one
// row, in which nothing failed.
inline constexpr std::string_view kRunsOfImport = R"sql(
  SELECT r.import_run_id, r.batch_number, r.start_date, u.user_name, ifnull(u.ok, -1), u.report
  FROM import_run r
  LEFT JOIN imported_user u ON u.import_run_id = r.import_run_id
  WHERE r.user_import_id = :import AND r.name = :name
    AND (:process = -1 OR r.process_id = :process)
    AND (:run = -1 OR r.import_run_id = :run)
  ORDER BY r.process_id DESC, r.start_date DESC, r.import_run_id DESC, u.imported_user_id)sql";

// GetTaskSchedulerLogs. A level that is neither information nor error is a notice.
inline constexpr std::string_view kSchedulerLogs = R"sql(
  SELECT level, scheduler_log_id, logged_date, machine, label, company, user_name, attachment
  FROM scheduler_log
  WHERE (:company = -1 OR company_id = :company)
    AND logged_date >= :from AND logged_date < :to
    AND (:state = 0 OR :state = CASE level WHEN 1 THEN 1 WHEN 2 THEN 2 ELSE 5 END)
  ORDER BY logged_date DESC, scheduler_log_id DESC)sql";

}  // namespace quorvel::hub
