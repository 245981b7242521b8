#include "console_windows/NamedMembers.h"

#include <algorithm>
#include <span>
#include <utility>

#include "platform/windows/ComError.h"
#include "windows/Guard.h"

namespace quorvel::console {
namespace {

using windows::Variant;

// The first argument that is written is the last one of a call.
std::int32_t IndexIn(const DISPPARAMS& arguments) {
  if (arguments.cArgs == 0) return 0;
  Variant first;
  windows::Check(VariantCopyInd(first.Put(), &arguments.rgvarg[arguments.cArgs - 1]), "The index of an item");
  return first.ToInt32();
}

HRESULT PutIn(const NamedMembers::Member& member, const DISPPARAMS& arguments) {
  if (!member.put) return DISP_E_MEMBERNOTFOUND;
  if (arguments.cArgs != 1) return DISP_E_BADPARAMCOUNT;
  Variant value;
  windows::Check(VariantCopyInd(value.Put(), &arguments.rgvarg[0]), "The value of a property");
  member.put(value);
  return S_OK;
}

HRESULT Tell(EXCEPINFO* told) {
  const Error error = CurrentError();
  if (told != nullptr) {
    *told = {};
    told->bstrSource = windows::Bstr(error.source()).Detach();
    told->bstrDescription = windows::Bstr(error.description()).Detach();
    told->scode = windows::ResultOf(error.number());
  }
  return DISP_E_EXCEPTION;
}

}  // namespace

windows::ComPtr<IDispatch> NamedMembers::Make(std::vector<Member> members) {
  return windows::ComPtr<IDispatch>::Adopt(new NamedMembers(std::move(members)));
}

STDMETHODIMP NamedMembers::GetTypeInfoCount(UINT* count) noexcept {
  if (count == nullptr) return E_POINTER;
  *count = 0;
  return S_OK;
}

STDMETHODIMP NamedMembers::GetTypeInfo(UINT /*number*/, LCID /*locale*/, ITypeInfo** info) noexcept {
  if (info != nullptr) *info = nullptr;
  return DISP_E_BADINDEX;
}

DISPID NamedMembers::Find(const wchar_t* name) const {
  const auto found = std::ranges::find_if(members_, [&](const Member& each) {
    return CompareStringOrdinal(each.name.c_str(), -1, name, -1, TRUE) == CSTR_EQUAL;
  });
  return found == members_.end() ? DISPID_UNKNOWN : static_cast<DISPID>(found - members_.begin() + 1);
}

STDMETHODIMP NamedMembers::GetIDsOfNames(REFIID /*reserved*/, OLECHAR** names, UINT count, LCID /*locale*/,
                                         DISPID* numbers) noexcept {
  if (names == nullptr || numbers == nullptr) return E_POINTER;
  // The names after the first are those of arguments, of which no member has any.
  std::ranges::fill(std::span(numbers, count), DISPID_UNKNOWN);
  if (count > 0) numbers[0] = Find(names[0]);
  return count == 1 && numbers[0] != DISPID_UNKNOWN ? S_OK : DISP_E_UNKNOWNNAME;
}

STDMETHODIMP NamedMembers::Invoke(DISPID member, REFIID /*reserved*/, LCID /*locale*/, WORD how, DISPPARAMS* arguments,
                                  VARIANT* result, EXCEPINFO* error, UINT* /*wrongArgument*/) noexcept {
  if (arguments == nullptr) return E_POINTER;
  if (member < 1 || static_cast<std::size_t>(member) > members_.size()) return DISP_E_MEMBERNOTFOUND;
  const Member& called = members_[static_cast<std::size_t>(member) - 1];
  try {
    if ((how & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0) return PutIn(called, *arguments);
    Variant value = called.get(IndexIn(*arguments));
    return result == nullptr ? S_OK : VariantCopy(result, &value.raw());
  } catch (...) {
    return windows::GuardedOr<HRESULT>(E_OUTOFMEMORY, [&] { return Tell(error); });
  }
}

}  // namespace quorvel::console
