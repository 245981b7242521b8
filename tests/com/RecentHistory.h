// The small history at a time that is not long ago, whatever day it is.
#pragma once

#include <string>

#include "support/SmallHistory.h"

namespace quorvel::test {

// The clock of the control, and of programs that a test starts, cannot be set: the history comes to where the clock is.
// Its newest day is the 20th of last month, and views show the last three months.
class RecentHistory : public SmallHistory {
 public:
  RecentHistory();

  // "2026/10", as keys have it.
  const std::string& month() const { return month_; }

 private:
  std::string month_;
};

}  // namespace quorvel::test
