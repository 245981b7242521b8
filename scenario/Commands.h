// The commands of the script language, in tables.
#pragma once

#include <cstddef>
#include <functional>
#include <ostream>
#include <span>
#include <string>
#include <string_view>

#include "scenario/Script.h"
#include "scenario/Session.h"

namespace quorvel::scenario {

using Arguments = std::span<const std::string>;

struct CommandEntry {
  std::string_view name;
  std::string_view usage;  // its arguments
  std::size_t least;       // arguments that it needs and takes
  std::size_t most;
  // ScriptError for what is wrong with the arguments, or with what they ask for.
  void (*run)(Session& session, Arguments arguments, std::ostream& out);
  bool answers = false;  // prints something whatever comes of it
};

inline constexpr std::size_t kAnyNumber = static_cast<std::size_t>(-1);

// Clock, connections, viewers, faults.
std::span<const CommandEntry> SessionCommands();
// What a host programmer does: properties and methods.
std::span<const CommandEntry> HostCommands();
// What a user does.
std::span<const CommandEntry> GestureCommands();
// Reading.
std::span<const CommandEntry> PrintCommands();

// Looks a name up in a table of things that have one. ScriptError "No such WHAT: NAME" when it is not there.
template <class Table>
const auto& Named(const Table& table, std::string_view name, std::string_view what) {
  for (const auto& entry : table) {
    if (entry.name == name) return entry;
  }
  throw ScriptError("No such " + std::string(what) + ": " + std::string(name));
}

// Calls what a host would call; an error that it raises is printed: number, source, description.
void CallAsHost(std::ostream& out, const std::function<void()>& call);

}  // namespace quorvel::scenario
