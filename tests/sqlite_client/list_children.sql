-- The nodes below a node, as the tree shows them.
INSERT INTO header VALUES ('children', 'Processes', 1);

INSERT INTO shown
SELECT n.number, t.line, t.bold, t.icon, t.key, t.text
FROM node n JOIN header h USING (list)
JOIN tree_line t ON t.level = n.level + 1 AND substr(t.key, 1, length(n.key) + 1) = n.key || '|'
WHERE h.of_nodes;
