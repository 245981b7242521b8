-- The station-first tree down to the runs. A station and a process look like the worst of their parts, one in progress
-- like the newest of them.
INSERT INTO tab (caption) VALUES ('Users');

INSERT INTO line (level, path, key, text, icon)
SELECT 1, printf('%06d', row_number() OVER (ORDER BY sort_name COLLATE NOCASE, station_id)), user_key,
       present_name || ' (' || present_identifier || ')', g.icon
FROM (SELECT *, min(weight) AS worst FROM station_part GROUP BY station_id) p JOIN group_look g ON g.weight = p.worst;

INSERT INTO line (level, path, key, text, icon)
SELECT 2, l.path || printf('%06d', row_number() OVER (PARTITION BY p.station_id
                                                      ORDER BY process_name COLLATE NOCASE, process_id)),
       process_key, process_name, tree_icon
FROM (SELECT *, row_number() OVER (PARTITION BY station_id, process_id ORDER BY weight, began DESC, run DESC) AS nth
      FROM station_part) p JOIN line l ON l.key = p.user_key
WHERE nth = 1;

INSERT INTO line (level, path, key, text, icon)
SELECT 3, l.path || printf('%06d', row_number() OVER (PARTITION BY process_key ORDER BY began DESC, p.run DESC)),
       run_key, run_text, tree_icon
FROM node o JOIN line l USING (key) JOIN station_part p ON p.process_key = l.key WHERE o.list = 'station runs';
