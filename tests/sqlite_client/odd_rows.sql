-- Rows that a generator does not think of: equal dates, none, those at the ends of a period, flags of other values,
-- names that differ in case or hold what keys are made of.
INSERT INTO station (station_id, name) VALUES (9001, 'Twin'), (9002, 'twin'), (9003, 'A | b'), (9004, 'Silent');

INSERT INTO communication
  (communication_id, station_id, station_name, from_station, start_date, end_date, size_kb, in_progress, ok, not_ok)
VALUES
  -- The days that the comparisons pick begin and end at six.
  (90001, 9001, 'Twin', 1, 46331.25, 46331.5, 2147483647, 0, -1, 0),
  (90002, 9001, 'Twin', 0, 46340.25, 46340.5, 1, 0, 0, -1),
  (90003, 9001, 'Twin', 0, 46331.25, 0, 0, 1, 0, 0),
  (90004, 9002, 'twin', 0, 46335, 46334.5, 5, 0, 0, -1),
  (90005, 9002, 'twin', 0, 46335, 0, 5, 0, 0, -1),
  (90006, 9003, 'A | b', 0, 46335.999988426, 46336.000011574, -1, 0, 1, 1),
  (90007, 9003, '', 0, 46336, 46336, 0, 1, -1, -1),
  (90008, 9004, 'Silent', 0, 0, 0, 0, 0, 0, -1),
  -- Behind the last year that can be written.
  (90009, 9003, 'A | b', 0, 3000000, 0, 0, 0, 0, -1);
INSERT INTO command_log
  (command_log_id, step_log_id, communication_id, communication_date, kind, result, text, in_progress, ok, not_ok)
VALUES
  (9000001, 0, 90001, 46331.25, 88, 92, 'a', 0, -1, 0), (9000002, 0, 90001, 46331.25, 89, 92, 'b', 0, 0, -1),
  (9000003, 0, 90001, 46331.25, 90, 94, 'c', 0, 0, -1), (9000004, 0, 90001, 46331.25, 89, 95, 'd', 0, -1, 0),
  (9000005, 0, 90001, 46331.25, 90, 90, 'e', 0, -1, 0), (9000006, 0, 90001, 46331.25, 1, 91, 'f', 0, -1, 0),
  (9000007, 0, 90001, 46331.25, 1, 0, 'g', 0, 0, -1), (9000008, 0, 90001, 46331.25, 89, 5, 'h', 1, 0, 0),
  (9000009, 0, 90001, 46331.25, 2147483647, -1, 'i', 0, 0, 0);

INSERT INTO alarm (alarm_id, owner_id, raised_date, severity, action, origin, text, acknowledged) VALUES
  (90001, 9001, 46331.25, 99, 0, 'Server', 'at the start', 0),
  (90002, 9002, 46331.25, 99, 0, 'Router', 'at the same time', 0),
  (90003, 9001, 46340.25, 5, 0, 'Server', 'at the end', 0),
  (90004, 9003, 0, 0, 0, 'SERVER', 'without a date, and alone', 0),
  (90005, 9004, 46335, -7, 6, 'Server', 'acknowledged somehow', 1),
  (90006, 9004, 46335, -7, -1, 'Router', 'the same', 1),
  (90007, 9004, 46335.5, -8, 0, 'Router', 'not so bad', 42);

INSERT INTO backup (backup_id, station_id, name, saved_date, size_kb, ok) VALUES
  (90001, 9001, 'Till', 46331.25, 1, -1), (90002, 9001, 'till', 46331.25, 2, 0), (90003, 9001, 'Till', 46331.25, 3, -1),
  (90004, 9001, 'Till', 46340.25, 4, -1), (90005, 9002, '', 46335, 0, 1), (90006, 9002, '|', 46335, 0, -1),
  (90007, 9003, 'A', 46388, 7, -1), (90008, 9003, 'A', 46387.999988426, 7, 42), (90009, 9004, 'None', 0, 9, -1),
  (90012, 9004, 'Far', 3000000, 9, 0),
  (90010, 9002, 'b', 46335, 1, -1), (90011, 9002, 'C', 46335, 1, -1);
INSERT INTO backup_file (backup_id, name, path, saved_date, size_kb, ok) VALUES
  (90001, 'b', 'C:\x', 46331.25, 1, -1), (90001, 'B', 'C:\X', 46331.25, 1, 0), (90001, 'a', 'C:\x', 0, 1, 1),
  (90001, 'b', '', 46331.25, 1, -1), (90002, '', '|', 46331.25, 0, 0), (90002, 'ok', '|', 46331.25, 0, -1),
  (90006, 'only', 'a|b', 46335, 0, -1), (90006, 'too', 'B', 46335, 0, -1);

INSERT INTO user_import (user_import_id, name) VALUES (9001, 'Odd'), (9002, 'Never run');
INSERT INTO process (process_id, name) VALUES (9001, 'aa'), (9002, 'AA'), (9003, 'Z');
INSERT INTO import_run (import_run_id, user_import_id, name, process_id, batch_number, start_date) VALUES
  (90001, 9001, 'Odd', 9003, 1, 46331), (90002, 9001, 'Odd', 9001, 1, 46331), (90003, 9001, 'Odd', 9002, 1, 46331),
  (90004, 9001, 'Odd', 0, 7, 0), (90005, 9001, '|', 9001, 2147483647, 46331), (90006, 9001, '|', 9001, 2, 46331),
  (90007, 9001, '', 9001, -1, 46332);
INSERT INTO imported_user (import_run_id, user_name, ok, report) VALUES
  (90001, '', -1, ''), (90001, 'Twice', -1, ''), (90001, 'Twice', 0, 'a|b'), (90002, '|', 42, 'other flag'),
  (90006, 'last', 0, '');

INSERT INTO scheduler_log (scheduler_log_id, logged_date, level, machine, label, attachment) VALUES
  (90001, 46331.25, 0, 'a', 'at the start', ' '), (90002, 46331.25, -1, 'b', 'at the same time', ' no such file '),
  (90003, 46340.25, 2, 'c', 'at the end', 'no such file'), (90004, 46335, 7, 'd', 'line 1' || char(13, 10) || '2', '');
