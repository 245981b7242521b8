// No statement of the hub scans or sorts a table that grows with the history.
#include <gmock/gmock.h>

#include <string>
#include <vector>

#include "hub/sqlite/Database.h"
#include "hub/sqlite/Queries.h"
#include "support/SmallHistory.h"

namespace quorvel::test {
namespace {

std::vector<std::string> PlanOf(const hub::Database& database, std::string_view sql) {
  constexpr int kDetail = 3;
  hub::Statement plan = database.Prepare("EXPLAIN QUERY PLAN " + std::string(sql));
  std::vector<std::string> steps;
  while (plan.Step()) steps.push_back(plan.Text(kDetail));
  return steps;
}

// Scanned are processes and stations alone, which are few whatever the history holds; nothing is sorted.
bool IsCheap(const std::string& step) {
  if (step.find("TEMP B-TREE") != std::string::npos) return false;
  if (step.find("AUTOMATIC") != std::string::npos) return false;
  if (!step.starts_with("SCAN")) return true;
  return step.starts_with("SCAN p USING") || step.starts_with("SCAN t USING");
}

TEST(QueryPlanTest, EveryStatementGoesByIndex) {
  const SmallHistory history;
  const hub::Database database(history.file(), hub::Access::kReadOnly);
  for (const std::string_view sql : hub::kAllStatements) {
    for (const std::string& step : PlanOf(database, sql)) EXPECT_TRUE(IsCheap(step)) << step << "\n" << sql;
  }
  // The check itself finds what it looks for.
  const auto plan = PlanOf(database, "SELECT report FROM station_run ORDER BY report");
  EXPECT_THAT(plan, testing::ElementsAre("SCAN station_run", "USE TEMP B-TREE FOR ORDER BY"));
  for (const std::string& step : plan) EXPECT_FALSE(IsCheap(step));
}

}  // namespace
}  // namespace quorvel::test
