#include "hub_com/SourceLink.h"

#include <windows.h>

#include <algorithm>
#include <utility>
#include <vector>

#include "datasource/Contract.h"
#include "platform/windows/ComError.h"
#include "platform/windows/WideText.h"

namespace quorvel::hub_com {
namespace {

using windows::Variant;

constexpr HRESULT ResultOfSystem(unsigned long code) {
  return static_cast<HRESULT>(code | (FACILITY_WIN32 << 16) | 0x80000000UL);
}

// What calls give when the process or machine of the object is gone.
constexpr HRESULT kLost[] = {RPC_E_DISCONNECTED,
                             RPC_E_SERVER_DIED,
                             RPC_E_SERVER_DIED_DNE,
                             RPC_E_CONNECTION_TERMINATED,
                             RPC_E_INVALID_OBJECT,
                             CO_E_OBJNOTCONNECTED,
                             ResultOfSystem(RPC_S_SERVER_UNAVAILABLE),
                             ResultOfSystem(RPC_S_SERVER_TOO_BUSY),
                             ResultOfSystem(RPC_S_CALL_FAILED),
                             ResultOfSystem(RPC_S_CALL_FAILED_DNE),
                             ResultOfSystem(RPC_S_COMM_FAILURE),
                             ResultOfSystem(ERROR_BROKEN_PIPE)};

bool TellsOfLoss(const Error& error) {
  return std::ranges::find(kLost, static_cast<HRESULT>(error.number())) != std::end(kLost);
}

// The interface that the component publishes for a class.
IID IdentityOf(std::string_view classIdentifier) {
  const auto queries = datasource::Queries();
  const auto found = std::ranges::find(queries, classIdentifier, &datasource::QueryContract::classIdentifier);
  if (found == queries.end()) {
    throw Error(SystemError::kCannotCreateComponent, "No class of the contract: " + std::string(classIdentifier));
  }
  IID identity{};
  windows::Check(IIDFromString(windows::ToWide(found->interfaceIdentity).c_str(), &identity),
                 "The identity of an interface cannot be read");
  return identity;
}

}  // namespace

SourceLink::SourceLink(std::shared_ptr<ComActivator> activator, std::string_view classIdentifier,
                       std::string_view serverName, std::shared_ptr<MemberNumbers> numbers)
    : activator_(std::move(activator)),
      classIdentifier_(classIdentifier),
      serverName_(serverName),
      identity_(IdentityOf(classIdentifier)),
      numbers_(std::move(numbers)) {
  Require();
}

void SourceLink::Require() {
  if (object_) return;
  windows::ComPtr<IDispatch> made;
  const HRESULT result = activator_->Create(classIdentifier_, serverName_, identity_, made);
  if (FAILED(result)) {
    throw Error(SystemError::kCannotCreateComponent, "Class \"" + classIdentifier_ +
                                                         "\" cannot be created on server \"" + serverName_ +
                                                         "\": " + windows::DescriptionOf(result));
  }
  object_ = windows::LateBound(std::move(made));
}

std::string SourceLink::NameOf(std::string_view member) const {
  return classIdentifier_ + "." + std::string(member);
}

DISPID SourceLink::NumberOf(std::string_view member) {
  const auto known = numbers_->find(member);
  if (known != numbers_->end() && known->second != DISPID_UNKNOWN) return known->second;
  const DISPID number = object_.IdOf(windows::ToWide(member));
  numbers_->insert_or_assign(std::string(member), number);
  return number;
}

// Does something with the object, which is dropped when it turns out to be lost.
template <class Body>
auto SourceLink::OnObject(Body body) {
  Require();
  try {
    return body();
  } catch (const Error& error) {
    if (TellsOfLoss(error)) {
      object_ = {};
      // What is started instead may be another edition of the component.
      numbers_->clear();
    }
    throw;
  }
}

bool SourceLink::Has(std::string_view member) {
  return OnObject([&] {
    if (numbers_->find(member) == numbers_->end()) {
      try {
        NumberOf(member);
      } catch (const Error& error) {
        if (error.number() != static_cast<std::int32_t>(SystemError::kUnsupportedMember)) throw;
        numbers_->emplace(member, DISPID_UNKNOWN);
      }
    }
    return numbers_->find(member)->second != DISPID_UNKNOWN;
  });
}

Variant SourceLink::Invoke(std::string_view member, WORD how, std::span<const VARIANT> argumentsReversed) {
  return OnObject([&] { return object_.Invoke(NumberOf(member), NameOf(member), how, argumentsReversed); });
}

Variant SourceLink::Call(std::string_view method, std::initializer_list<Variant> arguments) {
  std::vector<VARIANT> reversed;
  reversed.reserve(arguments.size());
  for (const Variant& argument : arguments) reversed.push_back(argument.raw());
  std::ranges::reverse(reversed);
  return Invoke(method, DISPATCH_METHOD, reversed);
}

Variant SourceLink::Get(std::string_view property) {
  return Invoke(property, DISPATCH_PROPERTYGET | DISPATCH_METHOD, {});
}

}  // namespace quorvel::hub_com
