// The surroundings of a whole viewer that is timed.
#pragma once

#include <string_view>

#include "BarePlatform.h"

namespace quorvel::bench {

// A fixed present, and nobody to read a message: one ends the benchmark.
class BenchPlatform : public BarePlatform {
 public:
  void ShowMessage(std::string_view text, std::string_view title) override;
  DateValue Now() const override { return DateFromCivil({2026, 11, 20, 12, 0, 0}); }
};

}  // namespace quorvel::bench
