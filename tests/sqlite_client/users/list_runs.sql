-- The runs of a process on one station, with the station's own outcome. They end when the station's part does.
INSERT INTO header (list, text) VALUES ('station runs', 'Run¦Start¦End¦Duration¦Place¦Status');

INSERT INTO shown
SELECT number, row_number() OVER (PARTITION BY number ORDER BY began DESC, run DESC), caption = 'Not Ok', own_icon,
       run_key,
       printf('%s¦%s¦%s¦%s¦%s¦%s', run, run_start_text, end_text,
              iif(seconds IS NULL, '', printf('%5d:%02d:%02d', seconds / 3600, seconds / 60 % 60, seconds % 60)),
              iif(flag, 'Station', 'Server'), caption)
FROM (SELECT n.number, p.*,
             CAST(round(86400 * CASE WHEN ended <> 0 THEN ended - began WHEN p.grp = 3 THEN present - began END)
                  AS INTEGER) AS seconds
      FROM node n JOIN station_part p USING (station_id, process_id) CROSS JOIN setting WHERE n.list = 'station runs');
