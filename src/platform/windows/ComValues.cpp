#include "platform/windows/ComValues.h"

#include <new>

#include "platform/windows/ComError.h"
#include "platform/windows/WideText.h"

namespace quorvel::windows {

Bstr::Bstr(std::string_view text) : Bstr(std::wstring_view(ToWide(text))) {}

Bstr::Bstr(std::wstring_view text) : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {
  if (text_ == nullptr) throw std::bad_alloc();
}

std::string Bstr::Text() const {
  return FromWide(View());
}

std::string TextOf(BSTR text) {
  return FromWide({text, SysStringLen(text)});
}

Variant::Variant(const Variant& other) : Variant() {
  if (FAILED(VariantCopy(&value_, const_cast<VARIANT*>(&other.value_)))) throw std::bad_alloc();
}

Variant Variant::As(VARTYPE type) const {
  Variant converted;
  Check(VariantChangeType(&converted.value_, const_cast<VARIANT*>(&value_), 0, type), "A value cannot be converted");
  return converted;
}

std::int32_t Variant::ToInt32() const {
  return As(VT_I4).value_.lVal;
}

bool Variant::ToBool() const {
  return As(VT_BOOL).value_.boolVal != VARIANT_FALSE;
}

double Variant::ToDouble() const {
  return As(VT_R8).value_.dblVal;
}

std::string Variant::ToText() const {
  return TextOf(As(VT_BSTR).value_.bstrVal);
}

ComPtr<IDispatch> Variant::ToObject() const {
  if (value_.vt == VT_DISPATCH) return ComPtr<IDispatch>(value_.pdispVal);
  if (value_.vt == (VT_BYREF | VT_DISPATCH)) return ComPtr<IDispatch>(*value_.ppdispVal);
  if (value_.vt == VT_UNKNOWN) return ComPtr<IUnknown>(value_.punkVal).As<IDispatch>();
  return {};
}

}  // namespace quorvel::windows
