-- The process tree down to the stations.
INSERT INTO tab (caption) VALUES ('Processes');

INSERT INTO line (level, path, key, text, icon)
SELECT 1, printf('%06d', row_number() OVER (ORDER BY process_name COLLATE NOCASE, process_id)), process_key,
       process_name, process_icon
FROM run WHERE shown GROUP BY process_id;

INSERT INTO line (level, path, key, text, icon, below)
SELECT 2, l.path || printf('%06d', r.age), r.key, r.text, r.icon, r.stations > 0
FROM run r JOIN line l ON l.key = r.process_key WHERE r.shown;

-- Groups stand in the order of their first station. Halves round to the even neighbour: exact in whole numbers.
INSERT INTO line (level, path, key, text, icon)
SELECT 3, l.path || printf('%06d', first_station), l.key || '|' || grp,
       printf('%s : %02d%% (%d)', caption,
              CASE WHEN (n * 200) % (stations * 2) = stations AND (n * 100 / stations) % 2 = 0
                   THEN n * 100 / stations ELSE (n * 200 + stations) / (stations * 2) END, n), g.icon
FROM (SELECT r.key, r.stations, p.grp, min(p.station_id) AS first_station, count(*) AS n
      FROM run r JOIN part p USING (run) GROUP BY r.run, p.grp)
JOIN line l USING (key) JOIN group_look g USING (grp);

-- What has not been opened yet may have something below it.
INSERT INTO line (level, path, key, text, icon, below)
SELECT 4, l.path || printf('%06d', p.place), l.key || '|' || p.station_id, p.name || ' (' || p.identifier || ')', p.icon,
       NOT EXISTS (SELECT 1 FROM node n WHERE n.key = l.key || '|' || p.station_id) OR
         EXISTS (SELECT 1 FROM task t WHERE t.run = p.run AND t.station_id IN (0, p.station_id))
FROM node o JOIN line l USING (key) JOIN part p USING (run, grp) WHERE o.list = 'state';
