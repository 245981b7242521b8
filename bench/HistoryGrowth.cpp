// What one node of processes and stations costs in histories of different sizes.
#include <array>
#include <cstdio>

#include "Growth.h"
#include "Histories.h"

namespace quorvel::bench {
namespace {

constexpr std::array kSizes{10'000, 100'000, 1'000'000, 3'000'000};

// The root of the n-th station of the probe.
std::size_t Station(Viewer& viewer, std::size_t n) {
  return FirstStation(viewer) + n;
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

}  // namespace

bool MeasureGrowth(const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> histories;
  for (const int size : kSizes) {
    histories.push_back(MakeHistory(folder, size));
    AddProbe(histories.back());
  }
  Growth growth(histories);
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
