-- Nodes of the backups, of all places or of one station: where they were made, year, month, day, name, the backup, and
-- its folders.
CREATE TEMP TABLE saved AS
SELECT *, year_key || strftime('|%Y/%m', saved_date + 2415018.5) AS month_key,
       year_key || strftime('|%Y/%m|%Y/%m/%d', saved_date + 2415018.5) AS day_key,
       year_key || strftime('|%Y/%m|%Y/%m/%d|', saved_date + 2415018.5) || replace(name, '|', char(31)) AS name_key,
       year_key || strftime('|%Y/%m|%Y/%m/%d|', saved_date + 2415018.5) || replace(name, '|', char(31)) || '|' || id ||
         '|' || time || '|' || NOT failed AS key
FROM (
  SELECT b.backup_id AS id, b.name, station_id, saved_date, size_kb, ok <> -1 AS failed,
         iif(station_id = 0, 'Server', iif(s.name = '', 'Unknown station', s.name)) AS root,
         iif(station_id = 0, 'Server', 'Station') AS place,
         iif(station_id = 0, 'LBCKSR|0|0', 'LBCKST|1|' || station_id) AS root_key,
         iif(station_id = 0, 'LBCKSR|0|0', 'LBCKST|1|' || station_id) || strftime('|%Y', saved_date + 2415018.5)
           AS year_key,
         strftime('%H:%M:%S', saved_date + 2415018.5) AS time,
         dense_rank() OVER (ORDER BY station_id <> 0, s.name COLLATE NOCASE, station_id) AS root_place
  FROM backup b JOIN station s USING (station_id))
CROSS JOIN (SELECT id AS one, from_type, state, period_start, period_end FROM setting)
WHERE (from_type <> 1 OR station_id = one)
  -- With the last execution no period is asked for; one without a date that can be shown is in no year.
  AND (state = 4 OR (saved_date >= period_start AND saved_date < period_end)) AND saved_date <> 0 AND time IS NOT NULL
  AND CASE state WHEN 1 THEN NOT failed WHEN 2 THEN failed ELSE 1 END;
CREATE UNIQUE INDEX temp.saved_by_number ON saved (id);

-- All files, also of failures. Each has a number among those of its backup.
CREATE TEMP TABLE saved_file AS
SELECT f.*, f.ok <> -1 AS failed, s.key, s.place, replace(path, '|', char(31)) AS folder,
       row_number() OVER (PARTITION BY f.backup_id ORDER BY f.name COLLATE NOCASE, backup_file_id) AS position
FROM backup_file f JOIN saved s ON s.id = f.backup_id;
CREATE INDEX temp.saved_file_by_backup ON saved_file (backup_id);

INSERT INTO node (key, level, list, opened)
SELECT DISTINCT root_key, 1, 'Years', 1 FROM saved UNION ALL
SELECT DISTINCT year_key, 2, 'Months', 1 FROM saved UNION ALL
SELECT DISTINCT month_key, 3, 'Days', 1 FROM saved UNION ALL
SELECT DISTINCT day_key, 4, 'Backups', 1 FROM saved UNION ALL
SELECT DISTINCT name_key, 5, 'Executions', 1 FROM saved;
INSERT INTO node (key, level, list, opened, record) SELECT key, 6, 'files', 1, id FROM saved;
INSERT INTO node (key, level, list, opened, record)
SELECT DISTINCT key || '|' || folder, 7, 'files', 0, backup_id FROM saved_file WHERE path <> '';
