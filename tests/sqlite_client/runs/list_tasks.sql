-- The tasks of a run on a station, with those that ran once for all stations.
INSERT INTO header (list, text) VALUES ('tasks', 'Task¦Type¦Report¦Start¦End¦Status');

INSERT INTO shown
SELECT n.number, row_number() OVER (PARTITION BY n.number ORDER BY t.position, t.task_run_id), t.status = 'Not Ok',
       t.icon, t.task_id || '|' || n.key,
       printf('%s¦%s¦%s¦%s¦%s¦%s', t.name, t.type_name, t.report, t.start_text, t.end_text, t.status)
FROM node n JOIN task t ON t.run = n.run AND t.station_id IN (0, n.station_id) WHERE n.list = 'tasks';
