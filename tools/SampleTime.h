// When things happen in a sample.
#pragma once

#include <cstdint>
#include <vector>

#include "tools/SampleHistory.h"
#include "tools/SampleRandom.h"

namespace quorvel::tools {

// Local time in whole seconds since 1899-12-30; 0 = none.
using Second = std::int64_t;
inline constexpr Second kMinute = 60;
inline constexpr Second kHour = 3600;
inline constexpr Second kDay = 86400;

constexpr DateValue DateAt(Second second) {
  const Second day = second / kDay;
  return static_cast<double>(day) + static_cast<double>(second % kDay) / static_cast<double>(kDay);
}

// The date must be one that can be shown.
Second SecondOf(DateValue date);

// A time within the sample's days before `now`, mostly at night, when shops are closed.
Second AnyTime(const SampleOptions& options, Second now, SampleRandom& random);

// So many such times, in order.
std::vector<Second> AnyTimes(const SampleOptions& options, Second now, std::int32_t count, SampleRandom& random);

}  // namespace quorvel::tools
