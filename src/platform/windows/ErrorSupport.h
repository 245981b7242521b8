// Says of an object that its methods leave error information, which callers ask before they look for it.
#pragma once

#include <oaidl.h>
#include <windows.h>

namespace quorvel::windows {

// For a ComObject whose methods of `Interface` do.
template <class Interface>
class ErrorSupport : public ISupportErrorInfo {
 public:
  using Described = ISupportErrorInfo;

  STDMETHODIMP InterfaceSupportsErrorInfo(REFIID asked) noexcept override {
    return IsEqualGUID(asked, __uuidof(Interface)) ? S_OK : S_FALSE;
  }

 protected:
  ~ErrorSupport() = default;
};

}  // namespace quorvel::windows
