// Quorvel.dll beside the test program, as its clients see it.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "Quorvel.h"
#include "platform/windows/ComPtr.h"
#include "platform/windows/ComValues.h"

namespace quorvel::test {

using windows::Bstr;
using windows::ComPtr;
using windows::Variant;

// The result of an error that hosts know by this number.
constexpr HRESULT ErrorOf(int number) {
  return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
}

// The library, loaded once. std::runtime_error when that fails.
HMODULE Library();

// What an exported function without arguments answers.
HRESULT AskLibrary(const char* function);

// A new control, made by the library's class factory: nothing is registered.
ComPtr<_ucProcessLog> NewControl();

// The manifest beside the library holds, as long as this lives: the class is found without registration.
class ManifestHolds {
 public:
  ManifestHolds();
  ~ManifestHolds();
  ManifestHolds(const ManifestHolds&) = delete;
  ManifestHolds& operator=(const ManifestHolds&) = delete;

 private:
  HANDLE context_;
  ULONG_PTR cookie_ = 0;
};

// What the last failed call left with the thread; "" when it left nothing.
struct LeftError {
  std::string source;
  std::string description;
};
LeftError TakeLeftError();

// A history opened and set, ready for the m_GetLog methods.
LONG Open(_ucProcessLog& control, const std::string& url);

// The member of that name, by name as scripts call it. What it answers, and its result.
struct Called {
  HRESULT result = E_FAIL;
  Variant value;
  std::string description;  // of the error
};
Called CallByName(IDispatch& object, const wchar_t* name, std::vector<Variant> arguments = {},
                  WORD how = DISPATCH_METHOD | DISPATCH_PROPERTYGET);

// The keys of the first nodes.
std::vector<std::string> RootKeys(_ucProcessLog& control);

// Handles what waits in the message queue until `done`, or until seconds have passed; tells whether it was done.
template <class Done>
bool PumpUntil(Done done) {
  const ULONGLONG end = GetTickCount64() + 10000;
  while (!done()) {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
    if (GetTickCount64() > end) return false;
    MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
  }
  return true;
}

}  // namespace quorvel::test
