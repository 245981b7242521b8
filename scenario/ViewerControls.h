// The controls of a viewer in the order of a print, each with the frame that it lies in.
#pragma once

#include <string_view>
#include <vector>

#include "control/ProcessLogControls.h"
#include "dialogs/dlgLVDetailControls.h"

namespace quorvel::scenario {

struct PlacedControl {
  widgets::Control* control = nullptr;
  widgets::Control* container = nullptr;  // nullptr = the viewer itself
};

// Outermost first, the options panel in the order of the tab key.
std::vector<PlacedControl> PlacedControls(ProcessLogControls& controls);

// The control of that name with its container. ScriptError when there is none.
PlacedControl ControlNamed(ProcessLogControls& controls, std::string_view name);

// The controls of the detail dialog, from top to bottom.
std::vector<widgets::Control*> DetailControls(dlgLVDetailControls& controls);

// The pane that scripts call "tree" or "list". ScriptError for any other name.
const widgets::Control* PaneNamed(const ProcessLogControls& controls, std::string_view name);

}  // namespace quorvel::scenario
