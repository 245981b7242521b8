// Writes the tasks, steps and commands behind the parts of a run.
#pragma once

#include <cstdint>

#include "tools/HistoryWriter.h"
#include "tools/SampleParts.h"
#include "tools/SamplePlan.h"

namespace quorvel::tools {

class SampleDetail {
 public:
  // Both must outlive this.
  SampleDetail(const SamplePlan& plan, HistoryWriter& writer) : plan_(plan), writer_(writer) {}

  // Writes what the run keeps: everything when it is planned in detail, else what leads to its failures.
  void Write(const PlannedRun& run, const ProcessRunRow& row, const RunParts& parts);

 private:
  const SamplePlan& plan_;
  HistoryWriter& writer_;
  std::int32_t lastCommunication_ = 0;
};

}  // namespace quorvel::tools
