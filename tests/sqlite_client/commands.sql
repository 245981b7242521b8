-- The commands of the script: opens the nodes, prints the tree, clicks each node and prints its list. Keys hold what
-- names do.
CREATE TEMP TABLE command (number INTEGER PRIMARY KEY, text, prints);
CREATE TEMP TABLE word AS
SELECT number, '"' || replace(replace(replace(replace(replace(key, '\', '\\'), '"', '\"'), char(9), '\t'),
                                      char(13), '\r'), char(10), '\n') || '"' AS text
FROM node WHERE key IS NOT NULL;
INSERT INTO command (text)
SELECT 'expand ' || w.text FROM node n JOIN word w USING (number) WHERE n.opened ORDER BY number;
INSERT INTO command (text, prints) VALUES ('print tree all', 'tree'), ('print caption', 'caption');
INSERT INTO command (text, prints)
SELECT iif(part = 1, 'click ' || w.text, 'print list'), iif(part = 2, number, NULL)
FROM node LEFT JOIN word w USING (number) CROSS JOIN (SELECT 1 AS part UNION ALL SELECT 2)
WHERE part = 2 OR w.text IS NOT NULL ORDER BY number, part;
