// What the methods of the published interfaces have in common.
#pragma once

#include <windows.h>

#include <utility>

#include "platform/Error.h"

namespace quorvel::windows {

// What a caller must give: the place for an answer, an argument by reference. E_POINTER when it did not.
template <class Value>
Value* Given(Value* pointer) {
  if (pointer == nullptr) throw Error(E_POINTER, "Quorvel", "An argument is a null pointer");
  return pointer;
}

constexpr VARIANT_BOOL ToVariantBool(bool value) {
  return value ? VARIANT_TRUE : VARIANT_FALSE;
}

}  // namespace quorvel::windows
