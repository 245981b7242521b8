// The object of a record source, wherever it lives: made when it is needed, called by name.
#pragma once

#include <oaidl.h>

#include <cstdint>
#include <functional>
#include <initializer_list>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "hub_com/ComActivator.h"
#include "platform/windows/ComValues.h"
#include "platform/windows/LateBound.h"

namespace quorvel::hub_com {

// Numbers of the members of one class on one server, which its objects share: each name is asked for once.
// DISPID_UNKNOWN for one that the class does not have.
using MemberNumbers = std::map<std::string, DISPID, std::less<>>;

// Calls raise what the object raises, with number, source and description as they were told. When the object's process
// is gone or cannot be reached any more, the call that meets it fails; the next one is made on a new object.
class SourceLink {
 public:
  // Creates the object. Error 429, naming class and server, when that cannot be.
  SourceLink(std::shared_ptr<ComActivator> activator, std::string_view classIdentifier, std::string_view serverName,
             std::shared_ptr<MemberNumbers> numbers);

  // Whether there is an object. A call makes one where there is none.
  bool alive() const { return static_cast<bool>(object_); }

  windows::Variant Call(std::string_view method, std::initializer_list<windows::Variant> arguments);
  windows::Variant Get(std::string_view property);

  // Whether the object has a member; as for all names, it is asked once.
  bool Has(std::string_view member);

  // The class with a member, for errors: "clRecordHub.ProcessLog.GetProcessLogs".
  std::string NameOf(std::string_view member) const;

 private:
  void Require();
  DISPID NumberOf(std::string_view member);
  template <class Body>
  auto OnObject(Body body);
  windows::Variant Invoke(std::string_view member, WORD how, std::span<const VARIANT> argumentsReversed);

  std::shared_ptr<ComActivator> activator_;
  std::string classIdentifier_;
  std::string serverName_;
  IID identity_;
  std::shared_ptr<MemberNumbers> numbers_;
  windows::LateBound object_;
};

}  // namespace quorvel::hub_com
