-- Nodes of the alarms: all owners together, each owner, and the days of both.
CREATE TEMP TABLE raised AS
SELECT a.alarm_id AS id, owner_id, raised_date, severity, text, origin, acknowledged_by,
       -- A run that is gone leads nowhere.
       ifnull((SELECT printf('|%d|%d|%d', process_id, on_station <> 0, process_run_id) FROM process_run
               WHERE process_run_id = a.process_run_id), '') AS run_fields,
       a.acknowledged = 0 AS active,
       'From' || iif(origin = 'Server', 'Server', 'Station') AS sender,
       CASE action WHEN 1 THEN 'Mail' WHEN 2 THEN 'Process' WHEN 3 THEN 'File' WHEN 4 THEN 'Program'
                   WHEN 5 THEN 'TriggerSnmpTrap' ELSE '' END AS triggered,
       iif(owner_id = 0, 'Server', iif(s.name = '', 'Unknown station', s.name)) AS owner, s.name AS sort_name,
       iif(raised_date = 0, '', strftime('%Y-%m-%d %H:%M:%S', raised_date + 2415018.5)) AS raised_text,
       iif(acknowledged_date = 0, '', strftime('%Y-%m-%d %H:%M:%S', acknowledged_date + 2415018.5)) AS acknowledged_text
FROM alarm a JOIN station s ON s.station_id = a.owner_id
CROSS JOIN (SELECT id AS one, from_type, state, period_start, period_end FROM setting)
WHERE CASE from_type WHEN 1 THEN owner_id = one WHEN 7 THEN a.alarm_id = one ELSE 1 END
  -- With the last execution no period is asked for. To an alarm that somebody has seen nothing is left to be done.
  AND (state = 4 OR (raised_date >= period_start AND raised_date < period_end))
  AND CASE state WHEN 1 THEN a.acknowledged <> 0 WHEN 2 THEN a.acknowledged = 0 ELSE state IN (0, 4) END;

-- Where each stands; one without a date is on no day.
CREATE TEMP TABLE alarm_place AS
WITH owner_place AS (
  SELECT id, iif(from_type IN (1, 7), 'LOGA1USR|', 'LOGAUSR|') || owner_id AS owner_key, owner_id, owner AS name
  FROM raised CROSS JOIN (SELECT from_type FROM setting)
  UNION ALL
  SELECT id, 'LOGAALL|-1', -1, 'All alarms' FROM raised
  WHERE (SELECT from_type NOT IN (1, 7) FROM setting))
SELECT p.id, 1 AS level, owner_key AS key, owner_key, p.owner_id, '' AS day, p.name FROM owner_place p
UNION ALL
SELECT p.id, 2, 'LOGALRM|' || p.owner_id || strftime('|%Y/%m/%d', raised_date + 2415018.5), owner_key, p.owner_id,
       strftime('%Y%m%d', raised_date + 2415018.5), strftime('%Y-%m-%d', raised_date + 2415018.5)
FROM owner_place p JOIN raised r USING (id) WHERE raised_date <> 0;
CREATE INDEX temp.alarm_place_by_key ON alarm_place (key);

INSERT INTO node (key, level, list, opened)
SELECT key, level, iif(owner_id = -1, 'alarms of all', 'alarms'),
       level = 1 AND EXISTS (SELECT 1 FROM alarm_place d WHERE d.owner_key = p.key AND d.level = 2)
FROM alarm_place p GROUP BY key ORDER BY level, key;
