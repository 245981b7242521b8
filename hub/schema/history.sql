-- The history of executions: one file, version 2. docs/history-schema.md says more on each table and index.
--
-- Dates are days since 1899-12-30 in local time, the fraction is the time of day, 0 = none.
-- Flags are 16-bit: -1 = true, 0 = false; other values exist in old records and are kept as they are.
-- Names are ordered without regard to the case of A to Z.

PRAGMA application_id = 0x51564C48;
PRAGMA user_version = 2;

-- Named settings of the installation.
CREATE TABLE label (
  name  TEXT NOT NULL PRIMARY KEY,  -- as programs ask for it, for example "UseType"
  value TEXT NOT NULL DEFAULT ''
) STRICT, WITHOUT ROWID;

-- Companies that stations belong to.
CREATE TABLE company (
  company_id INTEGER PRIMARY KEY,
  name       TEXT NOT NULL COLLATE NOCASE
) STRICT;

-- Every station that ever took part in a run, as it is named now. A station that left stays.
CREATE TABLE station (
  station_id INTEGER PRIMARY KEY,            -- 0 = stands for a run without a population
  name       TEXT NOT NULL COLLATE NOCASE,
  identifier TEXT NOT NULL DEFAULT '',       -- inventory or network name
  company_id INTEGER NOT NULL DEFAULT 0      -- 0 = none
) STRICT;
CREATE INDEX station_by_name ON station (name);

-- The row that runs without a population refer to.
INSERT INTO station (station_id, name) VALUES (0, '');

-- Processes, as they are named now.
CREATE TABLE process (
  process_id INTEGER PRIMARY KEY,
  name       TEXT NOT NULL COLLATE NOCASE,
  on_server  INTEGER NOT NULL DEFAULT -1,    -- flag: meant to run on the server
  on_station INTEGER NOT NULL DEFAULT 0      -- flag: meant to run on stations by themselves
) STRICT;
CREATE INDEX process_by_name ON process (name);

-- Runs: one row for each execution of a process.
CREATE TABLE process_run (
  process_run_id INTEGER PRIMARY KEY,        -- the batch number that people see
  process_id     INTEGER NOT NULL REFERENCES process,
  start_date     REAL NOT NULL DEFAULT 0,
  end_date       REAL NOT NULL DEFAULT 0,    -- 0 = not ended
  on_station     INTEGER NOT NULL DEFAULT 0  -- flag: the run is on a station; 0 = on the server
) STRICT;
CREATE INDEX process_run_by_process ON process_run (process_id, start_date);

-- A station's part in a run.
CREATE TABLE station_run (
  station_run_id INTEGER PRIMARY KEY,
  process_run_id INTEGER NOT NULL REFERENCES process_run,
  station_id     INTEGER NOT NULL REFERENCES station,
  station_name   TEXT NOT NULL DEFAULT '' COLLATE NOCASE,  -- at the time of the run, as are the next two
  identifier     TEXT NOT NULL DEFAULT '',
  company        TEXT NOT NULL DEFAULT '',
  report         TEXT NOT NULL DEFAULT '',
  start_date     REAL NOT NULL DEFAULT 0,    -- of this station's part
  end_date       REAL NOT NULL DEFAULT 0,    -- of this station's part, 0 = not ended
  in_progress    INTEGER NOT NULL DEFAULT 0, -- flag
  ok             INTEGER NOT NULL DEFAULT 0, -- flag
  not_ok         INTEGER NOT NULL DEFAULT 0, -- flag; may be set beside ok
  unknown        INTEGER NOT NULL DEFAULT 0, -- flag
  executed       INTEGER NOT NULL DEFAULT 0, -- flag: 0 = the station never ran it
  wait_state     TEXT NOT NULL DEFAULT '',   -- what a part in progress waits for, for example 'Waiting com'
  -- Copies of the run's columns, so that a station's history is one index. Writers may leave them out: the triggers
  -- below keep them right.
  process_id     INTEGER NOT NULL DEFAULT 0,
  run_start_date REAL NOT NULL DEFAULT 0,
  on_station     INTEGER NOT NULL DEFAULT 0,
  -- The state group that shows the station: 1 OK, 2 NOT OK, 3 in progress, 4 not executed, 5 unknown. OK is looked at
  -- before NOT OK; only the exact value -1 counts as an outcome; what is left over is unknown.
  state INTEGER NOT NULL AS (
    CASE WHEN in_progress <> 0 THEN 3
         WHEN ok = -1 THEN 1
         WHEN not_ok = -1 THEN 2
         WHEN unknown = -1 THEN 5
         WHEN executed = 0 THEN 4
         ELSE 5 END) VIRTUAL
) STRICT;
CREATE INDEX station_run_by_run
  ON station_run (process_run_id, station_id, in_progress, ok, not_ok, unknown, executed);
