#include "Growth.h"

#include <algorithm>
#include <cstdio>

#include "Measure.h"

namespace quorvel::bench {
namespace {

constexpr double kLimit = 1.5;
// Each time on a node of its own where a node can be opened once only; the first ones warm up.
constexpr std::size_t kWarmUps = 2;
constexpr std::size_t kTimes = 9;

bool ReportTimes(const char* what, const std::vector<double>& medians) {
  const auto [fastest, slowest] = std::ranges::minmax(medians);
  const bool kept = slowest / fastest <= kLimit;
  std::printf("| %-53s |", what);
  for (const double median : medians) std::printf(" %7.2f ms |", median * 1e3);
  std::printf(" %5.2f | %5.2f | %s |\n", slowest / fastest, kLimit, kept ? "kept" : "EXCEEDED");
  std::fflush(stdout);
  return kept;
}

}  // namespace

double ClickAt(Viewer& viewer, std::initializer_list<std::size_t> from, std::initializer_list<std::size_t> to) {
  viewer.Click(viewer.NodeAt(from));
  return viewer.Click(viewer.NodeAt(to));
}

std::size_t FirstStation(Viewer& viewer) {
  std::size_t first = 0;
  while (!viewer.tree().Text(viewer.NodeAt({first})).starts_with('!')) ++first;
  return first;
}

Growth::Growth(std::span<const std::filesystem::path> histories) {
  for (const std::filesystem::path& history : histories) viewers_.push_back(std::make_unique<Viewer>(history));
}

void Growth::ForEachViewer(const std::function<void(Viewer&)>& body) {
  for (const auto& viewer : viewers_) body(*viewer);
}

bool Growth::Measure(std::span<const Gesture> gestures) {
  bool kept = true;
  for (const Gesture& gesture : gestures) kept &= ReportTimes(gesture.what, MediansOf(gesture));
  return kept;
}

// The histories in turn, so that a drift of the machine meets all.
std::vector<double> Growth::MediansOf(const Gesture& gesture) {
  std::vector<std::vector<double>> seconds(viewers_.size());
  for (std::size_t n = 0; n < kWarmUps + kTimes; ++n) {
    for (std::size_t i = 0; i < viewers_.size(); ++i) {
      const double each = gesture.seconds(*viewers_[i], n);
      if (n >= kWarmUps) seconds[i].push_back(each);
    }
  }
  std::vector<double> medians;
  std::ranges::transform(seconds, std::back_inserter(medians), Median);
  return medians;
}

}  // namespace quorvel::bench
