-- All runs of a process, whatever the period.
INSERT INTO header (list, text) VALUES
  ('runs', 'Batch¦Start¦End¦Duration¦Status¦Stations¦OK¦Not OK¦In progress¦Not executed¦Unknown');

INSERT INTO shown
SELECT number, row_number() OVER (PARTITION BY number ORDER BY began DESC, run DESC), not_ok > 0, icon, key,
       printf('%s¦%s¦%s¦%s¦%s¦%s¦%s¦%s¦%s¦%s¦%s', run, start_text, end_text,
              iif(seconds IS NULL, '', printf('%5d:%02d:%02d', seconds / 3600, seconds / 60 % 60, seconds % 60)),
              CASE stations WHEN 0 THEN 'Unknown' WHEN ok THEN 'OK' WHEN not_ok THEN 'NOT OK' WHEN running
                   THEN 'In progress' WHEN not_executed THEN 'Not executed' WHEN unknown THEN 'Unknown' ELSE counts END,
              stations, ok, not_ok, running, not_executed, unknown)
FROM (SELECT n.number, r.*,
             substr(iif(ok > 0, ', ' || ok || ' OK', '') || iif(not_ok > 0, ', ' || not_ok || ' NOT OK', '') ||
                    iif(running > 0, ', ' || running || ' In progress', '') ||
                    iif(not_executed > 0, ', ' || not_executed || ' Not executed', '') ||
                    iif(unknown > 0, ', ' || unknown || ' Unknown', ''), 3) AS counts,
             CAST(round(86400 * CASE WHEN ended <> 0 THEN ended - began WHEN running > 0 THEN present - began END)
                  AS INTEGER) AS seconds
      FROM node n JOIN run r USING (process_id) CROSS JOIN setting WHERE n.list = 'runs');
