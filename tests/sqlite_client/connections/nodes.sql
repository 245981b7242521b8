-- Nodes of the connections: every month, with days every day, and of each day and outcome some connections.
CREATE TEMP TABLE connection AS
SELECT *, 'LCOMM|' || month AS month_key, 'LCOMM|' || month || '|' || day AS day_key,
       'LCOMM|' || month || '|' || day || '|' || id AS key
FROM (
  SELECT communication_id AS id, start_date AS began, end_date AS ended, size_kb, report,
         iif(station_name = '', 'Unknown station', station_name) AS station,
         iif(from_station <> 0, 'From station', 'To station') AS direction,
         CASE WHEN in_progress <> 0 THEN 3 WHEN ok = -1 THEN 1 WHEN not_ok = -1 THEN 2 ELSE 5 END AS outcome,
         strftime('%Y/%m', start_date + 2415018.5) AS month, strftime('%Y/%m/%d', start_date + 2415018.5) AS day,
         iif(start_date = 0, '', strftime('%Y-%m-%d %H:%M:%S', start_date + 2415018.5)) AS start_text,
         iif(end_date = 0, '', strftime('%Y-%m-%d %H:%M:%S', end_date + 2415018.5)) AS end_text,
         row_number() OVER (PARTITION BY station_id ORDER BY start_date DESC, communication_id DESC) AS age,
         start_date >= period_start AND start_date < period_end AS in_period
  FROM communication CROSS JOIN setting s WHERE s.from_type <> 1 OR station_id = s.id)
CROSS JOIN (SELECT state, by_day, narrowed, present FROM setting)
-- The last execution is that of each station, whenever it was; one without a date that can be shown is in no month.
WHERE CASE state WHEN 4 THEN age = 1 WHEN 0 THEN in_period ELSE in_period AND outcome = state END
  AND began <> 0 AND month IS NOT NULL;
CREATE INDEX temp.connection_by_month ON connection (month_key);
CREATE INDEX temp.connection_by_day ON connection (day_key);
CREATE UNIQUE INDEX temp.connection_by_key ON connection (key);

CREATE TEMP TABLE outcome_look (outcome PRIMARY KEY, caption, icon);
INSERT INTO outcome_look VALUES
  (1, 'Ok', 'User_Ok'), (2, 'Not Ok', 'User_NoOk'), (3, 'In progress', 'User_Inprogress'),
  (5, 'Unknown', 'User_Undefined');

INSERT INTO node (key, level, list, opened)
SELECT DISTINCT month_key, 1, 'connections', 1 FROM connection ORDER BY month;

INSERT INTO node (key, level, list, opened)
SELECT DISTINCT day_key, 2, 'connections', 1 FROM connection WHERE by_day ORDER BY day;

INSERT INTO node (key, level, list, opened, record)
SELECT key, 2 + by_day, 'connection commands', 0, id
FROM (SELECT *, row_number() OVER (PARTITION BY day, outcome ORDER BY id) AS place FROM connection) WHERE place <= 2;
