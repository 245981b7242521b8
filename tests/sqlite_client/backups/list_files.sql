-- The files of a backup, and those of one of its folders, by name.
INSERT INTO header (list, text) VALUES ('files', 'File¦Size (KB)¦Date¦Path¦Result');

INSERT INTO shown
SELECT n.number, row_number() OVER (PARTITION BY n.number ORDER BY position), failed, 'FileManagement' || place,
       position || '|' || n.key,
       printf('%s¦%s¦%s¦%s¦%s', f.name, size_kb,
              iif(saved_date = 0, '', strftime('%Y-%m-%d %H:%M:%S', saved_date + 2415018.5)), path,
              iif(failed, 'Not Ok', 'Ok'))
FROM node n JOIN saved_file f ON f.backup_id = n.record AND (n.level = 6 OR n.key = f.key || '|' || f.folder)
WHERE n.list = 'files';
