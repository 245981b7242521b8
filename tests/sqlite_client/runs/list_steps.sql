-- The steps of a task. One that is both OK and not OK reads "Ok" and is marked.
INSERT INTO header (list, text) VALUES ('steps', 'Step¦Settings¦Report¦Execution location¦Start¦End¦Status');

INSERT INTO shown
SELECT n.number, row_number() OVER (PARTITION BY n.number ORDER BY s.step_log_id), s.failed, s.icon,
       s.step_log_id || '|' || n.task_run_id || '|' || n.key,
       printf('%s¦%s¦%s¦%s¦%s¦%s¦%s', s.name, s.settings, s.report, s.place, s.start_text, s.end_text, s.status)
FROM node n JOIN step s USING (task_run_id) WHERE n.list = 'steps';
