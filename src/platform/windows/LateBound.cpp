#include "platform/windows/LateBound.h"

#include <algorithm>
#include <vector>

#include "platform/Error.h"
#include "platform/windows/ComError.h"
#include "platform/windows/WideText.h"

namespace quorvel::windows {
namespace {

constexpr std::int32_t kNoObject = 91;

// Views of the arguments, which stay their owners', in the order in which calls want them.
std::vector<VARIANT> Reversed(std::initializer_list<Variant> arguments) {
  std::vector<VARIANT> raw;
  raw.reserve(arguments.size());
  for (const Variant& argument : arguments) raw.push_back(argument.raw());
  std::reverse(raw.begin(), raw.end());
  return raw;
}

}  // namespace

IDispatch& LateBound::Target() const {
  if (!object_) throw Error(kNoObject, "Quorvel", "There is no object");
  return *object_.get();
}

DISPID LateBound::IdOf(std::wstring_view member) const {
  std::wstring name(member);
  LPOLESTR names[] = {name.data()};
  DISPID id = DISPID_UNKNOWN;
  const HRESULT result = Target().GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
  Check(result, "The object has no member " + FromWide(member));
  return id;
}

Variant LateBound::Invoke(DISPID id, std::string_view member, WORD how,
                          std::span<const VARIANT> argumentsReversed) const {
  DISPID put = DISPID_PROPERTYPUT;
  const bool puts = (how & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF)) != 0;
  DISPPARAMS parameters{const_cast<VARIANT*>(argumentsReversed.data()), puts ? &put : nullptr,
                        static_cast<UINT>(argumentsReversed.size()), puts ? 1U : 0U};
  EXCEPINFO exception{};
  Variant answer;
  const HRESULT result = Target().Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, how, &parameters,
                                         puts ? nullptr : answer.Put(), &exception, nullptr);
  if (FAILED(result)) RaiseInvokeResult(result, exception, member);
  return answer;
}

Variant LateBound::Get(std::wstring_view property, std::initializer_list<Variant> arguments) const {
  return Invoke(IdOf(property), FromWide(property), DISPATCH_PROPERTYGET | DISPATCH_METHOD, Reversed(arguments));
}

void LateBound::Put(std::wstring_view property, const Variant& value) const {
  Invoke(IdOf(property), FromWide(property), DISPATCH_PROPERTYPUT, std::span(&value.raw(), 1));
}

Variant LateBound::Call(std::wstring_view method, std::initializer_list<Variant> arguments) const {
  return Invoke(IdOf(method), FromWide(method), DISPATCH_METHOD, Reversed(arguments));
}

LateBound LateBound::Object(std::wstring_view property, std::initializer_list<Variant> arguments) const {
  LateBound found(Get(property, arguments).ToObject());
  static_cast<void>(found.Target());
  return found;
}

}  // namespace quorvel::windows
