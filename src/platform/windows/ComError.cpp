#include "platform/windows/ComError.h"

#include <array>
#include <cstdio>
#include <iterator>
#include <string>

#include "platform/windows/ComPtr.h"
#include "platform/windows/ComValues.h"
#include "platform/windows/WideText.h"

namespace quorvel::windows {
namespace {

struct Meaning {
  HRESULT result;
  SystemError number;
};

constexpr Meaning kMeanings[] = {
    {E_OUTOFMEMORY, SystemError::kOutOfMemory},
    {E_INVALIDARG, SystemError::kInvalidCall},
    {DISP_E_OVERFLOW, SystemError::kOverflow},
    {DISP_E_BADINDEX, SystemError::kIndexOutOfRange},
    {DISP_E_DIVBYZERO, SystemError::kDivisionByZero},
    {DISP_E_TYPEMISMATCH, SystemError::kTypeMismatch},
    {DISP_E_BADVARTYPE, SystemError::kTypeMismatch},
    {DISP_E_MEMBERNOTFOUND, SystemError::kUnsupportedMember},
    {DISP_E_UNKNOWNNAME, SystemError::kUnsupportedMember},
    {REGDB_E_CLASSNOTREG, SystemError::kCannotCreateComponent},
    {CO_E_CLASSSTRING, SystemError::kCannotCreateComponent},
};

bool IsOfControls(HRESULT result) {
  return FAILED(result) && HRESULT_FACILITY(result) == FACILITY_CONTROL;
}

// What a method left with the thread, taken from it.
struct LeftError {
  std::string source;
  std::string description;
  std::string helpFile;
  DWORD helpContext = 0;
};

LeftError TakeLeftError() {
  ComPtr<IErrorInfo> info;
  if (GetErrorInfo(0, info.Put()) != S_OK || !info) return {};
  Bstr source;
  Bstr description;
  Bstr helpFile;
  LeftError left;
  info->GetSource(source.Put());
  info->GetDescription(description.Put());
  info->GetHelpFile(helpFile.Put());
  info->GetHelpContext(&left.helpContext);
  left.source = source.Text();
  left.description = description.Text();
  left.helpFile = helpFile.Text();
  return left;
}

[[noreturn]] void Raise(HRESULT result, LeftError left, std::string_view what) {
  if (left.description.empty()) left.description = std::string(what) + ": " + DescriptionOf(result);
  if (left.source.empty()) left.source = "Quorvel";
  throw Error(NumberOf(result), std::move(left.source), std::move(left.description), std::move(left.helpFile),
              static_cast<std::int32_t>(left.helpContext));
}

}  // namespace

HRESULT ResultOf(std::int32_t number) {
  if (number < 0) return number;
  if (number == 0 || number > 0xFFFF) return E_FAIL;
  return MAKE_HRESULT(SEVERITY_ERROR, FACILITY_CONTROL, number);
}

std::int32_t NumberOf(HRESULT result) {
  if (IsOfControls(result)) return HRESULT_CODE(result);
  for (const Meaning& meaning : kMeanings) {
    if (meaning.result == result) return static_cast<std::int32_t>(meaning.number);
  }
  return result;
}

std::string DescriptionOf(HRESULT result) {
  std::array<wchar_t, 512> text{};
  constexpr DWORD kHow = FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS | FORMAT_MESSAGE_MAX_WIDTH_MASK;
  const DWORD length = FormatMessageW(kHow, nullptr, static_cast<DWORD>(result), 0, text.data(),
                                      static_cast<DWORD>(text.size()), nullptr);
  std::string description = FromWide({text.data(), length});
  while (!description.empty() && description.back() == ' ') description.pop_back();
  std::array<char, 16> number{};
  std::snprintf(number.data(), number.size(), "0x%08lX", static_cast<unsigned long>(result));
  return description.empty() ? std::string("Error ") + number.data() : description + " (" + number.data() + ")";
}

HRESULT TellError(const Error& error, const IID& identity) noexcept {
  const HRESULT result = ResultOf(error.number());
  try {
    ComPtr<ICreateErrorInfo> made;
    if (FAILED(CreateErrorInfo(made.Put()))) return result;
    made->SetGUID(identity);
    made->SetSource(Bstr(error.source()).get());
    made->SetDescription(Bstr(error.description()).get());
    if (!error.helpFile().empty()) made->SetHelpFile(Bstr(error.helpFile()).get());
    made->SetHelpContext(static_cast<DWORD>(error.helpContext()));
    if (const auto info = made.As<IErrorInfo>()) SetErrorInfo(0, info.get());
  } catch (...) {
    // Without memory for the texts the result alone says what happened.
  }
  return result;
}

void RaiseResult(HRESULT result, std::string_view what) {
  Raise(result, TakeLeftError(), what);
}

void RaiseInvokeResult(HRESULT result, EXCEPINFO& exception, std::string_view what) {
  if (result != DISP_E_EXCEPTION) RaiseResult(result, what);
  if (exception.pfnDeferredFillIn != nullptr) exception.pfnDeferredFillIn(&exception);
  LeftError left;
  Bstr source;
  Bstr description;
  Bstr helpFile;
  *source.Put() = exception.bstrSource;
  *description.Put() = exception.bstrDescription;
  *helpFile.Put() = exception.bstrHelpFile;
  left = {source.Text(), description.Text(), helpFile.Text(), exception.dwHelpContext};
  const HRESULT own = exception.scode != 0 ? exception.scode : ResultOf(exception.wCode);
  Raise(own, std::move(left), what);
}

}  // namespace quorvel::windows
