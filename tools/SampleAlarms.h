// Writes the alarms of a sample: for runs that failed, and for what somebody should look at.
#pragma once

#include "tools/HistoryWriter.h"
#include "tools/SampleFacts.h"
#include "tools/SamplePlan.h"

namespace quorvel::tools {

void WriteSampleAlarms(const SampleOptions& options, const SamplePlan& plan, const SampleFacts& facts,
                       HistoryWriter& writer);

}  // namespace quorvel::tools
