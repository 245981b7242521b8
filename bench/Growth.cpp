#include "Growth.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <functional>
#include <initializer_list>
#include <memory>
#include <span>
#include <vector>

#include "Histories.h"
#include "Measure.h"
#include "Viewer.h"

namespace quorvel::bench {
namespace {

constexpr std::array kSizes{10'000, 100'000, 1'000'000, 3'000'000};
constexpr double kLimit = 1.5;
// Each time on a node of its own where a node can be opened once only; the first ones warm up.
constexpr std::size_t kWarmUps = 2;
constexpr std::size_t kTimes = 9;

// `seconds` does it for the n-th time.
struct Gesture {
  const char* what;
  std::function<double(Viewer&, std::size_t n)> seconds;
};

// Goes to another node of the probe first, so that the list has to change, and from the same to the same everywhere.
double ClickAt(Viewer& viewer, std::initializer_list<std::size_t> from, std::initializer_list<std::size_t> to) {
  viewer.Click(viewer.NodeAt(from));
  return viewer.Click(viewer.NodeAt(to));
}

// The root of the n-th station of the probe; those before it have no name.
std::size_t Station(Viewer& viewer, std::size_t n) {
  std::size_t first = 0;
  while (!viewer.tree().Text(viewer.NodeAt({first})).starts_with('!')) ++first;
  return first + n;
}

// The probe is the first process, with its newest run first.
constexpr std::initializer_list<std::size_t> kOldestRun{0, 14};

const Gesture kByProcess[] = {
    {"process clicked: 15 runs", [](Viewer& viewer, std::size_t) { return ClickAt(viewer, kOldestRun, {0}); }},
    {"run clicked: 1 state group",
     [](Viewer& viewer, std::size_t n) {
       return ClickAt(viewer, kOldestRun, {0, n});
     }},
    {"run opened: 1 state group",
     [](Viewer& viewer, std::size_t n) {
       return viewer.Open(viewer.NodeAt({0, n}));
     }},
    {"state group clicked: 500 stations",
     [](Viewer& viewer, std::size_t n) {
       return ClickAt(viewer, kOldestRun, {0, n, 0});
     }},
    {"state group opened: 500 stations",
     [](Viewer& viewer, std::size_t n) {
       return viewer.Open(viewer.NodeAt({0, n, 0}));
     }},
    {"station clicked: 20 tasks",
     [](Viewer& viewer, std::size_t n) {
       return ClickAt(viewer, kOldestRun, {0, 0, 0, n});
     }},
    {"station opened: 20 tasks",
     [](Viewer& viewer, std::size_t n) {
       return viewer.Open(viewer.NodeAt({0, 0, 0, n}));
     }},
    {"task clicked: 20 steps",
     [](Viewer& viewer, std::size_t n) {
       return ClickAt(viewer, kOldestRun, {0, 0, 0, n, 0});
     }},
    {"task opened: 20 steps",
     [](Viewer& viewer, std::size_t n) {
       return viewer.Open(viewer.NodeAt({0, 0, 0, n, 0}));
     }},
    {"step clicked: 20 commands",
     [](Viewer& viewer, std::size_t n) {
       return ClickAt(viewer, kOldestRun, {0, 0, 0, n, 0, 0});
     }},
};

const Gesture kWithAllRunsInSight[] = {
    {"all processes open, run opened: 1 state group",
     [](Viewer& viewer, std::size_t n) {
       return viewer.Open(viewer.NodeAt({0, n}));
     }},
    {"all processes open, state group opened: 500 stations",
     [](Viewer& viewer, std::size_t n) {
       return viewer.Open(viewer.NodeAt({0, n, 0}));
     }},
    {"all processes open, state group clicked: 500 stations",
     [](Viewer& viewer, std::size_t n) {
       return ClickAt(viewer, kOldestRun, {0, n, 0});
     }},
};

const Gesture kByStation[] = {
    {"by station, station clicked: 1 process",
     [](Viewer& viewer, std::size_t n) { return ClickAt(viewer, {Station(viewer, n + 1)}, {Station(viewer, n)}); }},
    {"by station, station opened: 1 process",
     [](Viewer& viewer, std::size_t n) { return viewer.Open(viewer.NodeAt({Station(viewer, n)})); }},
    {"by station, process clicked: 15 runs",
     [](Viewer& viewer, std::size_t n) {
       return ClickAt(viewer, {Station(viewer, n)}, {Station(viewer, n), 0});
     }},
    {"by station, process opened: 15 runs",
     [](Viewer& viewer, std::size_t n) {
       return viewer.Open(viewer.NodeAt({Station(viewer, n), 0}));
     }},
    {"by station, run clicked: 20 tasks",
     [](Viewer& viewer, std::size_t n) {
       return ClickAt(viewer, {Station(viewer, n)}, {Station(viewer, n), 0, 0});
     }},
    {"by station, run opened: 20 tasks",
     [](Viewer& viewer, std::size_t n) {
       return viewer.Open(viewer.NodeAt({Station(viewer, n), 0, 0}));
     }},
};

class Growth {
 public:
  explicit Growth(const std::filesystem::path& folder) {
    for (const int size : kSizes) {
      const std::filesystem::path history = MakeHistory(folder, size);
      AddProbe(history);
      viewers_.push_back(std::make_unique<Viewer>(history));
    }
  }

  void ForEachViewer(const std::function<void(Viewer&)>& body) {
    for (const auto& viewer : viewers_) body(*viewer);
  }

  bool Measure(std::span<const Gesture> gestures) {
    bool kept = true;
    for (const Gesture& gesture : gestures) kept &= ReportTimes(gesture.what, MediansOf(gesture));
    return kept;
  }

 private:
  // The histories in turn, so that a drift of the machine meets all.
  std::vector<double> MediansOf(const Gesture& gesture) {
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

  static bool ReportTimes(const char* what, const std::vector<double>& medians) {
    const auto [fastest, slowest] = std::ranges::minmax(medians);
    const bool kept = slowest / fastest <= kLimit;
    std::printf("| %-53s |", what);
    for (const double median : medians) std::printf(" %7.2f ms |", median * 1e3);
    std::printf(" %5.2f | %5.2f | %s |\n", slowest / fastest, kLimit, kept ? "kept" : "EXCEEDED");
    std::fflush(stdout);
    return kept;
  }

  std::vector<std::unique_ptr<Viewer>> viewers_;
};

}  // namespace

bool MeasureGrowth(const std::filesystem::path& folder) {
  Growth growth(folder);
  std::printf("\n| %-53s | 10,000     | 100,000    | 1,000,000  | 3,000,000  | ratio | limit |      |\n%s\n",
              "one node in histories of so many rows, medians of 9", "|---|---|---|---|---|---|---|---|");
  growth.ForEachViewer([](Viewer& viewer) { viewer.ShowProcesses(); });
  bool kept = growth.Measure(kByProcess);
  growth.ForEachViewer([](Viewer& viewer) {
    viewer.ShowProcesses();
    viewer.OpenRoots();
  });
  kept &= growth.Measure(kWithAllRunsInSight);
  growth.ForEachViewer([](Viewer& viewer) { viewer.ShowUsers(); });
  kept &= growth.Measure(kByStation);
  return kept;
}

}  // namespace quorvel::bench
