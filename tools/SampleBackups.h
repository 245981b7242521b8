// Writes the backups of a sample and the files in them.
#pragma once

#include "tools/HistoryWriter.h"
#include "tools/SamplePlan.h"

namespace quorvel::tools {

// The server is backed up each night, each station about once a week.
void WriteSampleBackups(const SampleOptions& options, const SamplePlan& plan, HistoryWriter& writer);

}  // namespace quorvel::tools
