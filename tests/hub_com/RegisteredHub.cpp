// COM and the component, from before the first test to after the last one.
#include "hub_com/RegisteredHub.h"

#include <gtest/gtest.h>
#include <objbase.h>

#include <cstdlib>
#include <memory>

namespace quorvel::test {
namespace {

class HubEnvironment : public testing::Environment {
 public:
  void SetUp() override {
    ASSERT_HRESULT_SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
    if (_wgetenv(kReferenceVariable) == nullptr) hub_ = std::make_unique<RegisteredHub>();
  }
  void TearDown() override {
    hub_.reset();
    CoUninitialize();
  }

 private:
  std::unique_ptr<RegisteredHub> hub_;
};

[[maybe_unused]] const auto* const kEnvironment = testing::AddGlobalTestEnvironment(new HubEnvironment);

}  // namespace

}  // namespace quorvel::test
