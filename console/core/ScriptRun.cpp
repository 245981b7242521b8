#include "console_core/ScriptRun.h"

#include <exception>
#include <iostream>

#include "scenario/ScenarioHeadless.h"

namespace quorvel::console {

bool RunScript(scenario::Scenario& scenario, const ConsoleOptions& options) {
  try {
    if (!options.history.empty()) scenario.Open(options.history);
    return scenario.Run(options.scenario, std::cout, std::cerr);
  } catch (const std::exception& problem) {
    std::cerr << problem.what() << std::endl;
    return false;
  }
}

int RunScenarioHeadless(const ConsoleOptions& options) {
  scenario::ScenarioHeadless port;
  scenario::Scenario scenario(port);
  return RunScript(scenario, options) ? 0 : 1;
}

}  // namespace quorvel::console
