// Every implementation of the record-source contract answers every query of it, or says that it does not yet.
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <span>
#include <string>

#include "datasource/Contract.h"
#include "hub/QueryCases.h"
#include "hub/SqliteInstallation.h"

namespace quorvel::test {
namespace {

// A query that an implementation does not answer yet, and the error that it raises instead.
struct Gap {
  std::string_view query;
  SystemError error;
};

// What tells one implementation from another.
struct Implementation {
  const char* name;
  std::unique_ptr<Installation> (*install)();
  std::span<const Gap> gaps;
};

// Their tables come with their views.
constexpr Gap kSqliteGaps[] = {
    {"GetCommunications", SystemError::kActionUnsupported},
    {"GetCommunicationsByMonth", SystemError::kActionUnsupported},
    {"GetCommandLogByCommunication", SystemError::kActionUnsupported},
    {"GetAlarms", SystemError::kCannotCreateComponent},
    {"GetAlarmsByDay", SystemError::kCannotCreateComponent},
    {"GetSaves", SystemError::kCannotCreateComponent},
    {"GetSaveFiles", SystemError::kCannotCreateComponent},
    {"GetUsersImports", SystemError::kCannotCreateComponent},
    {"GetUsersImportByProcess", SystemError::kCannotCreateComponent},
    {"GetTaskSchedulerLogs", SystemError::kCannotCreateComponent},
};

constexpr Implementation kImplementations[] = {
    {"Sqlite", [] { return std::unique_ptr<Installation>(std::make_unique<SqliteInstallation>()); }, kSqliteGaps},
};

class ConformanceTest : public testing::TestWithParam<std::tuple<Implementation, datasource::QueryContract>> {};

void ExpectGap(const Gap& gap, const QueryCase& queryCase, Installation& at) {
  try {
    queryCase.ask(at);
    ADD_FAILURE() << gap.query << " answers now: take its mark away and check it";
  } catch (const Error& error) {
    EXPECT_EQ(error.number(), static_cast<std::int32_t>(gap.error)) << error.description();
    EXPECT_FALSE(error.description().empty());
  }
}

TEST_P(ConformanceTest, AnswersAsTheContractSays) {
  const auto& [implementation, contract] = GetParam();
  const QueryCase* const queryCase = CaseOf(contract.query);
  ASSERT_NE(queryCase, nullptr) << contract.query << " has no case";
  const std::unique_ptr<Installation> at = implementation.install();
  const auto gap = std::ranges::find(implementation.gaps, contract.query, &Gap::query);
  if (gap != implementation.gaps.end()) {
    ExpectGap(*gap, *queryCase, *at);
  } else {
    ASSERT_NE(queryCase->check, nullptr) << contract.query << " has no check";
    queryCase->ask(*at);
    queryCase->check(*at);
  }
}

INSTANTIATE_TEST_SUITE_P(Hub, ConformanceTest,
                         testing::Combine(testing::ValuesIn(kImplementations),
                                          testing::ValuesIn(datasource::Queries().begin(),
                                                            datasource::Queries().end())),
                         [](const auto& parameter) {
                           return std::string(std::get<0>(parameter.param).name) + "_" +
                                  std::string(std::get<1>(parameter.param).query);
                         });

}  // namespace
}  // namespace quorvel::test
