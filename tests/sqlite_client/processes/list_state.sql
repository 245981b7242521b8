-- The stations of one state group.
INSERT INTO header (list, text) VALUES ('state', 'Name¦Identifier¦Company¦Report¦Start¦End¦Status');

INSERT INTO shown
SELECT n.number, p.place, p.caption = 'Not Ok', p.icon, p.station_id || '|' || n.key,
       printf('%s¦%s¦%s¦%s¦%s¦%s¦%s', p.name, p.identifier, p.company, p.report, p.start_text, p.end_text, p.caption)
FROM node n JOIN part p USING (run, grp) WHERE n.list = 'state';
