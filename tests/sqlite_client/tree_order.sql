-- All lines of the tree in their order.
INSERT INTO tree_line
SELECT row_number() OVER (ORDER BY path), l.level,
       CASE WHEN NOT below THEN ' ' WHEN n.opened THEN '-' ELSE '+' END, text, key, icon, bold
FROM line l LEFT JOIN node n USING (key);
