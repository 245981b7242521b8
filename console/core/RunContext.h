// Takes a viewer to one run in the tree by process, from wherever the run is named.
#pragma once

#include <string>
#include <string_view>

#include "control/ucProcessLog.h"
#include "datasource/RecordSource.h"

namespace quorvel::console {

// The key of the run that a row or a node is about, by its key: an alarm that a run raised, or anything of the views of
// processes and stations. "" where there is none.
std::string RunOfContext(std::string_view key);

// Shows the view "Processes" with this run selected. Where the options leave the run out they are changed: to every
// state, and to the day on which it started. False when the run cannot be shown all the same. Errors are those of the
// view.
bool GoToRun(ucProcessLog& control, datasource::RecordSourceFactory& factory, std::string_view runKey);

}  // namespace quorvel::console
