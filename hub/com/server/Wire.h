// How the arguments of the contract cross the COM boundary: the type that a method takes for each, and the way back.
#pragma once

#include <windows.h>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Error.h"
#include "platform/windows/ComValues.h"

namespace quorvel::hub_com {

// `Type`: what the method takes. `In`: what the contract's call is given for it, valid until that call returns.
template <class Argument>
struct Wire;

template <>
struct Wire<std::int32_t> {
  using Type = LONG;
  static std::int32_t In(Type value) { return value; }
};

template <>
struct Wire<double> {
  using Type = DATE;
  static double In(Type value) { return value; }
};

template <>
struct Wire<bool> {
  using Type = VARIANT_BOOL;
  static bool In(Type value) { return value != VARIANT_FALSE; }
};

template <>
struct Wire<std::string_view> {
  using Type = BSTR;
  static std::string In(Type text) { return windows::TextOf(text); }
};

// Identifiers: an array of 32-bit integers, by value or by reference.
template <>
struct Wire<std::span<const std::int32_t>> {
  using Type = VARIANT;
  static std::vector<std::int32_t> In(const VARIANT& values);
};

// Takes a status and hands it over when the call is done, however it ends.
class StatusOut {
 public:
  explicit StatusOut(LONG* target) : target_(target) {
    if (target_ == nullptr) throw Error(SystemError::kInvalidCall, "A status has no place to be written to");
  }
  ~StatusOut() { *target_ = value_; }
  StatusOut(const StatusOut&) = delete;
  StatusOut& operator=(const StatusOut&) = delete;

  operator std::int32_t&() { return value_; }  // NOLINT(google-explicit-constructor): it stands for the argument

 private:
  LONG* target_;
  std::int32_t value_ = 1;  // nothing to read, as long as nothing else is said
};

template <>
struct Wire<std::int32_t&> {
  using Type = LONG*;
  static StatusOut In(Type target) { return StatusOut(target); }
};

}  // namespace quorvel::hub_com
