-- The whole tree as `print tree all` writes it, from the tables alone: flags are judged here, not by the viewer's rules.
.mode list
CREATE TEMP TABLE part AS
SELECT p.name COLLATE NOCASE AS process_name, p.process_id, p.on_server, p.on_station AS for_station,
       r.process_run_id AS run, r.start_date AS began, r.on_station <> 0 AS flag,
       s.station_id, s.station_name COLLATE NOCASE AS station_name, s.identifier, s.wait_state, s.station_run_id,
       CASE WHEN s.station_run_id IS NULL THEN 0
            WHEN s.in_progress <> 0 THEN 3 WHEN s.ok = -1 THEN 1 WHEN s.not_ok = -1 THEN 2
            WHEN s.unknown <> -1 AND s.executed = 0 THEN 4 ELSE 5 END AS grp,
       s.unknown = -1 AS is_unknown
FROM process_run r JOIN process p USING (process_id) LEFT JOIN station_run s ON s.process_run_id = r.process_run_id
WHERE r.start_date >= 43831 AND r.start_date < 46844;

CREATE TEMP TABLE opened AS
SELECT process_id, run FROM (
  SELECT process_id, run, row_number() OVER (PARTITION BY process_id ORDER BY began DESC, run DESC) AS place,
         max(grp) AS most FROM part GROUP BY process_id, run)
WHERE place = 1 AND most > 0;

CREATE TEMP TABLE state_group AS
SELECT process_name, process_id, run, began, flag, grp, count(*) AS stations, min(station_id) AS first_station,
       sum(count(*)) OVER (PARTITION BY process_id, run) AS total
FROM part WHERE grp > 0 GROUP BY process_id, run, grp;

CREATE TEMP TABLE label (grp, caption, icon);
INSERT INTO label VALUES (1, 'OK', 'User_Ok'), (2, 'NOT OK', 'User_NoOk'), (3, 'In progress', 'User_Inprogress'),
                         (4, 'Not executed', 'User_NoExecute'), (5, 'Unknown', 'User_Undefined');
CREATE TEMP TABLE waiting (wait_state, icon);
INSERT INTO waiting VALUES ('Waiting com', 'User_WaitingCom'), ('Waiting station in com', 'User_WaitingStation'),
  ('Waiting station out com', 'User_WaitingStation'), ('Waiting execution in com', 'User_WaitingExecution'),
  ('Waiting execution out com', 'User_WaitingExecution'), ('Waiting prerequisite', 'User_WaitingPrerequisite');

-- Halves round to the even neighbour: exact in whole numbers.
CREATE TEMP TABLE node AS
SELECT process_name, process_id, NULL AS began, 0 AS run, 1 AS level, 0 AS first_station, '' AS station_name,
       0 AS station_id, 0 AS station_run_id,
       CASE WHEN EXISTS (SELECT 1 FROM opened o WHERE o.process_id = part.process_id) THEN '-' ELSE '+' END AS expander,
       '' || process_name AS text, 'LPROC|' || process_id AS key,
       CASE WHEN for_station <> 0 AND on_server = 0 THEN 'ProcessStation' ELSE 'Process' END AS icon
FROM part GROUP BY process_id
UNION ALL
SELECT process_name, process_id, began, run, 2, 0, '', 0, 0,
       CASE WHEN max(grp) = 0 THEN ' '
            WHEN EXISTS (SELECT 1 FROM opened o WHERE o.run = part.run) THEN '-' ELSE '+' END,
       CASE WHEN began = 0 THEN '' ELSE strftime('%Y-%m-%d %H:%M:%S', began + 2415018.5) END || ' (Batch No.' || run || ')',
       'LPROC|' || process_id || '|' || flag || '|' || run,
       CASE WHEN sum(grp = 3) > 0 THEN 'ProcessStart' WHEN sum(grp = 2) > 0 THEN 'ProcessNONOK'
            WHEN sum(grp = 5) > 0 OR max(grp) = 0 THEN 'ProcessUndefined' ELSE 'ProcessOk' END
FROM part GROUP BY process_id, run
UNION ALL
SELECT process_name, process_id, began, run, 3, first_station, '', 0, grp,
       CASE WHEN EXISTS (SELECT 1 FROM opened o WHERE o.run = g.run) THEN '-' ELSE '+' END,
       caption || ' : ' ||
         printf('%02d', CASE WHEN (stations * 200) % (total * 2) = total AND (stations * 100 / total) % 2 = 0
                             THEN stations * 100 / total ELSE (stations * 200 + total) / (total * 2) END) ||
         '% (' || stations || ')',
       'LPROC|' || process_id || '|' || flag || '|' || run || '|' || grp, icon
FROM state_group g JOIN label USING (grp)
UNION ALL
SELECT p.process_name, p.process_id, p.began, p.run, 3, g.first_station, p.station_name, p.station_id,
       1000 + p.station_run_id, ' ',
       CASE WHEN p.station_id = 0 THEN 'Without population' ELSE p.station_name END || ' (' || p.identifier || ')',
       'LPROC|' || p.process_id || '|' || p.flag || '|' || p.run || '|' || p.grp || '|' || p.station_id,
       CASE p.grp WHEN 3 THEN coalesce((SELECT w.icon FROM waiting w WHERE w.wait_state = p.wait_state), 'User')
                  WHEN 5 THEN CASE WHEN p.is_unknown THEN 'User_Undefined' ELSE 'User' END
                  ELSE (SELECT l.icon FROM label l WHERE l.grp = p.grp) END
FROM part p JOIN opened o ON o.run = p.run JOIN state_group g ON g.run = p.run AND g.grp = p.grp;

SELECT substr('        ', 1, 2 * (CASE WHEN station_run_id >= 1000 THEN 4 ELSE level END - 1)) || expander ||
       replace(replace(replace(replace(text, '\', '\\'), char(9), '\t'), char(13), '\r'), char(10), '\n') ||
       char(9) || key || char(9) || icon
FROM node
ORDER BY process_name COLLATE NOCASE, process_id, level > 1, began DESC, run DESC, level > 2, first_station,
         station_run_id >= 1000, station_name COLLATE NOCASE, station_id, station_run_id;
SELECT 'Processes (' || count(DISTINCT process_id) || ')' FROM part;
