-- Nodes of one import: its names, the processes under each, and their runs. No period narrows it. The processes of an
-- empty name are listed as any others.
CREATE TEMP TABLE import AS
SELECT r.import_run_id AS id, r.name, r.process_id, r.batch_number AS batch, r.start_date AS began,
       'LIMP|' || user_import_id || '|' || replace(r.name, '|', char(31)) AS name_key,
       'LIMP|' || user_import_id || '|' || replace(r.name, '|', char(31)) || '|' || r.process_id AS process_key,
       'LIMP|' || user_import_id || '|' || replace(r.name, '|', char(31)) || '|' || r.process_id || '|' ||
         r.import_run_id AS key,
       iif(r.process_id = 0, 'Manual', 'Processes: ' || p.name) AS process,
       iif(r.process_id = 0, 'ImportManualServer', 'Process') AS icon,
       iif(r.start_date = 0, '', strftime('%Y-%m-%d %H:%M:%S', r.start_date + 2415018.5)) AS start_text
FROM import_run r LEFT JOIN process p USING (process_id) JOIN setting s ON s.id = r.user_import_id;

INSERT INTO node (key, level, list, opened)
SELECT DISTINCT name_key, 1, iif(name = '', 'children', 'processes of an import'), 1 FROM import;
INSERT INTO node (key, level, list, opened) SELECT DISTINCT process_key, 2, 'imported users', 1 FROM import;
INSERT INTO node (key, level, list, opened, record) SELECT key, 3, 'imported users', 0, id FROM import;
