// An object whose members are found by name: what a host shows of itself to the controls on its form.
#pragma once

#include <oaidl.h>

#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/windows/ComObject.h"
#include "platform/windows/ComPtr.h"
#include "platform/windows/ComValues.h"

namespace quorvel::console {

// Names are compared without regard to case, as late binding does. Whatever a member raises reaches the caller as the
// error of the call.
class NamedMembers final : public windows::ComObject<IDispatch> {
 public:
  struct Member {
    std::wstring name;
    // `index`: 0 where the caller names none.
    std::function<windows::Variant(std::int32_t index)> get;
    std::function<void(const windows::Variant& value)> put;  // empty: the member cannot be changed
  };

  static windows::ComPtr<IDispatch> Make(std::vector<Member> members);

  STDMETHODIMP GetTypeInfoCount(UINT* count) noexcept override;
  STDMETHODIMP GetTypeInfo(UINT number, LCID locale, ITypeInfo** info) noexcept override;
  STDMETHODIMP GetIDsOfNames(REFIID reserved, OLECHAR** names, UINT count, LCID locale,
                             DISPID* numbers) noexcept override;
  STDMETHODIMP Invoke(DISPID member, REFIID reserved, LCID locale, WORD how, DISPPARAMS* arguments, VARIANT* result,
                      EXCEPINFO* error, UINT* wrongArgument) noexcept override;

 private:
  explicit NamedMembers(std::vector<Member> members) : members_(std::move(members)) {}

  DISPID Find(const wchar_t* name) const;

  std::vector<Member> members_;
};

}  // namespace quorvel::console
