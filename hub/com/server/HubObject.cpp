#include "hub_com/server/HubObject.h"

namespace quorvel::hub_com {
namespace {

HRESULT STDMETHODCALLTYPE QueryFace(Face* face, REFIID wanted, void** object) noexcept {
  return face->object->QueryInterface(wanted, object);
}

ULONG STDMETHODCALLTYPE AddFace(Face* face) noexcept {
  return face->object->AddRef();
}

ULONG STDMETHODCALLTYPE ReleaseFace(Face* face) noexcept {
  return face->object->Release();
}

HRESULT STDMETHODCALLTYPE CountTypes(Face* face, UINT* count) noexcept {
  return face->object->types().GetTypeInfoCount(count);
}

HRESULT STDMETHODCALLTYPE GiveType(Face* face, UINT number, LCID /*locale*/, ITypeInfo** info) noexcept {
  return face->object->types().GetTypeInfo(number, info);
}

HRESULT STDMETHODCALLTYPE FindNames(Face* face, REFIID reserved, OLECHAR** names, UINT count, LCID /*locale*/,
                                    DISPID* numbers) noexcept {
  return face->object->types().GetIDsOfNames(reserved, names, count, numbers);
}

HRESULT STDMETHODCALLTYPE InvokeMember(Face* face, DISPID member, REFIID reserved, LCID /*locale*/, WORD flags,
                                       DISPPARAMS* arguments, VARIANT* result, EXCEPINFO* error,
                                       UINT* wrongArgument) noexcept {
  return face->object->types().Invoke(face, member, reserved, flags, arguments, result, error, wrongArgument);
}

}  // namespace

const Method kDispatch[kDispatchMethods] = {
    reinterpret_cast<Method>(&QueryFace),   reinterpret_cast<Method>(&AddFace),  reinterpret_cast<Method>(&ReleaseFace),
    reinterpret_cast<Method>(&CountTypes),  reinterpret_cast<Method>(&GiveType), reinterpret_cast<Method>(&FindNames),
    reinterpret_cast<Method>(&InvokeMember)};

HubObject::HubObject(std::string_view classIdentifier, REFIID identity, const Method* methods)
    : face_{methods, this},
      identity_(identity),
      types_(identity),
      hub_(SharedHub::Get()),
      source_(hub_->hub().Create(classIdentifier, "")) {
  // Loaded before several threads can come for it.
  windows::ComPtr<ITypeInfo> loaded;
  windows::Check(types_.GetTypeInfo(0, loaded.Put()), "The type library cannot be loaded");
}

HRESULT HubObject::QueryInterface(REFIID wanted, void** object) noexcept {
  if (object == nullptr) return E_POINTER;
  *object = nullptr;
  if (IsEqualGUID(wanted, IID_IUnknown) || IsEqualGUID(wanted, IID_IDispatch) || IsEqualGUID(wanted, identity_)) {
    *object = &face_;
  } else if (IsEqualGUID(wanted, IID_ISupportErrorInfo)) {
    *object = static_cast<ISupportErrorInfo*>(this);
  } else {
    return E_NOINTERFACE;
  }
  AddRef();
  return S_OK;
}

ULONG HubObject::Release() noexcept {
  const ULONG left = --references_;
  if (left == 0) delete this;
  return left;
}

}  // namespace quorvel::hub_com
