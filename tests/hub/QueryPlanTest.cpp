// No statement that the hub sends scans or sorts a table that grows with the history.
#include <gmock/gmock.h>
#include <sqlite3.h>

#include <algorithm>
#include <set>
#include <string>
#include <vector>

#include "datasource/Contract.h"
#include "hub/SqliteInstallation.h"
#include "hub/sqlite/ConnectionQueries.h"
#include "hub/sqlite/Database.h"
#include "hub/sqlite/LogQueries.h"
#include "hub/sqlite/Queries.h"

namespace quorvel::test {
namespace {

using testing::IsEmpty;
using testing::Not;

// Listens to all connections that are opened while it lives.
class SentStatements {
 public:
  SentStatements() { sqlite3_auto_extension(reinterpret_cast<void (*)()>(Listen)); }
  ~SentStatements() { sqlite3_cancel_auto_extension(reinterpret_cast<void (*)()>(Listen)); }
  SentStatements(const SentStatements&) = delete;
  SentStatements& operator=(const SentStatements&) = delete;

  static std::set<std::string>& All() {
    static std::set<std::string> statements;
    return statements;
  }

 private:
  static int Listen(sqlite3* database, char** /*error*/, const void* /*api*/) {
    return sqlite3_trace_v2(database, SQLITE_TRACE_STMT, Note, nullptr);
  }
  static int Note(unsigned /*type*/, void* /*context*/, void* statement, void* /*text*/) {
    All().insert(sqlite3_sql(static_cast<sqlite3_stmt*>(statement)));
    return 0;
  }
};

// What the record sources send for all queries of the contract, with and without each filter.
std::set<std::string> StatementsOfAllQueries() {
  const SentStatements listening;
  std::set<std::string> sent;
  for (const datasource::QueryContract& contract : datasource::Queries()) {
    SqliteInstallation at;
    SentStatements::All().clear();  // of the fixture, and of opening
    CaseOf(contract.query)->check(at);
    sent.merge(SentStatements::All());
  }
  return sent;
}

std::vector<std::string> PlanOf(const hub::Database& database, const std::string& sql) {
  constexpr int kDetail = 3;
  hub::Statement plan = database.Prepare("EXPLAIN QUERY PLAN " + sql);
  std::vector<std::string> steps;
  while (plan.Step()) steps.push_back(plan.Text(kDetail));
  return steps;
}

// "(day>? AND day<?)".
bool IsPeriod(const std::string& bounds) {
  const std::string column = bounds.substr(1, bounds.find('>') - 1);
  return bounds.starts_with("(" + column + ">? AND " + column + "<?");
}

// A step of a plan that does not grow with the history: it finds rows by the first column of an index or by the key,
// cuts a period out of an index, whose rows are what was asked for, or goes through the processes or stations by name,
// which are few whatever the history holds. Everything that is not known to be so counts as dear: scans, sorts, tables
// and indexes made for the moment.
bool IsCheap(const std::string& step) {
  constexpr const char* kWithoutRows[] = {
      "CORRELATED SCALAR SUBQUERY", "SCALAR SUBQUERY", "LIST SUBQUERY", "MERGE (UNION ALL)", "LEFT", "RIGHT"};
  constexpr const char* kFew[] = {" INDEX process_by_name", " INDEX station_by_name"};
  const auto isIn = [&](const char* text) { return step.find(text) != std::string::npos; };
  const auto begins = [&](const char* text) { return step.starts_with(text); };
  if (isIn("TEMP B-TREE") || isIn("AUTOMATIC")) return false;
  if (begins("SCAN ")) return std::ranges::any_of(kFew, isIn);
  if (!begins("SEARCH ")) return std::ranges::any_of(kWithoutRows, begins);
  const std::string bounds = step.substr(std::min(step.find('('), step.size()));
  const std::size_t first = bounds.find('?');
  return bounds.substr(0, first).ends_with('=') || (first != std::string::npos && IsPeriod(bounds));
}

// These sort what stays few: one row for each station, or for each name and process of one import.
bool SortsFew(const std::string& sql) {
  constexpr std::string_view kStatements[] = {hub::kLastCommunications, hub::kDaysOfLastCommunications,
                                              hub::kNamesOfImport};
  return std::ranges::find(kStatements, sql) != std::end(kStatements);
}

std::vector<std::string> DearSteps(const hub::Database& database, const std::string& sql) {
  std::vector<std::string> steps = PlanOf(database, sql);
  std::erase_if(steps, IsCheap);
  if (SortsFew(sql)) {
    std::erase_if(steps, [](const std::string& step) { return step.starts_with("USE TEMP B-TREE FOR "); });
  }
  return steps;
}

TEST(QueryPlanTest, EveryStatementGoesByIndex) {
  const std::set<std::string> statements = StatementsOfAllQueries();
  EXPECT_GT(statements.size(), 50U);
  const SmallHistory history;
  const hub::Database database(history.file(), hub::Access::kReadOnly);
  for (const std::string& sql : statements) EXPECT_THAT(DearSteps(database, sql), IsEmpty()) << sql;
}

// The check finds what it is there for.
TEST(QueryPlanTest, WhatGrowsWithTheHistoryIsFound) {
  const SmallHistory history;
  const hub::Database database(history.file(), hub::Access::kReadOnly);
  const auto changed = [](std::string_view sql, std::string_view part, std::string_view other) {
    std::string text(sql);
    return text.replace(text.find(part), part.size(), other);
  };
  const std::string dear[] = {
      "SELECT report FROM station_run",
      "SELECT count(*) FROM process_run",
      "SELECT 1 FROM station_run WHERE process_run_id > 5",
      "SELECT 1 FROM station_run p JOIN process_run t ON t.process_run_id = p.process_run_id",
      "SELECT DISTINCT report FROM station_run WHERE process_run_id = 5",
      "SELECT 1 FROM task_run a JOIN task_run b ON a.report = b.report WHERE a.process_run_id = 5",
      changed(hub::kStationsOfState, "ORDER BY station_name", "ORDER BY identifier"),
      changed(hub::kStationsOfState, "process_run_id = :run AND ", ""),
      changed(hub::kStationsOfRuns, "r.start_date DESC", "r.start_date"),
      changed(hub::kStationsOfRuns, "r.process_id = p.process_id", "r.process_id + 0 = p.process_id"),
      changed(hub::kRunsOfStations, "s.run_start_date DESC", "s.end_date DESC"),
      changed(hub::kRunsOfStations, "s.station_id = t.station_id AND", ""),
      changed(hub::kCommunications, "day <= CAST(:to AS INTEGER)", "day <> 0"),
      changed(hub::kCommunications, "communication_id DESC", "end_date"),
      changed(hub::kDaysOfCommunications, "GROUP BY day", "GROUP BY start_date"),
      changed(hub::kAlarms, "a.raised_date DESC", "a.raised_date"),
      changed(hub::kAlarmsOfDay, "a.raised_date < :to", "a.raised_date <> :to"),
      changed(hub::kRunsOfImport, "r.user_import_id = :import AND", ""),
      changed(hub::kSchedulerLogs, "logged_date DESC", "level"),
      changed(hub::kCommandsOfCommunication, "AND communication_id <> 0", ""),
      changed(hub::kCommandsOfStep, "step_log_id = :step", "step_log_id + 0 = :step"),
  };
  for (const std::string& sql : dear) EXPECT_THAT(DearSteps(database, sql), Not(IsEmpty())) << sql;
}

}  // namespace
}  // namespace quorvel::test
