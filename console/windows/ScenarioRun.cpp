#include "console_windows/ScenarioRun.h"

#include "console_core/ScriptRun.h"
#include "console_windows/ConsoleWindow.h"
#include "console_windows/Picture.h"
#include "platform/windows/WideText.h"
#include "scenario_windows/ScenarioWindows.h"

namespace quorvel::console {

int RunScenario(const ConsoleOptions& options) {
  ConsoleWindow window;
  window.Open(options.size);
  scenario::ScenarioWindows port(window.window(), window.statusBar().window(),
                                 {.placed = [&](windows::ProcessLogWindow& viewer) { window.Place(viewer); },
                                  .leaving = [&] { window.Remove(); }});
  scenario::Scenario scenario(port);
  const bool ok = RunScript(scenario, options);
  if (!options.screenshot.empty()) WritePicture(window.window(), windows::ToWide(options.screenshot));
  return ok ? 0 : 1;
}

}  // namespace quorvel::console
