-- Nodes of the station-first tree: every station; of the first dozen all processes and, where tasks are kept, the
-- newest run of each with everything below it.
CREATE TEMP TABLE station_part AS
SELECT p.*, 'LUSR|' || p.station_id AS user_key, 'LUSR|' || p.station_id || '|' || r.process_id AS process_key,
       'LUSR|' || p.station_id || '|' || r.process_id || '|' || r.flag || '|' || p.run AS run_key,
       r.process_id, r.process_name, r.process_icon, r.began, r.flag, r.start_text AS run_start_text,
       r.text AS run_text,
       coalesce(nullif(p.run_icon, ''), r.process_icon) AS own_icon,
       -- The tree has no picture of its own for a missing prerequisite; lists do.
       CASE p.run_icon WHEN '' THEN r.process_icon WHEN 'ProcessWaitingPrerequisite' THEN 'ProcessStart' ELSE p.run_icon
            END AS tree_icon,
       iif(p.station_id = 0, 'Without population', s.name) AS present_name, s.identifier AS present_identifier,
       s.name AS sort_name,
       EXISTS (SELECT 1 FROM task t WHERE t.run = p.run AND t.station_id IN (0, p.station_id)) AS has_tasks
FROM part p JOIN run r USING (run) JOIN station s USING (station_id) WHERE r.shown;
CREATE INDEX temp.station_part_by_process ON station_part (station_id, process_id);

INSERT INTO node (key, level, list, opened, station_id)
SELECT DISTINCT user_key, 1, 'children', station_id <= 12, station_id FROM station_part;

INSERT INTO node (key, level, list, opened, station_id, process_id)
SELECT DISTINCT process_key, 2, 'station runs', 1, station_id, process_id FROM station_part WHERE station_id <= 12;

INSERT INTO node (key, level, list, opened, station_id, run)
SELECT run_key, 3, 'tasks', 1, station_id, run
FROM (SELECT *, row_number() OVER (PARTITION BY station_id, process_id ORDER BY began DESC, run DESC) AS age
      FROM station_part WHERE station_id <= 12 AND has_tasks)
WHERE age = 1;

INSERT INTO node (key, level, list, opened, run, station_id, task_id, task_run_id)
SELECT n.key || '|' || t.task_id, 4, 'steps', 1, t.run, n.station_id, t.task_id, t.task_run_id
FROM node n JOIN task t ON t.run = n.run AND t.station_id IN (0, n.station_id) WHERE n.level = 3;

INSERT INTO node (key, level, list, opened, step_log_id)
SELECT n.key || '|' || s.step_log_id || '|' || s.task_run_id, 5, 'commands', 0, s.step_log_id
FROM node n JOIN step s USING (task_run_id) WHERE n.level = 4;
