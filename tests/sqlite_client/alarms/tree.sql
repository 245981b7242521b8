-- Owners and their days, newest first. A node looks like its worst alarm, with the icon of a plain one.
INSERT INTO tab (caption) VALUES ('Alarms');

INSERT INTO line (level, path, key, text, icon, bold, below)
SELECT level, printf('%06d', owner_place) || iif(level = 2, 99999999 - day, ''), key,
       printf('%s (%d%s)', name, n, iif(active_ones, ', ' || active_ones || ' active', '')),
       'Alarm' || sender || iif(active, '', 'IsAcquitted'), active_ones > 0,
       level = 1 AND EXISTS (SELECT 1 FROM node d WHERE d.key = q.key AND d.opened)
FROM (
  SELECT p.*, r.sender, r.active, count(*) OVER (PARTITION BY key) AS n,
         sum(r.active) OVER (PARTITION BY key) AS active_ones,
         dense_rank() OVER (ORDER BY p.owner_id <> -1, iif(p.owner_id = -1, '', r.sort_name) COLLATE NOCASE, p.owner_id)
           AS owner_place,
         row_number() OVER (PARTITION BY key ORDER BY r.active DESC, r.severity DESC, r.raised_date DESC, r.id DESC)
           AS urgency
  FROM alarm_place p JOIN raised r USING (id)) q
WHERE urgency = 1;
