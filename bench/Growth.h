// What one node costs in histories of different sizes.
#pragma once

#include <filesystem>

namespace quorvel::bench {

// Opens and clicks the same nodes in histories of 10,000 to 3,000,000 rows, which it writes to `folder`. Prints a
// table with a row for each gesture: its times, and the slowest against the fastest. False when a limit is exceeded.
bool MeasureGrowth(const std::filesystem::path& folder);

}  // namespace quorvel::bench