CREATE INDEX station_run_by_state ON station_run (process_run_id, state, station_name, station_id);
CREATE INDEX station_run_by_station
  ON station_run (station_id, process_id, run_start_date, process_run_id, on_station, end_date, in_progress, ok, not_ok,
                  unknown, executed, wait_state, state);

CREATE TRIGGER station_run_inserted AFTER INSERT ON station_run
WHEN (NEW.process_id, NEW.run_start_date, NEW.on_station) IS NOT
     (SELECT process_id, start_date, on_station FROM process_run WHERE process_run_id = NEW.process_run_id)
BEGIN
  UPDATE station_run
  SET (process_id, run_start_date, on_station) =
      (SELECT process_id, start_date, on_station FROM process_run WHERE process_run_id = NEW.process_run_id)
  WHERE station_run_id = NEW.station_run_id;
END;

CREATE TRIGGER process_run_changed AFTER UPDATE OF process_id, start_date, on_station ON process_run
BEGIN
  UPDATE station_run
  SET process_id = NEW.process_id, run_start_date = NEW.start_date, on_station = NEW.on_station
  WHERE process_run_id = NEW.process_run_id;
END;

-- A run's own outcome, as the state filter sees it: 3 in progress when any station is, else 2 NOT OK when any is, else
-- 5 unknown when any is, else 1 OK.
CREATE VIEW run_outcome AS
SELECT r.process_run_id,
       CASE WHEN EXISTS (SELECT 1 FROM station_run s WHERE s.process_run_id = r.process_run_id AND s.state = 3) THEN 3
            WHEN EXISTS (SELECT 1 FROM station_run s WHERE s.process_run_id = r.process_run_id AND s.state = 2) THEN 2
            WHEN EXISTS (SELECT 1 FROM station_run s WHERE s.process_run_id = r.process_run_id AND s.state = 5) THEN 5
            ELSE 1 END AS outcome
FROM process_run r;

-- The tasks of a run.
CREATE TABLE task_run (
  task_run_id    INTEGER PRIMARY KEY,
  process_run_id INTEGER NOT NULL REFERENCES process_run,
  station_id     INTEGER NOT NULL DEFAULT 0, -- for which it ran; 0 = once for all stations of the run
  position       INTEGER NOT NULL DEFAULT 0, -- its place in the process, from 1
  task_id        INTEGER NOT NULL,           -- the task as the process defines it
  task_name      TEXT NOT NULL DEFAULT '',
  task_type      TEXT NOT NULL DEFAULT '',   -- type code, for example 'Teledistribution'
  not_executed   INTEGER NOT NULL DEFAULT 0, -- flag
  station_scope  INTEGER NOT NULL DEFAULT 0, -- 0 = ran once for all stations, else the station
  waiting        INTEGER NOT NULL DEFAULT 0, -- flag: waits for the server
  report         TEXT NOT NULL DEFAULT '',
  start_date     REAL NOT NULL DEFAULT 0,
  end_date       REAL NOT NULL DEFAULT 0,
  in_progress    INTEGER NOT NULL DEFAULT 0, -- flag
  ok             INTEGER NOT NULL DEFAULT 0, -- flag
  not_ok         INTEGER NOT NULL DEFAULT 0  -- flag
) STRICT;
CREATE INDEX task_run_by_position ON task_run (process_run_id, station_id, position);
CREATE INDEX task_run_by_task ON task_run (process_run_id, station_id, task_id);

-- The steps of a task run, in the order of their identifiers.
CREATE TABLE step_log (
  step_log_id   INTEGER PRIMARY KEY,
  task_run_id   INTEGER NOT NULL REFERENCES task_run,
  step_name     TEXT NOT NULL DEFAULT '',
  settings      TEXT NOT NULL DEFAULT '',
  report        TEXT NOT NULL DEFAULT '',
  execute_where TEXT NOT NULL DEFAULT '',    -- 'Server', 'Station' or 'Communication'
  start_date    REAL NOT NULL DEFAULT 0,
  end_date      REAL NOT NULL DEFAULT 0,
  in_progress   INTEGER NOT NULL DEFAULT 0,  -- flag
  ok            INTEGER NOT NULL DEFAULT 0,  -- flag
  not_ok        INTEGER NOT NULL DEFAULT 0,  -- flag
  step_kind     INTEGER NOT NULL DEFAULT 0,  -- what the step does, by code
  station_scope INTEGER NOT NULL DEFAULT 0   -- 0 = ran once for all stations, else the station
) STRICT;
CREATE INDEX step_log_by_task_run ON step_log (task_run_id);

