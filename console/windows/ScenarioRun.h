// Hands the console's window over to a scenario.
#pragma once

#include "console_core/ConsoleOptions.h"

namespace quorvel::console {

// The viewer that the script places last is in front. With --screenshot a picture of the window is written when the
// script has ended. The exit code of the program: 0 when all of it was done, else 1.
int RunScenario(const ConsoleOptions& options);

}  // namespace quorvel::console
