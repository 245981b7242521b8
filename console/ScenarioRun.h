// Hands the console's window, or none, over to a scenario.
#pragma once

#include "console_core/ConsoleOptions.h"

namespace quorvel::console {

// Both give the exit code of the program: 0 when all of it was done, else 1.

// Without windows; needs no QApplication.
int RunScenarioHeadless(const ConsoleOptions& options);

// Every viewer of the script gets a window of the console. With --screenshot a picture of the last one is written when
// the script has ended; with --output the report that it asks for.
int RunScenarioOnQt(const ConsoleOptions& options);

}  // namespace quorvel::console