-- The commands of a step or of a connection, in the order of their identifiers.
CREATE TABLE command_log (
  command_log_id     INTEGER PRIMARY KEY,
  step_log_id        INTEGER NOT NULL DEFAULT 0, -- 0 = a command of a connection alone
  communication_id   INTEGER NOT NULL DEFAULT 0, -- the connection that carried it, 0 = none or not kept
  communication_date REAL NOT NULL DEFAULT 0,    -- when that connection began
  kind               INTEGER NOT NULL DEFAULT 0, -- kind code; 88 to 90 are file transfers
  result             INTEGER NOT NULL DEFAULT 0, -- result code, 0 = done
  text               TEXT NOT NULL DEFAULT '',   -- as it was given
  report             TEXT NOT NULL DEFAULT '',
  start_date         REAL NOT NULL DEFAULT 0,
  end_date           REAL NOT NULL DEFAULT 0,
  in_progress        INTEGER NOT NULL DEFAULT 0, -- flag
  ok                 INTEGER NOT NULL DEFAULT 0, -- flag
  not_ok             INTEGER NOT NULL DEFAULT 0  -- flag
) STRICT;
CREATE INDEX command_log_by_step ON command_log (step_log_id);
CREATE INDEX command_log_by_communication ON command_log (communication_id) WHERE communication_id <> 0;

-- Connections between the server and a station.
CREATE TABLE communication (
  communication_id INTEGER PRIMARY KEY,
  station_id       INTEGER NOT NULL REFERENCES station,
  station_name     TEXT NOT NULL DEFAULT '' COLLATE NOCASE,  -- at the time of the connection
  from_station     INTEGER NOT NULL DEFAULT 0, -- flag: the station called the server; 0 = the other way round
  start_date       REAL NOT NULL DEFAULT 0,
  end_date         REAL NOT NULL DEFAULT 0,    -- 0 = not ended
  size_kb          INTEGER NOT NULL DEFAULT 0, -- what was transferred, both ways together
  report           TEXT NOT NULL DEFAULT '',
  in_progress      INTEGER NOT NULL DEFAULT 0, -- flag
  ok               INTEGER NOT NULL DEFAULT 0, -- flag
  not_ok           INTEGER NOT NULL DEFAULT 0, -- flag
  -- The start without its time of day, so that the connections of each day are counted in an index.
  day   INTEGER NOT NULL AS (CAST(start_date AS INTEGER)) VIRTUAL,
  -- By the rule of station_run: 1 OK, 2 NOT OK, 3 in progress, 5 unknown.
  state INTEGER NOT NULL AS (
    CASE WHEN in_progress <> 0 THEN 3
         WHEN ok = -1 THEN 1
         WHEN not_ok = -1 THEN 2
         ELSE 5 END) VIRTUAL
) STRICT;
CREATE INDEX communication_by_day ON communication (day, start_date, communication_id, state);
CREATE INDEX communication_by_station ON communication (station_id, day, start_date, communication_id, state);

-- Alarms, each with its owner: the station that it is about.
CREATE TABLE alarm (
  alarm_id          INTEGER PRIMARY KEY,
  owner_id          INTEGER NOT NULL DEFAULT 0 REFERENCES station,  -- 0 = none
  raised_date       REAL NOT NULL DEFAULT 0,
  severity          INTEGER NOT NULL DEFAULT 0, -- the higher, the worse
  action            INTEGER NOT NULL DEFAULT 0, -- what it triggered: 1 mail, 2 process, 3 file, 4 program, 5 SNMP trap
  origin            TEXT NOT NULL DEFAULT '',   -- who raised it: 'Server', or a station's name
  text              TEXT NOT NULL DEFAULT '',
  acknowledged      INTEGER NOT NULL DEFAULT 0, -- flag: 0 = active
  acknowledged_by   TEXT NOT NULL DEFAULT '',
  acknowledged_date REAL NOT NULL DEFAULT 0,
  process_run_id    INTEGER NOT NULL DEFAULT 0, -- the run that raised it, 0 = none
  process_name      TEXT NOT NULL DEFAULT ''    -- of that run's process, at the time
) STRICT;
CREATE INDEX alarm_by_owner ON alarm (owner_id, raised_date);
CREATE INDEX alarm_by_date ON alarm (raised_date);

