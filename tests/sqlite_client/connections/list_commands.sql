-- The commands of a connection. What a connection did is told by result codes, of any kind of command.
INSERT INTO header (list, text) VALUES
  ('connection commands', 'Connection command¦Kind¦Result¦Report¦Start¦End¦Status');

INSERT INTO shown
SELECT number, row_number() OVER (PARTITION BY number ORDER BY command_log_id), status = 'Not Ok',
       CASE status WHEN 'Ok' THEN 'CommandOk' WHEN 'Not Ok' THEN 'CommandNONOK' ELSE 'CommandStart' END,
       command_log_id || '|' || key,
       printf('%s¦%s¦%s¦%s¦%s¦%s¦%s', text, kind, result, report,
              iif(start_date = 0, '', strftime('%Y-%m-%d %H:%M:%S', start_date + 2415018.5)),
              iif(end_date = 0, '', strftime('%Y-%m-%d %H:%M:%S', end_date + 2415018.5)), status)
FROM (SELECT n.number, n.key, c.*,
             CASE WHEN in_progress <> 0 THEN 'In progress' WHEN result = 0 THEN 'Ok'
                  WHEN kind IN (89, 90) AND result BETWEEN 91 AND 94 THEN 'Ok' ELSE 'Not Ok' END AS status
      FROM node n JOIN command_log c ON c.communication_id = n.record WHERE n.list = 'connection commands');
