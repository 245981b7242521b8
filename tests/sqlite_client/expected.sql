-- What the script should print. Texts are written as prints write them: bytes that are no UTF-8 as the replacement
-- character, control characters escaped.
CREATE TEMP TABLE expected AS
SELECT number AS command, 0 AS line, '> ' || text AS text FROM command WHERE prints IS NOT NULL
UNION ALL
SELECT c.number, t.line,
       printf('%*s%s%s¦%s¦%s', 2 * (t.level - 1), '', t.expander, t.text, t.key, t.icon) || iif(t.bold, '¦bold', '')
FROM command c JOIN tree_line t WHERE c.prints = 'tree'
UNION ALL
SELECT c.number, 1, printf('%s (%d)', t.caption, iif(without_tree, (SELECT count(*) FROM shown),
                                                     (SELECT count(*) FROM tree_line WHERE level = 1)))
FROM command c JOIN tab t WHERE c.prints = 'caption'
UNION ALL
SELECT c.number, 0.5, h.text FROM command c JOIN node n ON n.number = c.prints JOIN header h USING (list)
UNION ALL
SELECT c.number, s.line, printf('%s%s%s¦%s¦%s', iif(t.without_tree AND s.line = 1, '*', ' '), iif(s.failed, '!', ' '),
                                s.icon, s.key, s.cells)
FROM command c JOIN shown s ON s.number = c.prints JOIN tab t;

UPDATE expected SET text = replace(text,
  CAST(x'496D7072696D616E746520617272EA74E9652C2063E2626C652064E96272616E6368E9' AS TEXT),
  replace('Imprimante arr?t?e, c?ble d?branch?', '?', char(65533)))
WHERE instr(CAST(text AS BLOB), x'EA74E9') > 0;

SELECT replace(replace(replace(replace(replace(text, '\', '\\'), char(9), '\t'), char(13), '\r'), char(10), '\n'),
               '¦', char(9))
FROM expected ORDER BY command, line;
