-- The users of a run, or of all runs of a process. A run that imported nobody shows that it took place:
-- a row without a user that failed nothing, which neither went well nor failed.
INSERT INTO header (list, text) VALUES ('imported users', 'Imported user¦Batch¦Date¦Status¦Report');

INSERT INTO shown
SELECT n.number, row_number() OVER (PARTITION BY n.number ORDER BY i.began DESC, i.id DESC, imported_user_id),
       status = 'Not Ok', CASE status WHEN 'Ok' THEN 'User_Ok' WHEN 'Not Ok' THEN 'User_NoOk' ELSE 'User_NoExecute' END,
       i.id || '|' || n.key || '|' || replace(user, '|', char(31)),
       printf('%s¦%s¦%s¦%s¦%s', user, i.batch, i.start_text, status, report)
FROM node n JOIN import i ON n.key = iif(n.level = 3, i.key, i.process_key)
JOIN (SELECT r.import_run_id, imported_user_id, coalesce(user_name, '') AS user, report,
             CASE WHEN coalesce(ok, -1) <> -1 THEN 'Not Ok' WHEN coalesce(user_name, '') = '' THEN '' ELSE 'Ok' END AS status
      FROM import_run r LEFT JOIN imported_user u USING (import_run_id)) u ON u.import_run_id = i.id
WHERE n.list = 'imported users';
