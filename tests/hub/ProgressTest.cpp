// What the host hears of the queries that it waits for.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <stdexcept>
#include <string>
#include <vector>

#include "datasource/Contract.h"
#include "datasource/TaskSchedulerLog.h"
#include "hub/QueryCases.h"
#include "hub/SqliteInstallation.h"

namespace quorvel::test {
namespace {

using datasource::TaskSchedulerLog;
using hub::QueryProgress;
using std::chrono::milliseconds;

TEST(Progress, EveryQueryThatReadsRowsSaysItsName) {
  for (const datasource::QueryContract& contract : datasource::Queries()) {
    if (contract.columns.empty()) continue;
    SqliteInstallation at;
    std::vector<std::string> told;
    at.hub().SetProgress([&](const QueryProgress& progress) { told.emplace_back(progress.query); }, milliseconds(0));
    CaseOf(contract.query)->check(at);
    EXPECT_THAT(told, testing::Contains(contract.query));
  }
}

class LongLogTest : public testing::Test {
 protected:
  static constexpr int kRows = 50'000;

  LongLogTest() {
    history_.Sql("WITH RECURSIVE n(i) AS (VALUES (1) UNION ALL SELECT i + 1 FROM n WHERE i < " + std::to_string(kRows) +
                 ") INSERT INTO scheduler_log (scheduler_log_id, logged_date) SELECT 1000000 + i, 40000 FROM n");
  }

  // Reads all rows; gives what was told meanwhile.
  std::vector<QueryProgress> Read() {
    told_.clear();
    std::int32_t status = 0;
    log_->GetTaskSchedulerLogs(connection_, 39'999, 40'001, 3, 0, -1, status);
    EXPECT_EQ(log_->lngCount(), kRows);
    return told_;
  }
  void Listen(milliseconds interval) {
    hub_.SetProgress([this](const QueryProgress& progress) { told_.push_back(progress); }, interval);
  }

  SmallHistory history_;
  hub::RecordHub hub_;
  std::int32_t connection_ = hub_.OpenConnection(history_.url());
  std::unique_ptr<TaskSchedulerLog> log_ = datasource::CreateRecordSource<TaskSchedulerLog>(hub_, "");
  std::vector<QueryProgress> told_;
};

TEST_F(LongLogTest, IsToldOfAgainAndAgainButNotTooOften) {
  EXPECT_TRUE(Read().empty());
  Listen(milliseconds(0));
  const std::vector<QueryProgress> often = Read();
  ASSERT_GT(often.size(), 10U);
  EXPECT_EQ(often.front().elapsed, milliseconds(0)) << "as it begins";
  EXPECT_TRUE(std::ranges::is_sorted(often, {}, &QueryProgress::elapsed));
  EXPECT_EQ(often.back().query, "GetTaskSchedulerLogs");
  Listen(std::chrono::hours(1));
  EXPECT_EQ(Read().size(), 1U);
  EXPECT_EQ(Read().size(), 0U) << "the hour is not over with another query";
  hub_.SetProgress({});
  EXPECT_TRUE(Read().empty());
}

TEST_F(LongLogTest, HoldsForConnectionsToComeAndLosesNoAnswer) {
  Listen(milliseconds(0));
  connection_ = hub_.OpenConnection(history_.url());
  EXPECT_GT(Read().size(), 10U);
  hub_.SetProgress([](const QueryProgress&) { throw std::runtime_error("Nobody hears"); }, milliseconds(0));
  Read();
}

}  // namespace
}  // namespace quorvel::test
