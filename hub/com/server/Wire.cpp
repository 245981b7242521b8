#include "hub_com/server/Wire.h"

#include "hub_com/ArrayData.h"

namespace quorvel::hub_com {
namespace {

SAFEARRAY* ArrayIn(const VARIANT& values) {
  if (values.vt == (VT_BYREF | VT_VARIANT)) return ArrayIn(*values.pvarVal);
  if (values.vt == (VT_ARRAY | VT_I4)) return values.parray;
  if (values.vt == (VT_BYREF | VT_ARRAY | VT_I4)) return *values.pparray;
  throw Error(SystemError::kTypeMismatch, "An array of 32-bit integers is expected");
}

}  // namespace

std::vector<std::int32_t> Wire<std::span<const std::int32_t>>::In(const VARIANT& values) {
  SAFEARRAY* const array = ArrayIn(values);
  if (array == nullptr) return {};
  if (SafeArrayGetDim(array) != 1) throw Error(SystemError::kIndexOutOfRange, "An array of one dimension is expected");
  const ArrayData data(array);
  const auto* const first = static_cast<const LONG*>(data.get());
  return {first, first + array->rgsabound[0].cElements};
}

}  // namespace quorvel::hub_com
