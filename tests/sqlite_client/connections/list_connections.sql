-- The connections of a month or of a day; here failed ones alone can be wanted. Those in progress have taken until now.
INSERT INTO header (list, text) VALUES
  ('connections', 'Start¦Station¦Direction¦End¦Duration¦Size (KB)¦Status¦Report');

INSERT INTO shown
SELECT number, row_number() OVER (PARTITION BY number ORDER BY began DESC, id DESC), outcome = 2, o.icon, c.key,
       printf('%s¦%s¦%s¦%s¦%s¦%s¦%s¦%s', start_text, station, direction, end_text,
              iif(seconds >= 0, printf('%5d:%02d:%02d', seconds / 3600, seconds / 60 % 60, seconds % 60), ''), size_kb,
              o.caption, report)
FROM (SELECT n.number, c.*,
             CAST(round(86400 * CASE WHEN ended <> 0 THEN ended - began WHEN outcome = 3 THEN present - began END)
                  AS INTEGER) AS seconds
      FROM node n JOIN connection c ON n.key = iif(n.level = 1, c.month_key, c.day_key)
      WHERE n.list = 'connections' AND (NOT narrowed OR outcome = 2)) c
JOIN outcome_look o USING (outcome);
