// IDispatch by the description of an interface in the library's own type library.
#pragma once

#include <oaidl.h>
#include <oleauto.h>
#include <windows.h>

#include "platform/windows/ComPtr.h"

namespace quorvel::windows {

// The type library in the resources of the library that this code is linked into; it need not be registered. A new
// reference, or a failure.
HRESULT LoadOwnTypeLibrary(ITypeLib** library) noexcept;

// The description of an interface or class in it, in the same way.
HRESULT LoadOwnTypeInfo(REFGUID described, ITypeInfo** info) noexcept;

// The four calls of IDispatch for the dual interface `Interface`, whose methods they call. Error information that a
// method leaves is told in EXCEPINFO, as script hosts expect.
class TypeDispatch {
 public:
  explicit TypeDispatch(REFIID described) noexcept : described_(described) {}

  HRESULT GetTypeInfoCount(UINT* count) noexcept;
  HRESULT GetTypeInfo(UINT number, ITypeInfo** info) noexcept;
  HRESULT GetIDsOfNames(REFIID reserved, OLECHAR** names, UINT count, DISPID* numbers) noexcept;
  // `object`: the vtable of the described interface.
  HRESULT Invoke(void* object, DISPID member, REFIID reserved, WORD flags, DISPPARAMS* arguments, VARIANT* result,
                 EXCEPINFO* error, UINT* wrongArgument) noexcept;

 private:
  HRESULT Load() noexcept;

  IID described_;
  ComPtr<ITypeInfo> info_;
};

// The base of an object whose dual interface `Interface` the type library describes.
template <class Interface>
class Dispatched : public Interface {
 public:
  using Described = Interface;

  STDMETHODIMP GetTypeInfoCount(UINT* count) noexcept override { return dispatch_.GetTypeInfoCount(count); }
  STDMETHODIMP GetTypeInfo(UINT number, LCID /*locale*/, ITypeInfo** info) noexcept override {
    return dispatch_.GetTypeInfo(number, info);
  }
  STDMETHODIMP GetIDsOfNames(REFIID reserved, OLECHAR** names, UINT count, LCID /*locale*/,
                             DISPID* numbers) noexcept override {
    return dispatch_.GetIDsOfNames(reserved, names, count, numbers);
  }
  STDMETHODIMP Invoke(DISPID member, REFIID reserved, LCID /*locale*/, WORD flags, DISPPARAMS* arguments,
                      VARIANT* result, EXCEPINFO* error, UINT* wrongArgument) noexcept override {
    return dispatch_.Invoke(static_cast<Interface*>(this), member, reserved, flags, arguments, result, error,
                            wrongArgument);
  }

 protected:
  ~Dispatched() = default;

 private:
  TypeDispatch dispatch_{__uuidof(Interface)};
};

}  // namespace quorvel::windows
