#include "util/StableOrder.h"

#include <algorithm>
#include <bit>
#include <cstddef>
#include <limits>
#include <numeric>
#include <span>
#include <utility>

namespace quorvel::util {
namespace {

// The bits of a number that hold its key; those below hold its place.
struct KeyBits {
  int first = 0;
  int count = 0;
};

int BitsOf(std::uint64_t number) {
  return std::numeric_limits<std::uint64_t>::digits - std::countl_zero(number);
}

// Part of a key that one pass sorts by: few enough counters to stay close to the processor.
constexpr int kMostDigitBits = 11;

// Moves the numbers into the order of one digit, without changing the order of those that share it.
void SortByDigit(std::span<const std::uint64_t> from, std::span<std::uint64_t> to, KeyBits digit) {
  const std::size_t mask = (std::size_t{1} << digit.count) - 1;
  const auto digitOf = [&](std::uint64_t number) { return static_cast<std::size_t>(number >> digit.first) & mask; };
  std::vector<std::uint32_t> next(mask + 2);  // where the next number of each digit goes
  for (const std::uint64_t number : from) ++next[digitOf(number) + 1];
  std::partial_sum(next.begin(), next.end(), next.begin());
  for (const std::uint64_t number : from) to[next[digitOf(number)]++] = number;
}

void SortByKey(std::vector<std::uint64_t>& numbers, KeyBits key) {
  if (key.count == 0) return;
  const int passes = (key.count + kMostDigitBits - 1) / kMostDigitBits;
  const int width = (key.count + passes - 1) / passes;
  std::vector<std::uint64_t> spare(numbers.size());
  for (int done = 0; done < key.count; done += width) {
    SortByDigit(numbers, spare, {key.first + done, std::min(width, key.count - done)});
    numbers.swap(spare);
  }
}

std::vector<std::uint32_t> OrderByComparing(std::span<const std::int64_t> keys) {
  std::vector<std::uint32_t> places(keys.size());
  std::iota(places.begin(), places.end(), 0U);
  std::ranges::stable_sort(places, {}, [&](std::uint32_t place) { return keys[place]; });
  return places;
}

}  // namespace

std::vector<std::uint32_t> StableOrder(std::vector<std::int64_t> keys) {
  if (keys.empty()) return {};
  const auto [least, greatest] = std::ranges::minmax(keys);
  const auto base = static_cast<std::uint64_t>(least);
  const KeyBits key{BitsOf(keys.size() - 1), BitsOf(static_cast<std::uint64_t>(greatest) - base)};
  // Key and place do not share 64 bits: dates of all millennia in a list of more rows than anybody has.
  if (key.first + key.count > 64) return OrderByComparing(keys);

  std::vector<std::uint64_t> numbers(keys.size());
  for (std::size_t place = 0; place < keys.size(); ++place) {
    numbers[place] = ((static_cast<std::uint64_t>(keys[place]) - base) << key.first) | place;
  }
  keys = {};
  SortByKey(numbers, key);
  const std::uint64_t mask = (std::uint64_t{1} << key.first) - 1;
  std::vector<std::uint32_t> places(numbers.size());
  std::ranges::transform(numbers, places.begin(),
                         [mask](std::uint64_t number) { return static_cast<std::uint32_t>(number & mask); });
  return places;
}

}  // namespace quorvel::util
