-- Names, their processes by name after what somebody ran by hand, and runs, newest first.
INSERT INTO tab (caption) VALUES ('User imports');
INSERT INTO header VALUES ('processes of an import', 'Triggering', 1);

CREATE TEMP TABLE import_path AS
SELECT *, printf('%06d', dense_rank() OVER (ORDER BY name COLLATE NOCASE, name)) AS name_path,
       printf('%06d', dense_rank() OVER (ORDER BY process_id <> 0, process COLLATE NOCASE, process_id)) AS process_path,
       printf('%06d', row_number() OVER (ORDER BY began DESC, id DESC)) AS run_path
FROM import;

INSERT INTO line (level, path, key, text, icon)
SELECT DISTINCT 1, name_path, name_key, name, 'UserImport' FROM import_path
UNION ALL
SELECT DISTINCT 2, name_path || process_path, process_key, process, icon FROM import_path;

INSERT INTO line (level, path, key, text, icon, below)
SELECT 3, name_path || process_path || run_path, key, start_text || ' (Batch No.' || batch || ')', 'ProcessOk', 0
FROM import_path;
