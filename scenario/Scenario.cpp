#include "scenario/Scenario.h"

#include <fstream>
#include <span>
#include <sstream>
#include <string>

#include "scenario/Commands.h"

namespace quorvel::scenario {
namespace {

const CommandEntry& EntryOf(std::string_view name) {
  for (const std::span<const CommandEntry> table :
       {SessionCommands(), HostCommands(), GestureCommands(), PrintCommands()}) {
    for (const CommandEntry& entry : table) {
      if (entry.name == name) return entry;
    }
  }
  throw ScriptError("No such command: " + std::string(name));
}

}  // namespace

bool Scenario::Run(const std::filesystem::path& file, std::ostream& out, std::ostream& problems) {
  std::ifstream script(file);
  if (!script) {
    problems << file.string() << ": cannot be read\n";
    return false;
  }
  std::string line;
  for (std::size_t number = 1; std::getline(script, line); ++number) {
    try {
      RunCommand(ParseCommand(line), out);
    } catch (const std::exception& problem) {
      problems << file.string() << ':' << number << ": " << problem.what() << '\n';
      return false;
    }
  }
  return true;
}

void Scenario::RunCommand(const Command& command, std::ostream& out) {
  if (command.name.empty()) return;
  const CommandEntry& entry = EntryOf(command.name);
  const std::size_t given = command.arguments.size();
  if (given < entry.least || given > entry.most) {
    throw ScriptError("Use: " + command.name + " " + std::string(entry.usage));
  }
  std::ostringstream answer;
  entry.run(session_, command.arguments, answer);
  if (entry.answers || !answer.view().empty()) out << "> " << command.text << '\n' << answer.view() << std::flush;
}

}  // namespace quorvel::scenario
