#include "scenario/ProgramMain.h"

#include <exception>

#include "scenario/Scenario.h"

namespace quorvel::scenario {

int ProgramMain(ScenarioPort& port, const std::vector<std::string>& arguments, std::ostream& out,
                std::ostream& problems) {
  const bool history = arguments.size() == 3 && arguments[0] == "--history";
  if (!history && arguments.size() != 1) {
    problems << "Use: quorvel_scenario [--history URL] FILE\n";
    return 2;
  }
  try {
    Scenario scenario(port);
    if (history) scenario.Open(arguments[1]);
    return scenario.Run(arguments.back(), out, problems) ? 0 : 1;
  } catch (const std::exception& problem) {
    problems << problem.what() << '\n';
    return 1;
  }
}

}  // namespace quorvel::scenario
