// Medians of repeated runs, and a table of ratios against their limits.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <optional>
#include <string_view>
#include <vector>

namespace quorvel::bench {

inline constexpr int kRuns = 5;

// Seconds that `body` takes.
template <class Body>
double Seconds(Body&& body) {
  const auto start = std::chrono::steady_clock::now();
  body();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline double Median(std::vector<double> values) {
  std::ranges::sort(values);
  return values[values.size() / 2];
}

// Two ways of one job, timed in turn so that a drift of the machine meets both.
struct Comparison {
  double measured = 0;  // medians, in seconds; or bytes
  double base = 0;
};

template <class Measured, class Base>
Comparison Compare(Measured&& measured, Base&& base) {
  std::vector<double> measuredSeconds;
  std::vector<double> baseSeconds;
  measured();  // warm-up: fonts, icons, page tables
  base();
  for (int run = 0; run < kRuns; ++run) {
    baseSeconds.push_back(base());
    measuredSeconds.push_back(measured());
  }
  return {Median(measuredSeconds), Median(baseSeconds)};
}

// How the numbers of a row are shown.
struct Unit {
  double scale;
  const char* name;
};
inline constexpr Unit kMilliseconds{1e3, "ms"};
inline constexpr Unit kMegabytes{1e-6, "MB"};

// Prints a row of the table; tells whether the ratio keeps its limit. Without a limit it is there to compare with.
inline bool Report(std::string_view what, const Comparison& comparison, std::optional<double> limit,
                   Unit unit = kMilliseconds) {
  const double ratio = comparison.measured / comparison.base;
  const bool kept = !limit || ratio <= *limit;
  std::printf("| %-65.*s | %8.1f %s | %8.1f %s | %5.2f | ", static_cast<int>(what.size()), what.data(),
              comparison.measured * unit.scale, unit.name, comparison.base * unit.scale, unit.name, ratio);
  if (limit) {
    std::printf("%5.2f | %s |\n", *limit, kept ? "kept" : "EXCEEDED");
  } else {
    std::printf("      |      |\n");
  }
  std::fflush(stdout);
  return kept;
}

}  // namespace quorvel::bench
