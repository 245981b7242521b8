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
  (402, 301, 0, 0, 88, 91, 'put b.zip', 'lost', 46345.265625, 46345.28125, 0, 0, -1);
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
