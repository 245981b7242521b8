// Writes the user imports of a sample: their runs, by processes and by hand, and who was imported.
#pragma once

#include "tools/HistoryWriter.h"
#include "tools/SamplePlan.h"

namespace quorvel::tools {

void WriteSampleImports(const SampleOptions& options, const SamplePlan& plan, HistoryWriter& writer);

}  // namespace quorvel::tools
