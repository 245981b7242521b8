#include "com/ByReference.h"

#include <oleauto.h>

#include <cstring>
#include <utility>

#include "com/Answer.h"
#include "platform/windows/ComError.h"

namespace quorvel::windows {
namespace {

std::size_t SizeOf(VARTYPE type) {
  switch (type) {
    case VT_I1:
    case VT_UI1:
      return 1;
    case VT_I2:
    case VT_UI2:
    case VT_BOOL:
      return 2;
    case VT_I4:
    case VT_UI4:
    case VT_INT:
    case VT_UINT:
    case VT_R4:
      return 4;
    case VT_I8:
    case VT_UI8:
    case VT_R8:
    case VT_CY:
    case VT_DATE:
      return 8;
    default:
      throw Error(SystemError::kTypeMismatch, "An argument by reference is of a type that cannot be changed");
  }
}

// Changes the value behind a typed reference; `value` is of its type.
void Replace(const VARIANT& reference, Variant value) {
  const VARTYPE type = value.type();
  if (type == VT_BSTR) {
    std::swap(*reference.pbstrVal, value.raw().bstrVal);
  } else {
    std::memcpy(reference.byref, &value.raw().bVal, SizeOf(type));
  }
}

}  // namespace

ByReference::ByReference(VARIANT* argument) : argument_(argument) {
  while (argument_ != nullptr && argument_->vt == (VT_BYREF | VT_VARIANT)) argument_ = argument_->pvarVal;
  Given(argument_);
  if ((argument_->vt & VT_BYREF) != 0) Given(argument_->byref);
}

bool ByReference::absent() const {
  return argument_->vt == VT_ERROR && argument_->scode == DISP_E_PARAMNOTFOUND;
}

Variant ByReference::Value() const {
  Variant value;
  Check(VariantCopyInd(&value.raw(), argument_), "An argument cannot be read");
  return value;
}

std::int32_t ByReference::ToInt32() const {
  return Value().ToInt32();
}

bool ByReference::ToBool() const {
  return Value().ToBool();
}

float ByReference::ToSingle() const {
  return static_cast<float>(Value().ToDouble());
}

void ByReference::Write(Variant value) const {
  const auto type = static_cast<VARTYPE>(argument_->vt & ~VT_BYREF);
  Variant converted;
  const HRESULT fits = VariantChangeType(&converted.raw(), &value.raw(), 0, type);
  if ((argument_->vt & VT_BYREF) != 0) {
    Check(fits, "An argument cannot be changed");
    return Replace(*argument_, std::move(converted));
  }
  const bool keepsType = SUCCEEDED(fits) && type != VT_EMPTY && type != VT_NULL;
  Check(VariantCopy(argument_, keepsType ? &converted.raw() : &value.raw()), "An argument cannot be changed");
}

}  // namespace quorvel::windows
