// A scenario on Windows: input goes to the native controls, and what is printed is read back from them.
#pragma once

#include <windows.h>

#include <utility>

#include "scenario/ScenarioPort.h"
#include "scenario_windows/MessagePump.h"
#include "scenario_windows/WindowsViewer.h"

namespace quorvel::scenario {

class ScenarioWindows : public ScenarioPort {
 public:
  // Viewers are placed on `form`, a window on the screen. `statusBar`: a native one, the host's stStatusBar. Both
  // outlive the port, and the port the viewers.
  ScenarioWindows(HWND form, HWND statusBar, FormLayout layout = {})
      : form_(form), statusBar_(statusBar), layout_(std::move(layout)) {}

  std::unique_ptr<ViewerPort> PlaceViewer(Platform& platform, datasource::RecordSourceFactory& factory) override;

  void SetStatusText(std::string_view text) override;
  std::string StatusText() const override;

 private:
  HWND form_;
  HWND statusBar_;
  FormLayout layout_;
  MessagePump pump_;
};

}  // namespace quorvel::scenario
