// A recorded source does what the source behind it does, and every query and release is in the journal.
#include <gmock/gmock.h>

#include "datasource/Contract.h"
#include "hub/QueryCases.h"
#include "hub/RecordHub.h"
#include "scenario/RecordingSources.h"
#include "support/SmallHistory.h"

namespace quorvel::scenario {
namespace {

using testing::Contains;
using testing::StartsWith;

class RecordedInstallation final : public test::Installation {
 public:
  datasource::RecordSourceFactory& Factory() override { return factory_; }
  std::int32_t Connection() const override { return connection_; }
  CallRecorder& calls() { return calls_; }

 private:
  test::SmallHistory history_;
  hub::RecordHub hub_;
  std::int32_t connection_ = hub_.OpenConnection(history_.url());
  Faults faults_;
  CallRecorder calls_{faults_};
  RecordingFactory factory_{hub_, calls_};
};

class RecordingTest : public testing::TestWithParam<datasource::QueryContract> {};

// The checks are those that every implementation of the contract passes.
TEST_P(RecordingTest, PassesOnAndNotes) {
  const datasource::QueryContract& contract = GetParam();
  RecordedInstallation at;
  test::CaseOf(contract.query)->check(at);
  const std::vector<std::string> calls = at.calls().Take();
  EXPECT_THAT(calls, Contains(StartsWith(std::string(contract.query) + "(1")));
  EXPECT_THAT(calls, Contains("destroy " + std::string(contract.classIdentifier)));
  if (!contract.release.empty()) {
    EXPECT_THAT(calls, Contains(std::string(contract.release) + "(1)"));
  }
}

INSTANTIATE_TEST_SUITE_P(Queries, RecordingTest,
                         testing::ValuesIn(datasource::Queries().begin(), datasource::Queries().end()),
                         [](const auto& query) { return std::string(query.param.query); });

}  // namespace
}  // namespace quorvel::scenario
