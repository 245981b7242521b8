// The order of many numbers, found without comparing them.
#pragma once

#include <cstdint>
#include <vector>

namespace quorvel::util {

// The places of `keys` in ascending order of what stands there, equal keys in the order of their places. Takes time in
// proportion to the number of keys, of which there must be fewer than 2^32.
std::vector<std::uint32_t> StableOrder(std::vector<std::int64_t> keys);

}  // namespace quorvel::util
