// The view that a viewer shows first.
#pragma once

#include "control/ucProcessLog.h"

namespace quorvel::console {

// Builds the view of the tab in front, or that of processes where no method builds it alone; where tabs build none for
// this p_FromType, the one that hosts build: alarms, or the import that p_IdAppLog names. Errors are those of the view.
void BuildFirstView(ucProcessLog& control);

}  // namespace quorvel::console
