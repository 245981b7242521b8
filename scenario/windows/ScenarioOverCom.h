// A scenario on Windows whose data comes over COM, from the registered classes of clRecordHub.
#pragma once

#include <memory>

#include "scenario_windows/ScenarioWindows.h"

namespace quorvel::scenario {

// Starts COM on the thread that makes it, which is where it must end.
class ScenarioOverCom final : public ScenarioWindows {
 public:
  ScenarioOverCom(HWND form, HWND statusBar);
  ~ScenarioOverCom() override;
  ScenarioOverCom(const ScenarioOverCom&) = delete;
  ScenarioOverCom& operator=(const ScenarioOverCom&) = delete;

  // Error 429 when the classes are not registered.
  std::unique_ptr<DataComponent> MakeDataComponent() override;
};

}  // namespace quorvel::scenario
