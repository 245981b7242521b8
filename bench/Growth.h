// What one node costs in histories of different sizes.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <initializer_list>
#include <memory>
#include <span>
#include <vector>

#include "Viewer.h"

namespace quorvel::bench {

// `seconds` does it for the n-th time, from 0.
struct Gesture {
  const char* what;
  std::function<double(Viewer&, std::size_t n)> seconds;
};

// Goes to another node of the probe first, so that the list has to change, and from the same to the same everywhere.
double ClickAt(Viewer& viewer, std::initializer_list<std::size_t> from, std::initializer_list<std::size_t> to);

// The row of the first root of the probe's stations; those before it have no name.
std::size_t FirstStation(Viewer& viewer);

// The same gestures in viewers of histories from small to large.
class Growth {
 public:
  explicit Growth(std::span<const std::filesystem::path> histories);

  void ForEachViewer(const std::function<void(Viewer&)>& body);

  // Prints a row for each gesture: its times, and the slowest against the fastest. False when a limit is exceeded.
  bool Measure(std::span<const Gesture> gestures);

 private:
  std::vector<double> MediansOf(const Gesture& gesture);

  std::vector<std::unique_ptr<Viewer>> viewers_;
};

// Opens and clicks the same nodes in histories of 10,000 to 3,000,000 rows, which it writes to `folder`, and prints a
// table of them. False when a limit is exceeded. Processes and stations; and the views beside them.
bool MeasureGrowth(const std::filesystem::path& folder);
bool MeasureViewsGrowth(const std::filesystem::path& folder);

}  // namespace quorvel::bench
