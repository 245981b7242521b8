-- Tasks and steps, which look the same in both trees.
INSERT INTO line (level, path, key, text, icon, bold, below)
SELECT l.level + 1, l.path || printf('%06d%09d', t.position, t.task_run_id), l.key || '|' || t.task_id, t.tree_text,
       t.icon, t.status = 'Not Ok', EXISTS (SELECT 1 FROM step s WHERE s.task_run_id = t.task_run_id)
FROM node o JOIN line l USING (key) JOIN task t ON t.run = o.run AND t.station_id IN (0, o.station_id)
WHERE o.list = 'tasks';

INSERT INTO line (level, path, key, text, icon, bold, below)
SELECT l.level + 1, l.path || printf('%09d', s.step_log_id), l.key || '|' || s.step_log_id || '|' || s.task_run_id,
       s.tree_text, s.icon, s.status = 'Not Ok', 0
FROM node o JOIN line l USING (key) JOIN step s USING (task_run_id) WHERE o.list = 'steps';
