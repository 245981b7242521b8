#include "platform/windows/TypeDispatch.h"

#include <oleauto.h>

#include <string>

#include "platform/windows/ComServer.h"

namespace quorvel::windows {

HRESULT LoadOwnTypeLibrary(ITypeLib** library) noexcept {
  *library = nullptr;
  try {
    return LoadTypeLibEx(OwnModulePath().c_str(), REGKIND_NONE, library);
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

HRESULT LoadOwnTypeInfo(REFGUID described, ITypeInfo** info) noexcept {
  *info = nullptr;
  ComPtr<ITypeLib> library;
  const HRESULT result = LoadOwnTypeLibrary(library.Put());
  return FAILED(result) ? result : library->GetTypeInfoOfGuid(described, info);
}

HRESULT TypeDispatch::Load() noexcept {
  return info_ ? S_OK : LoadOwnTypeInfo(described_, info_.Put());
}

HRESULT TypeDispatch::GetTypeInfoCount(UINT* count) noexcept {
  if (count == nullptr) return E_POINTER;
  *count = 1;
  return S_OK;
}

HRESULT TypeDispatch::GetTypeInfo(UINT number, ITypeInfo** info) noexcept {
  if (info == nullptr) return E_POINTER;
  *info = nullptr;
  if (number != 0) return DISP_E_BADINDEX;
  const HRESULT result = Load();
  if (FAILED(result)) return result;
  *info = ComPtr<ITypeInfo>(info_).Detach();
  return S_OK;
}

HRESULT TypeDispatch::GetIDsOfNames(REFIID reserved, OLECHAR** names, UINT count, DISPID* numbers) noexcept {
  if (!IsEqualGUID(reserved, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
  if (names == nullptr || numbers == nullptr) return E_POINTER;
  const HRESULT result = Load();
  return FAILED(result) ? result : DispGetIDsOfNames(info_.get(), names, count, numbers);
}

HRESULT TypeDispatch::Invoke(void* object, DISPID member, REFIID reserved, WORD flags, DISPPARAMS* arguments,
                             VARIANT* result, EXCEPINFO* error, UINT* wrongArgument) noexcept {
  if (!IsEqualGUID(reserved, IID_NULL)) return DISP_E_UNKNOWNINTERFACE;
  if (arguments == nullptr) return E_POINTER;
  const HRESULT loaded = Load();
  if (FAILED(loaded)) return loaded;
  // What an earlier call of this thread left is no error of this one.
  SetErrorInfo(0, nullptr);
  return DispInvoke(object, info_.get(), member, flags, arguments, result, error, wrongArgument);
}

}  // namespace quorvel::windows
