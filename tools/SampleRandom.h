// Random numbers that are the same on every machine: the standard fixes the generator's raw output, but not what its
// distributions make of it.
#pragma once

#include <cstdint>
#include <functional>
#include <iterator>
#include <random>

namespace quorvel::tools {

class SampleRandom {
 public:
  // Independent of every other stream of the same seed, so that one part of a sample can grow without changing others.
  SampleRandom(std::uint64_t seed, std::uint64_t stream) : engine_(Mix(Mix(seed) + stream)) {}

  // 0 <= result < bound; 0 for a bound below 1.
  std::int64_t Below(std::int64_t bound) {
    if (bound < 1) return 0;
    return static_cast<std::int64_t>(engine_() % static_cast<std::uint64_t>(bound));
  }

  // True in so many of a thousand cases.
  bool PerMille(std::int64_t chance) { return Below(1000) < chance; }

 private:
  // Neighbouring seeds must not give related sequences (the finishing step of splitmix64).
  static std::uint64_t Mix(std::uint64_t value) {
    value += 0x9E3779B97F4A7C15U;
    value = (value ^ (value >> 30U)) * 0xBF58476D1CE4E5B9U;
    value = (value ^ (value >> 27U)) * 0x94D049BB133111EBU;
    return value ^ (value >> 31U);
  }

  std::mt19937_64 engine_;
};

// One of `values`, which must stand together and not be empty.
template <class Values>
const auto& AnyOf(const Values& values, SampleRandom& random) {
  return std::data(values)[random.Below(std::ssize(values))];
}

// The same, each value so often as its weight says.
template <class Values, class Weight>
const auto& AnyByWeight(const Values& values, Weight weight, SampleRandom& random) {
  std::int64_t all = 0;
  for (const auto& value : values) all += std::invoke(weight, value);
  std::int64_t left = random.Below(all);
  const auto* chosen = std::data(values);
  while ((left -= std::invoke(weight, *chosen)) >= 0) ++chosen;
  return *chosen;
}

}  // namespace quorvel::tools
