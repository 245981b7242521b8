// The views beside the runs, on histories of a million rows of each of their tables, against the least that reading the
// rows of the same questions can cost; and what one of their nodes costs, whatever the history around it. Off-screen:
// QT_QPA_PLATFORM=offscreen. The argument is the folder that the histories are written to.
#include <QApplication>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <string>

#include "BareLoop.h"
#include "Growth.h"
#include "Histories.h"
#include "Measure.h"
#include "Viewer.h"
#include "hub/sqlite/ConnectionQueries.h"
#include "hub/sqlite/Filters.h"
#include "hub/sqlite/LogQueries.h"

namespace {

using namespace quorvel;
using bench::BareLoop;
using bench::Compare;
using bench::Report;
using bench::Viewer;
using widgets::NodeId;

constexpr std::int32_t kRows = 1'000'000;
constexpr double kReadLimit = 1.2;
constexpr double kNodesLimit = 1.5;  // where each row that is read becomes a node too
constexpr double kAny = -1;

struct Period {
  double from;
  double to;
};
constexpr Period kAlways{-std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()};

Period Shown(Viewer& viewer) {
  return {viewer.from(), viewer.to()};
}

// The questions of the views, read by bare loops.
class BareViews {
 public:
  explicit BareViews(const std::filesystem::path& history) : bare_(history) {}

  // The days that have connections, and those that have failed ones.
  double Days(Period period, std::int32_t days) const {
    constexpr double kAllStates = 0;
    constexpr double kFailed = 2;
    double seconds = 0;
    for (const double state : {kAllStates, kFailed}) {
      seconds +=
          bare_.Run(hub::kDaysOfCommunications,
                    {{":station", kAny}, {":from", period.from}, {":to", period.to}, {":state", state}}, "di", days);
    }
    return seconds;
  }

  double Connections(Period period, std::int32_t rows) const {
    return bare_.Run(
        hub::kCommunications,
        {{":station", kAny}, {":from", period.from}, {":to", period.to}, {":state", 0.0}, {":failedOnly", 0.0}},
        "idditiitiii", rows);
  }

  double AlarmsByOwner() const { return bare_.Run(hub::kAlarms, {{":alarm", kAny}}, "iitdiittitditii", kRows); }

  double AlarmsByDate() const {
    return bare_.Run(hub::kAlarmsOfDay,
                     {{":owner", kAny}, {":from", kAlways.from}, {":to", kAlways.to}, {":state", kAny}},
                     "iitdiittitditii", kRows);
  }

  double Backups(Period period, bool onStation, std::int32_t rows) const {
    return bare_.Run(
        hub::kBackups,
        {{":station", kAny}, {":onStation", onStation ? 1.0 : 0.0}, {":from", period.from}, {":to", period.to}},
        "iittdii", rows);
  }

  double Files() const {
    return bare_.Run(hub::kFilesOfBackup, {{":backup", 1.0}, {":failedOnly", 0.0}, {":part", ""}}, "itditi", kRows);
  }

  double ImportedUsers(std::string_view name) const {
    return bare_.Run(hub::FilteredBy(":process", hub::kRunsOfImport),
                     {{":import", 1.0}, {":name", name}, {":process", 0.0}, {":run", kAny}}, "iidtit", kRows);
  }

  double SystemLog(Period period) const {
    return bare_.Run(hub::kSchedulerLogs,
                     {{":company", kAny}, {":from", period.from}, {":to", period.to}, {":state", 0.0}}, "iidttttt",
                     kRows);
  }

