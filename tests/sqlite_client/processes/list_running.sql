-- A run while it runs: its stations, what needs attention first.
INSERT INTO header (list, text) VALUES ('running', 'Station¦Identifier¦Company¦Status¦Waiting for¦Report¦Start¦End');

INSERT INTO shown
SELECT n.number, row_number() OVER (PARTITION BY n.number ORDER BY p.urgency, p.place), p.grp = 2, p.icon,
       p.station_id || '|' || n.key,
       printf('%s¦%s¦%s¦%s¦%s¦%s¦%s¦%s', p.name, p.identifier, p.company, g.caption, p.waits_for, p.report,
              p.start_text, p.end_text)
FROM node n JOIN part p USING (run) JOIN group_look g ON g.grp = p.grp WHERE n.list = 'running';
