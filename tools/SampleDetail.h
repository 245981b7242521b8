// Writes the tasks, steps and commands behind the parts of a run.
#pragma once

#include <cstdint>

#include "tools/HistoryWriter.h"
#include "tools/SampleFacts.h"
#include "tools/SampleParts.h"
#include "tools/SamplePlan.h"

namespace quorvel::tools {

class SampleDetail {
 public:
  // All must outlive this.
  SampleDetail(const SamplePlan& plan, HistoryWriter& writer, SampleFacts& facts)
      : plan_(plan), writer_(writer), facts_(facts) {}

  // Writes what the run keeps: everything when it is planned in detail, else what leads to its failures. The
  // connections that carried commands go to the facts.
  void Write(const PlannedRun& run, const ProcessRunRow& row, const RunParts& parts);

 private:
  const SamplePlan& plan_;
  HistoryWriter& writer_;
  SampleFacts& facts_;
};

}  // namespace quorvel::tools
