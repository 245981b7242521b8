-- Nodes of the process tree: the three newest runs of each process with all their groups, of a group one station that
-- is OK or some that are not, and everything below these.
INSERT INTO node (key, level, list, opened, process_id)
SELECT process_key, 1, 'runs', 1, process_id FROM run WHERE shown GROUP BY process_id;

INSERT INTO node (key, level, list, opened, process_id, run)
SELECT key, 2, iif(running > 0, 'running', 'children'), stations > 0, process_id, run FROM run WHERE shown AND age <= 3;

INSERT INTO node (key, level, list, opened, run, grp)
SELECT DISTINCT r.key || '|' || p.grp, 3, 'state', 1, p.run, p.grp
FROM node n JOIN run r USING (run) JOIN part p USING (run) WHERE n.level = 2;

INSERT INTO node (key, level, list, opened, run, grp, station_id)
SELECT n.key || '|' || p.station_id, 4, 'tasks', 1, p.run, p.grp, p.station_id
FROM node n JOIN part p USING (run, grp) WHERE n.level = 3 AND p.place <= iif(p.grp = 1, 1, 5);

INSERT INTO node (key, level, list, opened, run, station_id, task_id, task_run_id)
SELECT n.key || '|' || t.task_id, 5, 'steps', 1, t.run, n.station_id, t.task_id, t.task_run_id
FROM node n JOIN task t ON t.run = n.run AND t.station_id IN (0, n.station_id) WHERE n.level = 4;

INSERT INTO node (key, level, list, opened, step_log_id)
SELECT n.key || '|' || s.step_log_id || '|' || s.task_run_id, 6, 'commands', 0, s.step_log_id
FROM node n JOIN step s USING (task_run_id) WHERE n.level = 5;
