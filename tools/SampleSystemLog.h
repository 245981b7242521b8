// Writes the scheduler's log of a sample, and the files attached to it.
#pragma once

#include "tools/HistoryWriter.h"
#include "tools/SampleFacts.h"
#include "tools/SamplePlan.h"

namespace quorvel::tools {

// Starts and ends of runs, the newest where not all fit, and what the scheduler did besides. Error 75 when the files
// that are attached cannot be written.
void WriteSampleSystemLog(const SampleOptions& options, const SamplePlan& plan, const SampleFacts& facts,
                          HistoryWriter& writer);

}  // namespace quorvel::tools