-- Backups of the server and of stations.
CREATE TABLE backup (
  backup_id  INTEGER PRIMARY KEY,
  station_id INTEGER NOT NULL DEFAULT 0 REFERENCES station,  -- 0 = of the server
  name       TEXT NOT NULL DEFAULT '',
  saved_date REAL NOT NULL DEFAULT 0,
  size_kb    INTEGER NOT NULL DEFAULT 0,
  ok         INTEGER NOT NULL DEFAULT 0         -- flag; anything but -1 failed
) STRICT;
CREATE INDEX backup_by_station ON backup (station_id, saved_date);

-- The files of a backup.
CREATE TABLE backup_file (
  backup_file_id INTEGER PRIMARY KEY,
  backup_id      INTEGER NOT NULL REFERENCES backup,
  name           TEXT NOT NULL DEFAULT '' COLLATE NOCASE,
  path           TEXT NOT NULL DEFAULT '',      -- the folder that it was taken from
  saved_date     REAL NOT NULL DEFAULT 0,
  size_kb        INTEGER NOT NULL DEFAULT 0,
  ok             INTEGER NOT NULL DEFAULT 0     -- flag; anything but -1 failed
) STRICT;
CREATE INDEX backup_file_by_name ON backup_file (backup_id, name);

-- Imports of users, as they are named now.
CREATE TABLE user_import (
  user_import_id INTEGER PRIMARY KEY,
  name           TEXT NOT NULL COLLATE NOCASE
) STRICT;

-- Runs of an import.
CREATE TABLE import_run (
  import_run_id  INTEGER PRIMARY KEY,
  user_import_id INTEGER NOT NULL REFERENCES user_import,
  name           TEXT NOT NULL DEFAULT '' COLLATE NOCASE,  -- of the import, at the time of the run
  process_id     INTEGER NOT NULL DEFAULT 0,    -- the process that ran it, 0 = somebody by hand
  batch_number   INTEGER NOT NULL DEFAULT 0,    -- that process's run; by hand a number of its own
  start_date     REAL NOT NULL DEFAULT 0
) STRICT;
CREATE INDEX import_run_by_process ON import_run (user_import_id, name, process_id, start_date);

-- The users of an import's run, in the order of their identifiers.
CREATE TABLE imported_user (
  imported_user_id INTEGER PRIMARY KEY,
  import_run_id    INTEGER NOT NULL REFERENCES import_run,
  user_name        TEXT NOT NULL DEFAULT '',
  ok               INTEGER NOT NULL DEFAULT 0,  -- flag; anything but -1 failed
  report           TEXT NOT NULL DEFAULT ''     -- the reason of a failure
) STRICT;
CREATE INDEX imported_user_by_run ON imported_user (import_run_id);

-- The scheduler's own log.
CREATE TABLE scheduler_log (
  scheduler_log_id INTEGER PRIMARY KEY,
  logged_date      REAL NOT NULL DEFAULT 0,
  level            INTEGER NOT NULL DEFAULT 1,  -- 1 information, 2 error, 3 notice
  machine          TEXT NOT NULL DEFAULT '',
  label            TEXT NOT NULL DEFAULT '',    -- what happened
  company_id       INTEGER NOT NULL DEFAULT 0,  -- 0 = none
  company          TEXT NOT NULL DEFAULT '',    -- its name at the time
  user_name        TEXT NOT NULL DEFAULT '',
  attachment       TEXT NOT NULL DEFAULT ''     -- full path of a file, '' = none
) STRICT;
CREATE INDEX scheduler_log_by_date ON scheduler_log (logged_date);
CREATE INDEX scheduler_log_by_company ON scheduler_log (company_id, logged_date);

-- Runs that somebody asked to stop, one row for each.
CREATE TABLE stop_request (
  process_run_id INTEGER PRIMARY KEY REFERENCES process_run,
  on_station     INTEGER NOT NULL DEFAULT 0,     -- flag: where the run is
  requested_date REAL NOT NULL,
  server_name    TEXT NOT NULL DEFAULT '',       -- server that was told, '' = this machine or none yet
  notified_date  REAL NOT NULL DEFAULT 0         -- when it was told, 0 = not yet
) STRICT;
