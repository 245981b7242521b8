// What one node of the views beside the runs costs in histories of different sizes.
#include <array>
#include <cstdio>

#include "Growth.h"
#include "Histories.h"

namespace quorvel::bench {
namespace {

using widgets::NodeId;

constexpr std::array kSizes{10'000, 100'000, 1'000'000};

// The probe is the newest month, its days stand newest first.
constexpr std::initializer_list<std::size_t> kOldestDay{0, 19};

const Gesture kDays[] = {
    {"connections, day opened: 500 connections",
     [](Viewer& viewer, std::size_t n) {
       return viewer.Open(viewer.NodeAt({0, n}));
     }},
    {"connections, day clicked: 500 connections",
     [](Viewer& viewer, std::size_t n) {
       return ClickAt(viewer, kOldestDay, {0, n});
     }},
    {"connections, connection clicked: 20 commands",
     [](Viewer& viewer, std::size_t n) {
       return ClickAt(viewer, kOldestDay, {0, n, 0});
     }},
};

const Gesture kAlarms[] = {
    {"alarms, owner clicked: 20 alarms",
     [](Viewer& viewer, std::size_t n) {
       const std::size_t station = FirstStation(viewer) + n;
       return ClickAt(viewer, {station + 1}, {station});
     }},
    {"alarms, day of an owner clicked: 1 alarm",
     [](Viewer& viewer, std::size_t n) {
       const std::size_t station = FirstStation(viewer);
       return ClickAt(viewer, {station}, {station, n});
     }},
    {"alarms, day of all owners clicked: 500 alarms",
     [](Viewer& viewer, std::size_t n) {
       return ClickAt(viewer, kOldestDay, {0, n});
     }},
};

// Root, year, month, day, name and backup: the first of each below the root.
template <std::size_t kDepth>
NodeId FirstBelow(Viewer& viewer, std::size_t n) {
  NodeId node = viewer.NodeAt({FirstStation(viewer) + n});
  for (std::size_t level = 0; level < kDepth; ++level) node = viewer.tree().Child(node, 0);
  return node;
}

template <std::size_t kDepth>
double OpenFirst(Viewer& viewer, std::size_t n) {
  return viewer.Open(FirstBelow<kDepth>(viewer, n));
}

const Gesture kBackups[] = {
    {"backups, station opened: 1 year", OpenFirst<0>},
    {"backups, year opened: 1 month", OpenFirst<1>},
    {"backups, month opened: 1 day", OpenFirst<2>},
    {"backups, day opened: 1 name, 20 backups", OpenFirst<3>},
    {"backups, name opened: 20 backups", OpenFirst<4>},
    {"backups, backup opened: 4 folders", OpenFirst<5>},
    {"backups, backup clicked: 20 files",
     [](Viewer& viewer, std::size_t n) {
       viewer.Click(FirstBelow<0>(viewer, n));
       return viewer.Click(FirstBelow<5>(viewer, n));
     }},
};

const Gesture kImports[] = {
    {"imports, process opened: 1 run",
     [](Viewer& viewer, std::size_t n) {
       return viewer.Open(viewer.NodeAt({0, n}));
     }},
    {"imports, process clicked: 20 users",
     [](Viewer& viewer, std::size_t n) {
       return ClickAt(viewer, {0, 19}, {0, n});
     }},
    {"imports, run clicked: 20 users",
     [](Viewer& viewer, std::size_t n) {
       return ClickAt(viewer, {0, 19}, {0, n, 0});
     }},
};

}  // namespace

bool MeasureViewsGrowth(const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> histories;
  for (const int size : kSizes) {
    histories.push_back(MakeViewsHistory(folder, size));
    AddViewsProbe(histories.back());
  }
  Growth growth(histories);
  std::printf("\n| %-53s | 10,000     | 100,000    | 1,000,000  | ratio | limit |      |\n%s\n",
              "one node in histories of so many rows, medians of 9", "|---|---|---|---|---|---|---|");
  growth.ForEachViewer([](Viewer& viewer) {
    viewer.ShowConnections(true);
    viewer.Open(viewer.NodeAt({0}));
  });
  bool kept = growth.Measure(kDays);
  growth.ForEachViewer([](Viewer& viewer) {
    viewer.ShowAlarms();
    viewer.Open(viewer.NodeAt({0}));
    viewer.Open(viewer.NodeAt({FirstStation(viewer)}));
  });
  kept &= growth.Measure(kAlarms);
  growth.ForEachViewer([](Viewer& viewer) { viewer.ShowBackups(); });
  kept &= growth.Measure(kBackups);
  growth.ForEachViewer([](Viewer& viewer) {
    viewer.ShowImport(kProbe);
    viewer.Open(viewer.NodeAt({0}));
  });
  kept &= growth.Measure(kImports);
  return kept;
}

}  // namespace quorvel::bench
