// Values that cross a COM boundary, each an owner of what it holds.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "platform/windows/ComPtr.h"

namespace quorvel::windows {

// A wide text of the kind that components hand over. std::bad_alloc when there is no memory for it.
class Bstr {
 public:
  Bstr() = default;
  explicit Bstr(std::string_view text);
  explicit Bstr(std::wstring_view text);
  Bstr(const Bstr& other) : Bstr(other.View()) {}
  Bstr(Bstr&& other) noexcept : text_(std::exchange(other.text_, nullptr)) {}
  ~Bstr() { SysFreeString(text_); }
  Bstr& operator=(const Bstr& other) {
    Bstr(other).Swap(*this);
    return *this;
  }
  Bstr& operator=(Bstr&& other) noexcept {
    Bstr(std::move(other)).Swap(*this);
    return *this;
  }

  // A null text is the empty one.
  BSTR get() const { return text_; }
  std::wstring_view View() const { return {text_, SysStringLen(text_)}; }
  std::string Text() const;
  BSTR Detach() { return std::exchange(text_, nullptr); }
  // Where a call writes a text that it gives away.
  BSTR* Put() {
    *this = Bstr();
    return &text_;
  }

 private:
  void Swap(Bstr& other) noexcept { std::swap(text_, other.text_); }

  BSTR text_ = nullptr;
};

// The text of a BSTR that somebody else owns.
std::string TextOf(BSTR text);

class Variant {
 public:
  Variant() { VariantInit(&value_); }
  explicit Variant(std::int32_t value) : Variant() {
    value_.vt = VT_I4;
    value_.lVal = value;
  }
  explicit Variant(bool value) : Variant() {
    value_.vt = VT_BOOL;
    value_.boolVal = value ? VARIANT_TRUE : VARIANT_FALSE;
  }
  explicit Variant(Bstr text) : Variant() {
    value_.vt = VT_BSTR;
    value_.bstrVal = text.Detach();
  }
  explicit Variant(std::string_view text) : Variant(Bstr(text)) {}
  explicit Variant(ComPtr<IDispatch> object) : Variant() {
    value_.vt = VT_DISPATCH;
    value_.pdispVal = object.Detach();
  }
  // Days since 1899-12-30.
  static Variant Date(double date) {
    Variant made;
    made.value_.vt = VT_DATE;
    made.value_.date = date;
    return made;
  }
  // A value that the callee may change; it must outlive the variant.
  static Variant ByReference(std::int32_t& value) {
    Variant made;
    made.value_.vt = VT_BYREF | VT_I4;
    made.value_.plVal = reinterpret_cast<LONG*>(&value);
    return made;
  }
  // std::bad_alloc when there is no memory for it.
  Variant(const Variant& other);
  Variant(Variant&& other) noexcept : value_(other.value_) { VariantInit(&other.value_); }
  ~Variant() { VariantClear(&value_); }
  Variant& operator=(const Variant& other) {
    Variant(other).Swap(*this);
    return *this;
  }
  Variant& operator=(Variant&& other) noexcept {
    Variant(std::move(other)).Swap(*this);
    return *this;
  }

  VARIANT& raw() { return value_; }
  const VARIANT& raw() const { return value_; }
  // Where a call writes a value that it gives away.
  VARIANT* Put() {
    VariantClear(&value_);
    return &value_;
  }
  VARTYPE type() const { return value_.vt; }

  // The value as another type, by the rules of the system. Error 13 when it has none; 6 when it does not fit.
  std::int32_t ToInt32() const;
  bool ToBool() const;
  double ToDouble() const;
  std::string ToText() const;
  // Null when it holds none.
  ComPtr<IDispatch> ToObject() const;

 private:
  void Swap(Variant& other) noexcept { std::swap(value_, other.value_); }
  Variant As(VARTYPE type) const;

  VARIANT value_;
};

}  // namespace quorvel::windows
