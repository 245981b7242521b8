// Which tabs the viewer shows.
#pragma once

#include <vector>

#include "control/Enumerations.h"
#include "widgets/TabStrip.h"

namespace quorvel {

// All six, as they are at start-up.
std::vector<widgets::Tab> AllTabs();

// Shows the tabs that have something of their own to build: of those that build the same view for this host, the one
// that is named after it, else the first. `reduced`: the host did without tabs 1 to 3. The current tab stays when it is
// shown and `keepCurrent`; else the first one that is shown becomes current.
void ShowTabs(widgets::TabStrip& strip, tlFromType fromType, bool reduced, bool keepCurrent);

}  // namespace quorvel
