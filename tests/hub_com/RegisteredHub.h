// clRecordHub.dll beside the test program, registered as long as this lives.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>

#include <stdexcept>

namespace quorvel::test {

// Where a second process of a test puts what the first one looks for. It uses the registration of the first.
inline constexpr const wchar_t* kReferenceVariable = L"QUORVEL_TEST_REFERENCE";

class RegisteredHub {
 public:
  RegisteredHub() : library_(LoadLibraryW(L"clRecordHub.dll")) {
    if (library_ == nullptr || FAILED(Ask("DllRegisterServer"))) {
      throw std::runtime_error("clRecordHub.dll cannot be registered");
    }
  }
  ~RegisteredHub() {
    EXPECT_EQ(Ask("DllCanUnloadNow"), S_OK) << "an object was never released";
    EXPECT_EQ(Ask("DllUnregisterServer"), S_OK);
    FreeLibrary(library_);
  }
  RegisteredHub(const RegisteredHub&) = delete;
  RegisteredHub& operator=(const RegisteredHub&) = delete;

 private:
  HRESULT Ask(const char* function) const {
    const auto found = reinterpret_cast<void*>(GetProcAddress(library_, function));
    const auto call = reinterpret_cast<HRESULT(STDAPICALLTYPE*)()>(found);
    return call == nullptr ? E_FAIL : call();
  }

  HMODULE library_;
};

}  // namespace quorvel::test
