// Connections that end, histories that break while they are read, and writers that meet.
#include <gmock/gmock.h>

#include <bit>
#include <fstream>
#include <string>

#include "datasource/Current.h"
#include "datasource/Labels.h"
#include "datasource/ProcessLog.h"
#include "hub/RecordHub.h"
#include "hub/sqlite/Database.h"
#include "support/SmallHistory.h"

namespace quorvel::test {
namespace {

using datasource::CreateRecordSource;
using datasource::Current;
using datasource::Labels;
using datasource::ProcessLog;

constexpr std::int32_t kNotOpen = static_cast<std::int32_t>(SystemError::kInvalidCall);

class ConnectionTest : public testing::Test {
 protected:
  // The error number of the tree's query, 0 when it answers.
  std::int32_t Ask() {
    try {
      std::int32_t status = 0;
      log_->GetProcessLogs(connection_, kEarly, kLate, 0, -1, -1, -1, 0, 0, status);
      return 0;
    } catch (const Error& error) {
      description_ = error.description();
      return error.number();
    }
  }

  // The same of a stop request for the running run.
  std::int32_t Stop() {
    try {
      std::int32_t result = -1;
      CreateRecordSource<Current>(*hub_, "")->StopExecution(connection_, false, kDeployRunning, "", result);
      EXPECT_EQ(result, 0);
      return 0;
    } catch (const Error& error) {
      description_ = error.description();
      return error.number();
    }
  }

