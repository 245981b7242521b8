// Hands the console's window over to a scenario.
#pragma once

#include "console_core/ConsoleOptions.h"

namespace quorvel::console {

// Every viewer of the script gets a window of the console. With --screenshot a picture of the last one is written when
// the script has ended; with --output the report that it asks for. The exit code of the program: 0 when all of it was
// done, else 1.
int RunScenarioOnQt(const ConsoleOptions& options);

}  // namespace quorvel::console
