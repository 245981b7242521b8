// Record sources over COM answer every query as those that they stand for: in process, out of process, and of a
// component that gives its texts as they are alone.
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <tuple>

#include "datasource/Contract.h"
#include "hub_com/ComInstallation.h"
#include "hub_com/FaultyComponent.h"

namespace quorvel::test {
namespace {

std::shared_ptr<hub_com::ComActivator> InProcess() {
  return hub_com::MakeSystemActivator(CLSCTX_INPROC_SERVER);
}

std::shared_ptr<hub_com::ComActivator> OutOfProcess() {
  return hub_com::MakeSystemActivator(CLSCTX_LOCAL_SERVER);
}

std::shared_ptr<hub_com::ComActivator> PlainTexts() {
  static Faults none;
  return MakeFaultyActivator(InProcess(), none);
}

struct Place {
  const char* name;
  std::shared_ptr<hub_com::ComActivator> (*activator)();
};

constexpr Place kPlaces[] = {{"InProcess", InProcess}, {"OutOfProcess", OutOfProcess}, {"PlainTexts", PlainTexts}};

class ComConformanceTest : public testing::TestWithParam<std::tuple<Place, datasource::QueryContract>> {};

TEST_P(ComConformanceTest, AnswersAsTheContractSays) {
  const auto& [place, contract] = GetParam();
  const QueryCase* const queryCase = CaseOf(contract.query);
  ASSERT_NE(queryCase, nullptr) << contract.query << " has no case";
  ComInstallation at(place.activator());
  queryCase->check(at);
}

INSTANTIATE_TEST_SUITE_P(Com, ComConformanceTest,
                         testing::Combine(testing::ValuesIn(kPlaces), testing::ValuesIn(datasource::Queries().begin(),
                                                                                        datasource::Queries().end())),
                         [](const auto& parameter) {
                           return std::string(std::get<0>(parameter.param).name) + "_" +
                                  std::string(std::get<1>(parameter.param).query);
                         });

}  // namespace
}  // namespace quorvel::test
