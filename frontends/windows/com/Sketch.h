// A picture of the viewer for places where it has no window.
#pragma once

#include <windows.h>

#include "control/ProcessLogControls.h"

namespace quorvel::windows {

// Tabs, what is open in the tree, and the list's rows as texts, as far as they fit into `place` of `canvas`.
void DrawSketch(const ProcessLogControls& controls, HDC canvas, const RECT& place);

}  // namespace quorvel::windows
