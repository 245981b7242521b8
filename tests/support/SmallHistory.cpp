#include "support/SmallHistory.h"

#include "hub/RecordHub.h"
#include "hub/sqlite/Database.h"

namespace quorvel::test {
namespace {

// Run and station rows leave the copies of the run's columns to the schema's triggers.
constexpr std::string_view kRows = R"sql(
INSERT INTO label VALUES ('UseType', 'SERVEUR'), ('SERVER_LOGS_DISPLAY_PERIOD', '2'), ('EMPTY', '');

INSERT INTO company VALUES (1, 'Acme'), (2, 'Bolt');
INSERT INTO station VALUES (1, 'alpha', 'A-1', 1), (2, 'Beta', 'B-2', 1), (3, 'gamma', 'G-3', 2), (4, 'Été', '', 0);
INSERT INTO process VALUES (10, 'backup', -1, 0), (11, 'Deploy', -1, 0), (12, 'Empty', -1, 0), (13, 'Archive|x', 0, -1);

INSERT INTO process_run VALUES
  (100, 11, 46345.25, 46345.5, 0), (101, 11, 46346.25, 0, 0), (102, 10, 46346, 46346.125, 0), (103, 11, 46344, 0, 0),
  (104, 13, 46345.75, 46345.875, -1), (105, 13, 0, 0, -1), (106, 10, 46343, 46343.5, 0);

INSERT INTO station_run (process_run_id, station_id, station_name, identifier, company, report, start_date, end_date,
                         in_progress, ok, not_ok, unknown, executed, wait_state) VALUES
  (100, 1, 'alpha', 'A-1', 'Acme', 'done', 46345.25, 46345.375, 0, -1, 0, 0, -1, ''),
  (100, 2, 'Beta', 'B-2', 'Acme', 'disk full', 46345.25, 46345.5, 0, 0, -1, 0, -1, ''),
  (100, 3, 'aardvark', 'G-3', 'Bolt', CAST(x'6261FF64' AS TEXT), 46345.25, 46345.5, 0, -1, -1, 0, -1, ''),
  (100, 4, 'Été', '', '', '', 0, 0, 0, 0, 0, -1, -1, ''),
  (101, 1, 'alpha', 'A-1', 'Acme', '', 46346.25, 0, -1, 0, 0, 0, 0, 'Waiting com'),
  (101, 2, 'Beta', 'B-2', 'Acme', '', 0, 0, 0, 0, 0, 0, 0, ''),
  (101, 3, 'gamma', 'G-3', 'Bolt', '', 46346.25, 46346.5, 0, 1, 0, 0, -1, ''),
  (102, 0, '', '', '', 'nightly', 46346, 46346.125, 0, -1, 0, 0, -1, ''),
  (104, 2, 'Beta', 'B-2', 'Acme', '', 46345.75, 46345.875, 0, 0, 0, -1, -1, ''),
  (105, 1, 'alpha', 'A-1', 'Acme', '', 0, 0, 0, -1, 0, 0, -1, ''),
  (106, 1, 'Alpha', 'A-1', 'Acme', 'no space', 46343, 46343.5, 0, 0, -1, 0, -1, '');

INSERT INTO task_run (task_run_id, process_run_id, station_id, position, task_id, task_name, task_type, not_executed,
                      station_scope, waiting, report, start_date, end_date, in_progress, ok, not_ok) VALUES
  (201, 100, 1, 1, 21, 'Copy', 'Teledistribution', 0, 1, 0, 'copied', 46345.25, 46345.3125, 0, -1, 0),
  (202, 100, 0, 2, 22, 'Prepare', 'BatchServer', 0, 0, 0, '', 46345.3125, 46345.34375, 0, -1, 0),
  (203, 100, 1, 3, 23, 'Check', 'no such type', -1, 1, -1, '', 0, 0, 0, 0, 0),
  (204, 100, 2, 1, 21, 'Copy', 'Teledistribution', 0, 2, 0, 'disk full', 46345.25, 46345.5, 0, 0, -1),
  (205, 102, 0, 1, 31, 'Dump', 'BatchServer', 0, 0, 0, '', 46346, 46346.125, 0, -1, 0);

INSERT INTO step_log (step_log_id, task_run_id, step_name, settings, report, execute_where, start_date, end_date,
                      in_progress, ok, not_ok, step_kind, station_scope) VALUES
  (301, 201, 'Send', 'a.zip', 'sent', 'Communication', 46345.25, 46345.28125, 0, -1, 0, 5, 1),
  (302, 201, 'Unpack', '', '', 'Station', 46345.28125, 46345.3125, 0, -1, 0, -1, 1),
  (303, 202, 'Build', '', '', 'Server', 46345.3125, 46345.34375, 0, -1, 0, 2, 0);

INSERT INTO command_log VALUES
  (401, 301, 501, 46345.25, 89, 92, 'put a.zip', 'kept', 46345.25, 46345.265625, 0, -1, 0),
  (402, 301, 0, 0, 88, 91, 'put b.zip', 'lost', 46345.265625, 46345.28125, 0, 0, -1),
  (403, 0, 501, 46345.25, 1, 0, 'bye', '', 46345.265625, 46345.265625, 0, -1, 0);

INSERT INTO communication (communication_id, station_id, station_name, from_station, start_date, end_date, size_kb,
                           report, in_progress, ok, not_ok) VALUES
  (501, 1, 'alpha', 0, 46345.25, 46345.265625, 12, 'closed', 0, -1, 0),
  (502, 2, 'Beta', -1, 46346, 46346.125, 0, 'line lost', 0, 0, -1),
  (503, 1, 'alpha', 0, 46346.5, 0, 7, '', -1, 0, 0),
  (504, 3, 'aardvark', 0, 46345.9375, 46346.0625, 2, '', 0, -1, -1),
  (505, 4, 'Été', 0, 0, 0, 0, '', 0, 0, 0);

INSERT INTO alarm VALUES
  (601, 1, 46345.5, 2, 1, 'server', 'mail sent', 0, '', 0, 100, 'Deploy'),
  (602, 1, 46346, 3, 0, 'alpha', 'disk full', -1, 'ADM\eve', 46346.25, 0, ''),
  (603, 0, 46346.75, 1, 5, 'Server', 'trap', 0, '', 0, 0, ''),
  (604, 2, 0, 0, 9, '', '', 1, '', 0, 0, ''),
  (605, 2, 46347, 1, 0, 'Beta', 'back', 0, '', 0, 0, '');

INSERT INTO backup VALUES
  (701, 0, 'Full', 46345.75, 2048, -1), (702, 0, 'Full', 46346.5, 0, 0), (703, 2, 'Data', 46344, 10, -1),
  (704, 1, 'Data', 46346, 20, -1), (705, 2, 'Data', 46346.5, 0, 1), (706, 2, 'Data', 0, 0, 0);
INSERT INTO backup_file VALUES
  (711, 702, 'zone.db', 'D:\data', 46346.5, 5, -1), (712, 702, 'Alpha.db', 'D:\data', 46346.5, 0, 0),
  (713, 702, 'a%b.txt', '', 0, 0, 1), (714, 701, 'zone.db', 'D:\data', 46345.75, 5, -1);

INSERT INTO user_import VALUES (1, 'Staff'), (2, 'Never');
INSERT INTO import_run VALUES
  (801, 1, 'Staff', 0, 3, 46344), (802, 1, 'Staff', 11, 100, 46345.25), (803, 1, 'Staff', 11, 101, 46346.25),
  (804, 1, 'Crew', 11, 103, 46344), (805, 1, 'Staff', 10, 106, 46343);
INSERT INTO imported_user VALUES
  (901, 802, 'Zoe', -1, ''), (902, 801, 'Cyd', -1, ''), (903, 802, 'Bob', 0, 'no such group');

INSERT INTO scheduler_log VALUES
  (1001, 46346, 1, 'SRV', 'started', 0, '', '', ''),
  (1002, 46346.96188657407, 2, 'SRV', 'failed', 1, 'Acme', 'eve', '/no/such/file.txt'),
  (1003, 46346.5, 3, 'SRV', 'skipped', 2, 'Bolt', '', ''),
  (1004, 46347, 7, 'SRV2', 'other', 1, 'Acme', '', '');
)sql";

}  // namespace

SmallHistory::SmallHistory() : file_(folder_.path() / "small.db") {
  hub::CreateHistory(file_);
  Sql(kRows);
}

void SmallHistory::Sql(std::string_view script) const {
  const hub::Database database(file_, hub::Access::kReadWrite);
  database.Execute("PRAGMA synchronous = OFF; BEGIN");
  database.Execute(script);
  database.Execute("COMMIT");
}

}  // namespace quorvel::test
