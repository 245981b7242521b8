// Writes the connections of a sample, and what was said during them.
#pragma once

#include "tools/HistoryWriter.h"
#include "tools/SampleFacts.h"
#include "tools/SamplePlan.h"

namespace quorvel::tools {

// Those that carried commands of the runs, and so many more as are missing from the wanted number.
void WriteSampleConnections(const SampleOptions& options, const SamplePlan& plan, const SampleFacts& facts,
                            HistoryWriter& writer);

}  // namespace quorvel::tools
