-- The scheduler's log, newest first. Files are looked for where they were recorded.
INSERT INTO header (list, text) VALUES ('system', 'Date¦Machine¦Label¦Company¦User¦Attachment');

INSERT INTO shown
SELECT n.number, row_number() OVER (ORDER BY logged_date DESC, scheduler_log_id DESC), 0,
       CASE severity WHEN 1 THEN 'NoAlarm' WHEN 2 THEN 'Alarm' ELSE 'AlarmInfos' END, 'HSYS|' || scheduler_log_id,
       printf('%s¦%s¦%s¦%s¦%s¦%s', strftime('%Y-%m-%d %H:%M:%S', logged_date + 2415018.5), machine, label, company,
              user_name,
              iif(trim(attachment) = '' OR readfile(attachment) IS NOT NULL, attachment, 'Nonexistent file'))
FROM node n CROSS JOIN setting s CROSS JOIN (SELECT scheduler_log.*, level AS severity FROM scheduler_log)
WHERE n.list = 'system' AND logged_date >= period_start AND logged_date < period_end
  AND CASE s.state WHEN 0 THEN 1 WHEN 5 THEN severity NOT IN (1, 2) ELSE severity = s.state END;
