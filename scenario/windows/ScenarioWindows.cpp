#include "scenario_windows/ScenarioWindows.h"

#include <commctrl.h>

#include "platform/windows/WideText.h"
#include "scenario_windows/NativeControls.h"

namespace quorvel::scenario {

std::unique_ptr<ViewerPort> ScenarioWindows::PlaceViewer(Platform& platform, datasource::RecordSourceFactory& factory) {
  return std::make_unique<WindowsViewer>(form_, platform, factory, pump_, layout_);
}

void ScenarioWindows::SetStatusText(std::string_view text) {
  SendMessageW(statusBar_, SB_SETTEXTW, 0, reinterpret_cast<LPARAM>(windows::ToWide(text).c_str()));
}

std::string ScenarioWindows::StatusText() const {
  return PanelText(statusBar_);
}

}  // namespace quorvel::scenario
