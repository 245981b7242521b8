// The console as a program: reads its arguments, opens its window, writes a picture of it.
#pragma once

#include <span>
#include <string>

namespace quorvel::console {

// Exit code 0: all went well; 1: the history could not be opened, the tab not chosen, the picture or the report not
// written; 2: the arguments are not understood. `arguments`, UTF-8, begin with the name of the program.
int RunConsole(std::span<const std::string> arguments);

}  // namespace quorvel::console
