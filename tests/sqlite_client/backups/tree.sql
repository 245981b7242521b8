-- Levels of backups, the newest first, names and folders in their order. What holds a failure is bold.
INSERT INTO tab (caption) VALUES ('Backups');
INSERT INTO header VALUES
  ('Years', 'Years', 1), ('Months', 'Months', 1), ('Days', 'Days', 1), ('Backups', 'Backups', 1),
  ('Executions', 'Executions', 1);

CREATE TEMP TABLE save_path AS
SELECT *, printf('%06d', root_place) AS root_path,
       -- Digits that fall as the year, month or day rises.
       99999999 - strftime('%Y%m%d', saved_date + 2415018.5) AS day_path,
       printf('%06d', dense_rank() OVER (ORDER BY lower(name), name)) AS name_path,
       printf('%06d', row_number() OVER (ORDER BY saved_date DESC, id DESC)) AS path
FROM saved;

INSERT INTO line (level, path, key, text, icon, bold)
SELECT level, path, key, printf('%s (%d%s)', text, count(*), iif(sum(failed), ', ' || sum(failed) || ' NOT OK', '')),
       'Backup' || place, sum(failed) > 0
FROM (
  SELECT 1 AS level, root_path AS path, root_key AS key, root AS text, place, failed FROM save_path UNION ALL
  SELECT 2, root_path || substr(day_path, 1, 4), year_key, strftime('%Y', saved_date + 2415018.5), place, failed
  FROM save_path UNION ALL
  SELECT 3, root_path || substr(day_path, 1, 6), month_key, strftime('%Y/%m', saved_date + 2415018.5), place, failed
  FROM save_path UNION ALL
  SELECT 4, root_path || day_path, day_key, strftime('%Y-%m-%d', saved_date + 2415018.5), place, failed
  FROM save_path UNION ALL
  SELECT 5, root_path || day_path || name_path, name_key, iif(name = '', 'Without a name', name), place,
         failed FROM save_path)
GROUP BY key;

INSERT INTO line (level, path, key, text, icon, bold, below)
SELECT 6, root_path || day_path || name_path || path, key,
       printf('%s (%d KB)%s', time, size_kb, iif(failed, ' : NOT OK', '')), 'Backup' || place, failed,
       EXISTS (SELECT 1 FROM saved_file f WHERE f.backup_id = s.id AND f.path <> '')
FROM save_path s;

INSERT INTO line (level, path, key, text, icon, bold, below)
SELECT 7, l.path || printf('%06d', row_number() OVER (ORDER BY lower(f.path), f.path)), l.key || '|' || folder,
       printf('%s (%d%s)', f.path, count(*), iif(sum(failed), ', ' || sum(failed) || ' NOT OK', '')),
       'FileManagement' || place, sum(failed) > 0, 0
FROM saved_file f JOIN line l USING (key) WHERE f.path <> '' GROUP BY l.key, f.path;
