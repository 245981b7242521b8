// What the bare loops read for the two views that every front end is timed with.
#pragma once

#include <cstdint>

#include "BareLoop.h"
#include "hub/sqlite/Queries.h"

namespace quorvel::bench {

// Seconds for all stations of all runs of a period.
inline double ReadStationsOfRuns(const BareLoop& bare, double from, double to, std::int32_t rows) {
  constexpr std::int32_t kAny = -1;
  return bare.Run(
      hub::kStationsOfRuns,
      {{":process", kAny}, {":station", kAny}, {":company", kAny}, {":from", from}, {":to", to}, {":state", 0}},
      "iitiidiiiiiii", rows);
}

// The same for the stations of run 1 that are OK.
inline double ReadStationsOfState(const BareLoop& bare, std::int32_t rows) {
  return bare.Run(hub::kStationsOfState, {{":run", 1}, {":state", 1}}, "ddittttiiiiit", rows);
}

}  // namespace quorvel::bench
