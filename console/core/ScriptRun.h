// Runs the scenario that a command line asks for.
#pragma once

#include "console_core/ConsoleOptions.h"
#include "scenario/Scenario.h"

namespace quorvel::console {

// What it prints goes to the standard output, what goes wrong to the terminal. Whether all of it was done.
bool RunScript(scenario::Scenario& scenario, const ConsoleOptions& options);

// Without windows. The exit code of the program: 0 when all of it was done, else 1.
int RunScenarioHeadless(const ConsoleOptions& options);

}  // namespace quorvel::console
