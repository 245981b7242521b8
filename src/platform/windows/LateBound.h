// Members of an object by name, looked up while the program runs.
#pragma once

#include <windows.h>

#include <oleauto.h>

#include <initializer_list>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "platform/windows/ComPtr.h"
#include "platform/windows/ComValues.h"

namespace quorvel::windows {

// Errors: 438 for a member that the object does not have, 91 while there is no object; what the member itself raises
// goes on with number, source and description.
class LateBound {
 public:
  LateBound() = default;
  explicit LateBound(ComPtr<IDispatch> object) : object_(std::move(object)) {}

  explicit operator bool() const { return static_cast<bool>(object_); }
  const ComPtr<IDispatch>& object() const { return object_; }

  DISPID IdOf(std::wstring_view member) const;

  // `arguments` in the order in which they are written.
  Variant Get(std::wstring_view property, std::initializer_list<Variant> arguments = {}) const;
  void Put(std::wstring_view property, const Variant& value) const;
  Variant Call(std::wstring_view method, std::initializer_list<Variant> arguments = {}) const;
  // The object that a property holds; error 91 when it holds none.
  LateBound Object(std::wstring_view property, std::initializer_list<Variant> arguments = {}) const;

  // `member`: what is called, for errors. Arguments by reference come back changed.
  Variant Invoke(DISPID id, std::string_view member, WORD how, std::span<const VARIANT> argumentsReversed) const;

 private:
  IDispatch& Target() const;

  ComPtr<IDispatch> object_;
};

}  // namespace quorvel::windows
