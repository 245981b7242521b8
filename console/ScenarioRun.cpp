#include "console/ScenarioRun.h"

#include <exception>
#include <iostream>
#include <memory>
#include <vector>

#include "console/Console.h"
#include "console/ConsoleWindow.h"
#include "qt/Convert.h"
#include "scenario/Scenario.h"
#include "scenario/ScenarioHeadless.h"
#include "scenario_qt/ScenarioQt.h"

namespace quorvel::console {
namespace {

bool RunScript(scenario::Scenario& scenario, const ConsoleOptions& options) {
  try {
    if (!options.history.isEmpty()) scenario.Open(qt::FromQt(options.history));
    return scenario.Run(qt::FromQt(options.scenario), std::cout, std::cerr);
  } catch (const std::exception& problem) {
    std::cerr << problem.what() << std::endl;
    return false;
  }
}

int ExitCode(bool ok) {
  return ok ? 0 : 1;
}

}  // namespace

int RunScenarioHeadless(const ConsoleOptions& options) {
  scenario::ScenarioHeadless port;
  scenario::Scenario scenario(port);
  return ExitCode(RunScript(scenario, options));
}

int RunScenarioOnQt(const ConsoleOptions& options) {
  std::vector<std::unique_ptr<ConsoleWindow>> windows;
  scenario::ScenarioQt port([&](Platform& platform, datasource::RecordSourceFactory& factory) {
    auto& window = *windows.emplace_back(std::make_unique<ConsoleWindow>());
    auto* const viewer = new qt::ProcessLogWidget(factory, platform, &window);
    window.Place(viewer);
    window.resize(options.size);
    window.show();
    return viewer;
  });
  scenario::Scenario scenario(port);
  bool ok = RunScript(scenario, options);
  if (!options.screenshot.isEmpty() && !windows.empty()) {
    ok = WritePicture(*windows.back(), options.screenshot, options.part) && ok;
  }
  return ExitCode(ok);
}

}  // namespace quorvel::console
