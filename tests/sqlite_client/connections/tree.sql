-- Months, newest first, their days when asked for, and the connections. What holds failed ones counts them and looks as
-- they do.
INSERT INTO tab (caption) VALUES ('Connections');

INSERT INTO line (level, path, key, text, icon)
SELECT level, path, key, printf('%s (%d%s)', text, n, iif(failed, ', ' || failed || ' NOT OK', '')),
       iif(failed, 'User_NoOk', 'StepCom')
FROM (
  -- Digits that fall as the month or day rises.
  SELECT level, substr(99999999 - replace(day, '/', ''), 1, 4 + 2 * level) AS path, key, text, count(*) AS n,
         sum(outcome = 2) AS failed
  FROM (SELECT 1 AS level, month_key AS key, month AS text, day, outcome FROM connection
        UNION ALL
        SELECT 2, day_key, replace(day, '/', '-'), day, outcome FROM connection WHERE by_day)
  GROUP BY key);

INSERT INTO line (level, path, key, text, icon, below)
SELECT l.level + 1, l.path || printf('%06d', row_number() OVER (ORDER BY c.began DESC, c.id DESC)), c.key,
       printf('%s %s : %s', iif(by_day, substr(start_text, 12), start_text), station, direction), o.icon, 0
FROM connection c JOIN line l ON l.key = iif(by_day, day_key, month_key) JOIN outcome_look o USING (outcome);
