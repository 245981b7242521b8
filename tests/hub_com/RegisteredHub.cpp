// clRecordHub.dll beside the test program, registered as long as the tests run.
#include <gtest/gtest.h>
#include <objbase.h>

#include <memory>
#include <stdexcept>

namespace quorvel::test {
namespace {

HRESULT Ask(HMODULE library, const char* function) {
  const auto found = reinterpret_cast<void*>(GetProcAddress(library, function));
  const auto call = reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(found);
  return call == nullptr ? E_FAIL : call();
}

class RegisteredHub {
 public:
  RegisteredHub() : library_(LoadLibraryW(L"clRecordHub.dll")) {
    if (library_ == nullptr || FAILED(Ask(library_, "DllRegisterServer"))) {
      throw std::runtime_error("clRecordHub.dll cannot be registered");
    }
  }
  ~RegisteredHub() {
    EXPECT_EQ(Ask(library_, "DllCanUnloadNow"), S_OK) << "an object was never released";
    EXPECT_EQ(Ask(library_, "DllUnregisterServer"), S_OK);
    FreeLibrary(library_);
  }
  RegisteredHub(const RegisteredHub&) = delete;
  RegisteredHub& operator=(const RegisteredHub&) = delete;

 private:
  HMODULE library_;
};

// COM and the library, from before the first test to after the last one.
class HubEnvironment : public testing::Environment {
 public:
  void SetUp() override {
    ASSERT_HRESULT_SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED));
    hub_ = std::make_unique<RegisteredHub>();
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
