-- Commands that open the newest run of each process in the period, with all its groups.
WITH newest AS (
  SELECT r.process_id, r.process_run_id, r.on_station
  FROM process_run r
  WHERE r.start_date >= 43831 AND r.start_date < 46844  -- 2020-01-01 and 99 months later
    AND NOT EXISTS (SELECT 1 FROM process_run n
                    WHERE n.process_id = r.process_id AND n.start_date < 46844
                      AND (n.start_date > r.start_date
                           OR (n.start_date = r.start_date AND n.process_run_id > r.process_run_id)))
    AND EXISTS (SELECT 1 FROM station_run s WHERE s.process_run_id = r.process_run_id)
), groups AS (
  SELECT DISTINCT n.*,
    CASE WHEN s.in_progress <> 0 THEN 3 WHEN s.ok = -1 THEN 1 WHEN s.not_ok = -1 THEN 2
         WHEN s.unknown <> -1 AND s.executed = 0 THEN 4 ELSE 5 END AS grp
  FROM newest n JOIN station_run s ON s.process_run_id = n.process_run_id
)
SELECT line FROM (
  SELECT process_id, 1 AS level, 0 AS grp, 'expand LPROC|' || process_id AS line FROM newest
  UNION ALL
  SELECT process_id, 2, 0, 'expand LPROC|' || process_id || '|' || (on_station <> 0) || '|' || process_run_id FROM newest
  UNION ALL
  SELECT process_id, 3, grp,
         'expand LPROC|' || process_id || '|' || (on_station <> 0) || '|' || process_run_id || '|' || grp FROM groups
) ORDER BY process_id, level, grp;
