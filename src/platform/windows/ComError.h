// Errors on their way across a COM boundary, both ways: number, source and description stay as they are.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <cstdint>
#include <string_view>
#include <type_traits>
#include <utility>

#include "platform/Error.h"

namespace quorvel::windows {

// An error's number as a result: small numbers stand in the facility of controls, as hosts know them (error 5 is
// 0x800A0005); numbers that are results themselves stay. A number that names no failure is E_FAIL.
HRESULT ResultOf(std::int32_t number);
// The way back; results of the system that mean one of this library's numbers become it (E_OUTOFMEMORY is 7,
// DISP_E_TYPEMISMATCH 13, REGDB_E_CLASSNOTREG 429, ...), all others stay.
std::int32_t NumberOf(HRESULT result);

// The system's text of a result with its hexadecimal number.
std::string DescriptionOf(HRESULT result);

// Leaves the error with the thread, for a caller who asks for it, and gives its result. `identity`: the interface whose
// method failed.
HRESULT TellError(const Error& error, const IID& identity) noexcept;

// The body of a COM method: nothing thrown leaves it. `body` gives a result, or nothing for S_OK.
template <class Body>
HRESULT Answering(const IID& identity, Body&& body) noexcept {
  try {
    if constexpr (std::is_void_v<std::invoke_result_t<Body>>) {
      std::forward<Body>(body)();
      return S_OK;
    } else {
      return std::forward<Body>(body)();
    }
  } catch (...) {
    return TellError(CurrentError(), identity);
  }
}

// Raises what a failed call left with the thread, or what its result means; `what` says what was tried.
[[noreturn]] void RaiseResult(HRESULT result, std::string_view what);
// The same for a failed IDispatch::Invoke, whose texts are freed.
[[noreturn]] void RaiseInvokeResult(HRESULT result, EXCEPINFO& exception, std::string_view what);

inline void Check(HRESULT result, std::string_view what) {
  if (FAILED(result)) RaiseResult(result, what);
}

}  // namespace quorvel::windows