  SmallHistory history_;
  std::unique_ptr<hub::RecordHub> hub_ = std::make_unique<hub::RecordHub>();
  std::int32_t connection_ = hub_->OpenConnection(history_.url());
  std::unique_ptr<ProcessLog> log_ = CreateRecordSource<ProcessLog>(*hub_, "");
  std::string description_;
};

TEST_F(ConnectionTest, SourcesOutliveTheirConnectionAndTheHub) {
  ASSERT_EQ(Ask(), 0);
  const datasource::TextColumn names = log_->Records().strProcessName;
  hub_->CloseConnection(connection_);
  EXPECT_EQ(Ask(), kNotOpen);
  EXPECT_EQ(log_->lngCount(), 0);
  EXPECT_THROW(log_->CloseProcessLogs(connection_), Error);
  EXPECT_THROW(hub_->CloseConnection(connection_), Error);

  const std::int32_t closed = connection_;
  connection_ = hub_->OpenConnection(history_.url() + "?mode=ro");
  EXPECT_NE(connection_, closed);
  EXPECT_EQ(Ask(), 0);
  hub_.reset();
  EXPECT_EQ(Ask(), kNotOpen);
  EXPECT_EQ(names[0], "Archive|x");
}

TEST_F(ConnectionTest, UnknownClassNamesClassAndServer) {
  try {
    hub_->Create("clRecordHub.Other", "SRV7");
    FAIL();
  } catch (const Error& error) {
    EXPECT_EQ(error.number(), static_cast<std::int32_t>(SystemError::kCannotCreateComponent));
    EXPECT_THAT(error.description(),
                testing::AllOf(testing::HasSubstr("clRecordHub.Other"), testing::HasSubstr("SRV7")));
  }
}

TEST_F(ConnectionTest, StopRequestIsWritten) {
  ASSERT_EQ(Stop(), 0);
  std::int32_t result = -1;
  CreateRecordSource<Labels>(*hub_, "")->NotifyStopRequest(connection_, "SRV", kDeployRunning, result);
  const hub::Database database(history_.file(), hub::Access::kReadOnly);
  hub::Statement row = database.Prepare(
      "SELECT on_station, server_name, notified_date BETWEEN requested_date AND requested_date + 1 FROM stop_request");
  ASSERT_TRUE(row.Step());
  EXPECT_EQ(row.Get<std::int32_t>(0), 0);
  EXPECT_EQ(row.Text(1), "SRV");
  EXPECT_EQ(row.Get<std::int32_t>(2), 1);
}

TEST_F(ConnectionTest, WritersThatMeetAreToldToTryLater) {
  const hub::Database other(history_.file(), hub::Access::kReadWrite);
  other.Execute("BEGIN IMMEDIATE");
  EXPECT_EQ(Stop(), kConcurrentUpdate);
  EXPECT_EQ(Ask(), 0) << "reading goes on";
  other.Rollback();
  other.Execute("BEGIN; SELECT count(*) FROM label");
  EXPECT_EQ(Stop(), kConcurrentUpdate) << "a reader holds the commit back";
  other.Rollback();
  EXPECT_EQ(Stop(), 0) << "the failed write left no transaction open";

  connection_ = hub_->OpenConnection(history_.url() + "?mode=ro");
  EXPECT_EQ(Stop(), static_cast<std::int32_t>(SystemError::kPermissionDenied));
  EXPECT_THAT(description_, testing::HasSubstr("can only be read"));
}

TEST_F(ConnectionTest, PartsFollowTheRunThatTheyBelongTo) {
  history_.Sql(
      "UPDATE process_run SET process_id = 12, start_date = 46350, on_station = -1 WHERE process_run_id = 106");
  std::int32_t status = -1;
  log_->GetProcessLogByUser(connection_, kEarly, kLate, 46350, kLate, 0, kEmpty, kAlpha, -1, 1, status);
  ASSERT_EQ(log_->lngCount(), 1);
  EXPECT_EQ(log_->Records().dtStartDate[0], 46350);
  EXPECT_THROW(history_.Sql("INSERT INTO station_run (process_run_id, station_id) VALUES (999, 1)"), Error);
}

TEST_F(ConnectionTest, NumbersThatDoNotFitAreAnError) {
  history_.Sql("UPDATE station_run SET ok = 32768 WHERE process_run_id = 100");
  EXPECT_EQ(Ask(), static_cast<std::int32_t>(SystemError::kOverflow));
  history_.Sql("UPDATE station_run SET ok = 32767 WHERE process_run_id = 100");
  EXPECT_EQ(Ask(), 0);
}

// The page of the index's last leaf: the right-most child that its root page names.
std::uint32_t LastLeaf(std::fstream& file, std::int32_t root) {
  constexpr std::int32_t kPageSize = 4096, kRightMostAt = 8;
  unsigned char bytes[4];
  file.seekg(static_cast<std::streamoff>(root - 1) * kPageSize + kRightMostAt);
  file.read(reinterpret_cast<char*>(bytes), sizeof bytes);
  return (std::uint32_t{bytes[0]} << 24U) | (std::uint32_t{bytes[1]} << 16U) | (std::uint32_t{bytes[2]} << 8U) |
         bytes[3];
}

TEST_F(ConnectionTest, DamageInTheMiddleOfAQueryLeavesTheSourceUsable) {
  history_.Sql(R"sql(WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 3000)
                     INSERT INTO station_run (process_run_id, station_id) SELECT 106, i FROM n)sql");
  ASSERT_EQ(Ask(), 0);
  std::int32_t root = 0;
  {
    const hub::Database database(history_.file(), hub::Access::kReadOnly);
    hub::Statement row = database.Prepare("SELECT rootpage FROM sqlite_schema WHERE name = 'station_run_by_run'");
    ASSERT_TRUE(row.Step());
    root = row.Get<std::int32_t>(0);
  }
  {
    std::fstream file(history_.file(), std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(static_cast<std::streamoff>(LastLeaf(file, root) - 1) * 4096);
    file << std::string(4096, '\xFF');
  }
  connection_ = hub_->OpenConnection(history_.url());
  EXPECT_EQ(Ask(), hub::kHistoryDamaged);
  EXPECT_THAT(description_, testing::HasSubstr("malformed"));
  EXPECT_EQ(log_->lngCount(), 0);
  std::int32_t status = -1;
  log_->GetProcessLogDetail(connection_, kDeployRunning, 0, 0, status);
  EXPECT_EQ(status, 0);
}

}  // namespace
}  // namespace quorvel::test
