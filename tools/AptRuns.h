// Brings together what apt asked for and what dpkg did: which package of which invocation got where.
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "tools/AptHistory.h"
#include "tools/DpkgLog.h"

namespace quorvel::tools {

enum class AptState { kDone, kFailed, kRunning, kNotBegun };

struct AptStep {
  std::string package{};
  const AptChange* change = nullptr;         // null for a package that only ran its triggers
  std::vector<const DpkgRecord*> records{};  // in order
  AptState state = AptState::kDone;
};

struct AptRun {
  const AptInvocation* invocation = nullptr;
  std::vector<AptStep> steps{};     // what was asked for, in the order of the log
  std::vector<AptStep> triggers{};  // what dpkg did to other packages on the way
  AptState state = AptState::kDone;
};

struct AptRuns {
  std::vector<AptRun> runs{};      // one for each invocation, in their order
  std::size_t foreignRecords = 0;  // records of dpkg outside every invocation
};

// The last invocation is running when it has no end and began less than six hours before `now`; others without an end
// were interrupted, and failed. A package is done when its last state is the one wanted; where the dpkg log does not
// reach back to an invocation, apt's word is taken. When a run stopped at packages, the ones behind them are not begun.
// The result refers to both logs; `log` must be sorted.
AptRuns MatchAptRuns(const AptHistory& history, const DpkgLog& log, DateValue now);

// So many of the steps are in that state.
std::size_t CountIn(AptState state, std::span<const AptStep> steps);

}  // namespace quorvel::tools
