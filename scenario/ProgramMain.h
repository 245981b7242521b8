// What the programs that run a scenario have in common, whatever the port.
#pragma once

#include <iostream>
#include <string>
#include <vector>

#include "scenario/ScenarioPort.h"

namespace quorvel::scenario {

// Arguments: [--history URL] FILE. Exit code 0: the script was run; 1: it was not, or not to its end; 2: the arguments
// are no such thing.
int ProgramMain(ScenarioPort& port, const std::vector<std::string>& arguments, std::ostream& out,
                std::ostream& problems);

}  // namespace quorvel::scenario
