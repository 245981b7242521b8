-- The nodes below a node, as the tree shows them.
INSERT INTO header VALUES ('children', 'Processes');

INSERT INTO shown
SELECT n.number, t.line, 0, t.icon, t.key, t.text
FROM node n JOIN tree_line t ON t.level = n.level + 1 AND substr(t.key, 1, length(n.key) + 1) = n.key || '|'
WHERE n.list = 'children';