 private:
  BareLoop bare_;
};

// A request also fills the list of what it selects first, with a question of its own.
bool MeasureRequests(const std::filesystem::path& history) {
  constexpr std::int32_t kDays = 366;  // the first and the last of the year are halves
  constexpr std::int32_t kServerBackups = 365;
  const BareViews bare(history);
  Viewer viewer(history);
  const Period shown = Shown(viewer);
  const Period newestMonth{DateFromCivil({2026, 11, 1}), DateFromCivil({2026, 12, 1})};
  viewer.ShowConnections(false);
  const std::int32_t listed = viewer.control().p_ListCount();
  const auto readConnections = [&] { return bare.Days(shown, kDays) + bare.Connections(newestMonth, listed); };
  bool kept = Report("1,000,000 connections: request to painted months / bare loop",
                     Compare([&] { return viewer.ShowConnections(false); }, readConnections), kReadLimit);
  kept &= Report("1,000,000 connections: request to painted months, days / bare loop",
                 Compare([&] { return viewer.ShowConnections(true); }, readConnections), kReadLimit);
  kept &=
      Report("1,000,000 alarms: request to painted tree and list / bare loops",
             Compare([&] { return viewer.ShowAlarms(); }, [&] { return bare.AlarmsByOwner() + bare.AlarmsByDate(); }),
             kReadLimit);
  const auto listAlarms = [&] {
    viewer.Click(viewer.NodeAt({1}));
    return viewer.Click(viewer.NodeAt({0}));
  };
  kept &= Report("click to painted list of 1,000,000 alarms / bare loop",
                 Compare(listAlarms, [&] { return bare.AlarmsByDate(); }), kReadLimit);
  kept &= Report("1,000,000 backups: request to painted tree / bare loop",
                 Compare([&] { return viewer.ShowBackups(); },
                         [&] {
                           return bare.Backups(shown, false, kServerBackups) +
                                  bare.Backups(shown, true, kRows - kServerBackups);
                         }),
                 kReadLimit);
  kept &= Report("1,000,000 rows of the system log: request to painted / bare loop",
                 Compare([&] { return viewer.ShowSystemLog(); }, [&] { return bare.SystemLog(shown); }), kReadLimit);
  return kept;
}

void OpenUnlessOpen(Viewer& viewer, NodeId node) {
  if (!viewer.tree().IsExpanded(node)) viewer.Open(node);
}

// Opens the first node of each level, and gives the first one at `depth`.
NodeId FirstAt(Viewer& viewer, int depth) {
  NodeId node = viewer.NodeAt({0});
  for (int level = 1; level < depth; ++level) {
    OpenUnlessOpen(viewer, node);
    node = viewer.tree().Child(node, 0);
  }
  return node;
}

// The first click fills tree and list with one answer; the node is opened, and clicked first, in a new tree each time.
// Later clicks come from its first child.
template <class Show, class Read>
bool MeasureNode(const char* rows, Viewer& viewer, int depth, Show show, Read read) {
  const std::string what(rows);
  const auto open = [&] {
    show();
    return viewer.Open(FirstAt(viewer, depth));
  };
  bool kept = Report(what + ": opened to painted / bare loop", Compare(open, read), kNodesLimit);
  const auto clickFirst = [&] {
    show();
    return viewer.Click(FirstAt(viewer, depth));
  };
  kept &= Report(what + ": first click to painted / bare loop", Compare(clickFirst, read), kNodesLimit);
  const NodeId node = FirstAt(viewer, depth);
  OpenUnlessOpen(viewer, node);
  const auto click = [&] {
    viewer.Click(viewer.tree().Child(node, 0));
    return viewer.Click(node);
  };
  kept &= Report(what + ": click to painted list / bare loop", Compare(click, read), kReadLimit);
  return kept;
}

bool MeasureLongParts(const std::filesystem::path& history) {
  constexpr std::int32_t kDays = 1;
  constexpr int kDay = 2;
  constexpr int kProcessOfImport = 2;
  constexpr int kBackup = 6;
  constexpr std::int32_t kImport = 1;
  const BareViews bare(history);
  Viewer viewer(history);
  const auto readConnections = [&] { return bare.Connections(Shown(viewer), kRows); };
  // The newest month is selected, and so filled, at once.
  bool kept = Report("month of 1,000,000 connections: request to painted / bare loop",
                     Compare([&] { return viewer.ShowConnections(false); },
                             [&] { return bare.Days(Shown(viewer), kDays) + readConnections(); }),
                     kReadLimit);
  kept &= MeasureNode(
      "day of 1,000,000 connections", viewer, kDay, [&] { viewer.ShowConnections(true); }, readConnections);
  kept &= MeasureNode(
      "backup of 1,000,000 files", viewer, kBackup, [&] { viewer.ShowBackups(); }, [&] { return bare.Files(); });
  viewer.ShowImport(kImport);
  const std::string name(viewer.tree().Text(viewer.NodeAt({0})));
  kept &= MeasureNode(
      "import of 1,000,000 users", viewer, kProcessOfImport, [&] { viewer.ShowImport(kImport); },
      [&] { return bare.ImportedUsers(name); });
  return kept;
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  if (argc < 2) {
    std::fprintf(stderr, "usage: quorvel_bench_views FOLDER [requests|parts|growth]\n");
    return 2;
  }
  const std::filesystem::path folder(argv[1]);
  const std::string_view part = argc > 2 ? argv[2] : "";
  bool kept = true;
  if (part.empty() || part == "requests") kept &= MeasureRequests(bench::MakeViewsHistory(folder, kRows));
  if (part.empty() || part == "parts") kept &= MeasureLongParts(bench::MakeLongPartsHistory(folder));
  if (part.empty() || part == "growth") kept &= bench::MeasureViewsGrowth(folder);
  return kept ? 0 : 1;
}
