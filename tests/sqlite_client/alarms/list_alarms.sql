-- The alarms of an owner or of a day, newest first; where owners stand together, with the owner. Active ones stand out;
-- here they alone can be wanted.
INSERT INTO header (list, text) VALUES
  ('alarms', 'Alarm¦Raised¦Severity¦Source¦State¦Acknowledged by¦Acknowledged'),
  ('alarms of all', 'Owner¦Alarm¦Raised¦Severity¦Source¦State¦Acknowledged by¦Acknowledged');

INSERT INTO shown
SELECT n.number, row_number() OVER (PARTITION BY n.number ORDER BY raised_date DESC, r.id DESC), active,
       iif(triggered = '', 'Alarm' || sender || iif(active, '', 'IsAcquitted'), 'AlarmAction' || triggered || sender),
       r.id || '|' || n.key || run_fields,
       iif(n.list = 'alarms of all', owner || '¦', '') ||
         printf('%s¦%s¦%s¦%s¦%s¦%s¦%s', text, raised_text, severity, origin, iif(active, 'Active', 'Acknowledged'),
                acknowledged_by, acknowledged_text)
FROM node n JOIN alarm_place p USING (key) JOIN raised r ON r.id = p.id CROSS JOIN (SELECT narrowed FROM setting)
WHERE NOT narrowed OR active;
