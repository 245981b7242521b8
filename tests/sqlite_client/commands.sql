-- The commands of the script: opens the nodes, prints the tree, clicks each node and prints its list.
CREATE TEMP TABLE command (number INTEGER PRIMARY KEY, text, prints);
INSERT INTO command (text) SELECT 'expand ' || key FROM node WHERE opened ORDER BY number;
INSERT INTO command (text, prints) VALUES ('print tree all', 'tree'), ('print caption', 'caption');
INSERT INTO command (text, prints)
SELECT iif(part = 1, 'click ' || key, 'print list'), iif(part = 2, number, NULL)
FROM node CROSS JOIN (SELECT 1 AS part UNION ALL SELECT 2) ORDER BY number, part;
