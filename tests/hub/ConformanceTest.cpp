// Every implementation of the record-source contract answers every query of it.
#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "datasource/Contract.h"
#include "hub/QueryCases.h"
#include "hub/SqliteInstallation.h"

namespace quorvel::test {
namespace {

// What tells one implementation from another.
struct Implementation {
  const char* name;
  std::unique_ptr<Installation> (*install)();
};

constexpr Implementation kImplementations[] = {
    {"Sqlite", [] { return std::unique_ptr<Installation>(std::make_unique<SqliteInstallation>()); }},
};

class ConformanceTest : public testing::TestWithParam<std::tuple<Implementation, datasource::QueryContract>> {};

TEST_P(ConformanceTest, AnswersAsTheContractSays) {
  const auto& [implementation, contract] = GetParam();
  const QueryCase* const queryCase = CaseOf(contract.query);
  ASSERT_NE(queryCase, nullptr) << contract.query << " has no case";
  const std::unique_ptr<Installation> at = implementation.install();
  queryCase->check(*at);
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
