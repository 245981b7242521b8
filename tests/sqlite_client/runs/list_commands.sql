-- The commands of a step.
INSERT INTO header (list, text) VALUES ('commands', 'Command¦Kind¦Result¦Report¦Start¦End¦Status');

INSERT INTO shown
SELECT n.number, row_number() OVER (PARTITION BY n.number ORDER BY c.command_log_id), c.status = 'Not Ok', c.icon,
       c.command_log_id || '|' || n.key,
       printf('%s¦%s¦%s¦%s¦%s¦%s¦%s', c.text, c.kind, c.result, c.report, c.start_text, c.end_text, c.status)
FROM node n JOIN sent_command c USING (step_log_id) WHERE n.list = 'commands';
