// A component between the client and the real one that answers wrongly where a test says so, and keeps a journal. It
// gives texts as plain arrays alone.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "hub_com/ComActivator.h"

namespace quorvel::test {

// What goes wrong, by the name of a member: what Invoke does in its place.
using Fault = std::function<HRESULT(VARIANT* result, EXCEPINFO* exception)>;

struct Faults {
  std::map<std::string, Fault, std::less<>> instead;
  HRESULT creation = S_OK;                                                  // a failure: nothing is created
  std::vector<std::string> created;                                         // "class on server"
  std::map<std::string, int, std::less<>> asked;                            // how often a name was asked for
  std::map<std::string, std::map<DISPID, std::string>, std::less<>> names;  // what was answered, by class
};

// Creates what `inner` creates, wrapped. `faults` must outlive the objects.
std::shared_ptr<hub_com::ComActivator> MakeFaultyActivator(std::shared_ptr<hub_com::ComActivator> inner,
                                                           Faults& faults);

}  // namespace quorvel::test
