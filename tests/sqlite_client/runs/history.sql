-- What both views of runs share: the history as people read it, from the tables alone. Flags are judged here, not by
-- the viewer's rules.

-- Parts of stations, with the outcome that each is shown with.
CREATE TEMP TABLE part AS
SELECT *, CASE WHEN in_progress <> 0 THEN coalesce(w_icon, 'User') WHEN grp = 5 AND unknown <> -1 THEN 'User'
               ELSE g_icon END AS icon,
       CASE WHEN grp = 3 THEN coalesce(w_caption, '') WHEN grp = 1 THEN 'Ok' WHEN grp = 2 THEN 'Not Ok'
            WHEN grp = 5 AND unknown <> -1 THEN '' ELSE g_caption END AS caption,
       -- One that is to run waits for nothing.
       CASE WHEN grp = 3 AND w_caption <> 'In progress' THEN w_caption ELSE '' END AS waits_for,
       -- A part's own outcome where a run is shown with it; '' = that of the process, which no run changes.
       CASE WHEN grp = 3 THEN coalesce(w_run_icon, 'ProcessStart') ELSE g_run_icon END AS run_icon
FROM (
  SELECT s.process_run_id AS run, s.station_run_id, s.station_id, s.station_name, s.identifier, s.company, s.report,
         s.in_progress, s.unknown, s.grp,
         iif(s.station_id = 0, 'Without population', s.station_name) AS name, s.end_date AS ended,
         iif(s.start_date = 0, '', strftime('%Y-%m-%d %H:%M:%S', s.start_date + 2415018.5)) AS start_text,
         iif(s.end_date = 0, '', strftime('%Y-%m-%d %H:%M:%S', s.end_date + 2415018.5)) AS end_text,
         w.icon AS w_icon, w.caption AS w_caption, w.run_icon AS w_run_icon, g.icon AS g_icon, g.caption AS g_caption,
         g.run_icon AS g_run_icon, g.urgency, g.weight,
         row_number() OVER (PARTITION BY s.process_run_id, s.grp
                            ORDER BY s.station_name COLLATE NOCASE, s.station_id, s.station_run_id) AS place
  FROM (SELECT *, CASE WHEN in_progress <> 0 THEN 3 WHEN ok = -1 THEN 1 WHEN not_ok = -1 THEN 2
                       WHEN unknown <> -1 AND executed = 0 THEN 4 ELSE 5 END AS grp
        FROM station_run) s
  JOIN group_look g USING (grp) LEFT JOIN wait_look w ON w.wait_state = s.wait_state);
CREATE INDEX temp.part_by_run ON part (run, grp);
CREATE INDEX temp.part_by_station ON part (station_id, run);

-- Runs with what their stations come to.
CREATE TEMP TABLE run AS
SELECT *, 'LPROC|' || process_id AS process_key, 'LPROC|' || process_id || '|' || flag || '|' || run AS key,
       start_text || ' (Batch No.' || run || ')' AS text,
       CASE WHEN running > 0 THEN 'ProcessStart' WHEN not_ok > 0 THEN 'ProcessNONOK'
            WHEN unknown > 0 OR stations = 0 THEN 'ProcessUndefined' ELSE 'ProcessOk' END AS icon,
       row_number() OVER (PARTITION BY process_id, shown ORDER BY began DESC, run DESC) AS age
FROM (
  SELECT p.process_id, p.name AS process_name,
         iif(p.on_station <> 0 AND p.on_server = 0, 'ProcessStation', 'Process') AS process_icon,
         r.process_run_id AS run, r.start_date AS began, r.end_date AS ended, r.on_station <> 0 AS flag,
         r.start_date >= period_start AND r.start_date < period_end AS shown,
         iif(r.start_date = 0, '', strftime('%Y-%m-%d %H:%M:%S', r.start_date + 2415018.5)) AS start_text,
         iif(r.end_date = 0, '', strftime('%Y-%m-%d %H:%M:%S', r.end_date + 2415018.5)) AS end_text,
         count(s.run) AS stations, coalesce(sum(s.grp = 1), 0) AS ok, coalesce(sum(s.grp = 2), 0) AS not_ok,
         coalesce(sum(s.grp = 3), 0) AS running, coalesce(sum(s.grp = 4), 0) AS not_executed,
         coalesce(sum(s.grp = 5), 0) AS unknown
  FROM process_run r JOIN process p USING (process_id) CROSS JOIN setting LEFT JOIN part s ON s.run = r.process_run_id
  GROUP BY r.process_run_id);
