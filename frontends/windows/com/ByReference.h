// Arguments that a method may change.
#pragma once

#include <oaidl.h>
#include <windows.h>

#include <cstdint>

#include "platform/windows/ComValues.h"

namespace quorvel::windows {

// However the caller passes it: a typed value by reference, a script's variable, a variant of its own, or nothing where
// the argument is optional.
class ByReference {
 public:
  // E_POINTER without an argument.
  explicit ByReference(VARIANT* argument);

  // The caller left it out.
  bool absent() const;

  // Error 13 for a value of another kind, 6 for one that does not fit.
  std::int32_t ToInt32() const;
  bool ToBool() const;
  float ToSingle() const;

  // Changes the caller's value, which keeps its type where that can hold the new one.
  void Write(Variant value) const;

 private:
  Variant Value() const;

  VARIANT* argument_;
};

}  // namespace quorvel::windows