CREATE INDEX temp.run_by_process ON run (process_id);
CREATE UNIQUE INDEX temp.run_by_number ON run (run);

-- Tasks, steps and commands; in the tree one that failed is bold.
CREATE TEMP TABLE task AS
SELECT *, name || CASE status WHEN 'In progress' THEN ' : In progress' WHEN 'Not Ok' THEN ' : NOT OK' ELSE '' END
            AS tree_text
FROM (
  SELECT t.process_run_id AS run, t.station_id, t.position, t.task_run_id, t.task_id, t.task_name AS name, t.report,
         iif(t.start_date = 0, '', strftime('%Y-%m-%d %H:%M:%S', t.start_date + 2415018.5)) AS start_text,
         iif(t.end_date = 0, '', strftime('%Y-%m-%d %H:%M:%S', t.end_date + 2415018.5)) AS end_text,
         coalesce(l.name, '') AS type_name,
         CASE WHEN t.in_progress <> 0 THEN 'In progress' WHEN t.ok <> 0 THEN 'Ok' WHEN t.not_ok <> 0 THEN 'Not Ok'
              ELSE '' END AS status,
         CASE WHEN t.not_executed <> 0 AND t.waiting <> 0 AND NOT on_server AND NOT coalesce(l.own, 0)
              THEN 'TaskWaitingServer'
              ELSE coalesce(l.icon, 'ProgramServer') || iif(t.not_executed <> 0, 'NotExec', '') ||
                   iif(t.station_scope = 0, 'Global', '') END AS icon
  FROM task_run t CROSS JOIN setting LEFT JOIN task_look l ON l.type = t.task_type);
CREATE INDEX temp.task_by_run ON task (run, station_id);

CREATE TEMP TABLE step AS
SELECT *, name || CASE status WHEN 'In progress' THEN ' : In progress' WHEN 'Not Ok' THEN ' : NOT OK' ELSE '' END
            AS tree_text
FROM (
  SELECT task_run_id, step_log_id, step_name AS name, settings, report, not_ok = -1 AS failed,
         CASE execute_where WHEN 'Communication' THEN 'Connection' WHEN 'Server' THEN 'Server' WHEN 'Station'
              THEN 'Station' ELSE '' END AS place,
         iif(start_date = 0, '', strftime('%Y-%m-%d %H:%M:%S', start_date + 2415018.5)) AS start_text,
         iif(end_date = 0, '', strftime('%Y-%m-%d %H:%M:%S', end_date + 2415018.5)) AS end_text,
         CASE -1 WHEN in_progress THEN 'In progress' WHEN ok THEN 'Ok' WHEN not_ok THEN 'Not Ok' ELSE '' END AS status,
         coalesce(l.icon || iif(station_scope = 0, 'Global', ''), '') AS icon
  FROM step_log LEFT JOIN step_look l ON l.kind = step_kind);
CREATE INDEX temp.step_by_task ON step (task_run_id);

CREATE TEMP TABLE sent_command AS
SELECT *, CASE status WHEN 'In progress' THEN 'CommandStart' WHEN 'Ok' THEN 'CommandOk' WHEN 'Not Ok'
               THEN 'CommandNONOK' ELSE 'Command' END AS icon
FROM (
  SELECT step_log_id, command_log_id, kind, result, text, report,
         iif(start_date = 0, '', strftime('%Y-%m-%d %H:%M:%S', start_date + 2415018.5)) AS start_text,
         iif(end_date = 0, '', strftime('%Y-%m-%d %H:%M:%S', end_date + 2415018.5)) AS end_text,
         CASE WHEN in_progress <> 0 THEN 'In progress'
              WHEN kind IN (89, 90) THEN iif(result IN (0, 91, 92, 93, 94), 'Ok', 'Not Ok')
              WHEN kind = 88 THEN iif(result = 0, 'Ok', 'Not Ok')
              WHEN ok <> 0 THEN 'Ok' WHEN not_ok <> 0 THEN 'Not Ok' ELSE '' END AS status
  FROM command_log);
CREATE INDEX temp.command_by_step ON sent_command (step_log_id);
