// The whole viewer on histories of a million rows, against the least that reading the same rows can cost; what one node
// costs, whatever the history around it; and the same columns in the item widgets of Qt. Off-screen:
// QT_QPA_PLATFORM=offscreen. The argument is the folder that the histories are written to.
#include <QApplication>
#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>

#include "BareLoop.h"
#include "Growth.h"
#include "Histories.h"
#include "Measure.h"
#include "Memory.h"
#include "Peers.h"
#include "StationQueries.h"
#include "Viewer.h"
#include "hub/sqlite/Queries.h"
#include "list/StateList.h"
#include "tree/ProcessTree.h"

namespace {

using namespace quorvel;
using bench::BareLoop;
using bench::Compare;
using bench::Report;
using bench::Seconds;
using bench::Viewer;
using widgets::NodeId;

constexpr std::int32_t kRows = 1'000'000;
// One run of a sample has no date, and so lies in no period; a run without stations takes its row's place.
constexpr std::int32_t kRowsWithDate = kRows - 1;
constexpr double kReadLimit = 1.2;
constexpr double kBuildLimit = 0.06;
constexpr double kFillMemoryLimit = 0.1;
constexpr double kSortMemoryLimit = 0.25;
constexpr std::int32_t kAny = -1;

// The columns of GetProcessLogs for all that the viewer shows, held as a tree or list would hold them.
datasource::ProcessLogRecords ProcessRows(hub::RecordHub& hub, std::int32_t connection, Viewer& viewer) {
  const auto source = datasource::CreateRecordSource<datasource::ProcessLog>(hub, "");
  std::int32_t status = 0;
  source->GetProcessLogs(connection, viewer.from(), viewer.to(), 0, kAny, kAny, kAny, 0, 0, status);
  return source->Records();
}

// The same for the tree by station.
bool MeasureUserTree(const BareLoop& bare, Viewer& viewer) {
  const auto readAll = [&] {
    return bare.Run(hub::kRunsOfStations,
                    {{":process", kAny},
                     {":station", kAny},
                     {":company", kAny},
                     {":onStation", kAny},
                     {":from", viewer.from()},
                     {":to", viewer.to()},
                     {":serverFrom", viewer.from()},
                     {":serverTo", viewer.to()},
                     {":stationFrom", viewer.from()},
                     {":stationTo", viewer.to()},
                     {":state", 0}},
                    "iitiiddiittiiiiit", kRowsWithDate);
  };
  return Report("1,000,000 rows: request to painted user tree / bare loop",
                Compare([&] { return viewer.ShowUsers(); }, readAll), kReadLimit);
}

bool MeasureTrees(const std::filesystem::path& history) {
  const BareLoop bare(history);
  Viewer viewer(history);
  const auto readAll = [&] { return bench::ReadStationsOfRuns(bare, viewer.from(), viewer.to(), kRows); };
  bool kept = Report("1,000,000 rows: request to painted process tree / bare loop",
                     Compare([&] { return viewer.ShowProcesses(); }, readAll), kReadLimit);

  hub::RecordHub hub;
  const auto rows = ProcessRows(hub, hub.OpenConnection("sqlite:" + history.string()), viewer);
  bench::BenchPlatform platform;
  datasource::ErrorsProcess errors(platform);
  const auto build = [&] {
    widgets::TreeView tree("tvMotherList");
    return Seconds([&] { tree::AppendProcessNodes(rows, kRows, "0123", platform, errors, tree); });
  };
  kept &= Report("  the tree alone, from ready columns / bare loop", Compare(build, readAll), kBuildLimit);
  bench::ComparePeersOfTree(rows, kRows);
  kept &= MeasureUserTree(bare, viewer);
  return kept;
}

// Bytes of the columns that GetProcessLogByTask fills: values, and of texts each stored one once, with where it begins
// and which one each row shows.
double ColumnBytes(const datasource::ProcessLogRecords& rows) {
  double bytes = 0;
  datasource::ProcessLogRecords::ForEachColumn(
      rows, [&]<class Column>(std::string_view /*name*/, const Column& column) {
        if constexpr (std::is_same_v<Column, datasource::TextColumn>) {
          std::size_t stored = 0;
          for (std::size_t row = 0; row < column.size(); ++row) {
            if (column.rows()[row] < stored) continue;
            bytes += static_cast<double>(column[row].size() + sizeof(std::size_t));
            ++stored;
          }
          bytes += static_cast<double>(column.rows().size_bytes());
        } else {
          bytes += static_cast<double>(column.values().size_bytes());
        }
      });
  return bytes;
}

double BytesOfGroup(const std::filesystem::path& history, datasource::ProcessLogRecords& rows) {
  hub::RecordHub hub;
  const auto source = datasource::CreateRecordSource<datasource::ProcessLog>(hub, "");
  std::int32_t status = 0;
  source->GetProcessLogByTask(hub.OpenConnection("sqlite:" + history.string()), 1, 1, status);
  rows = source->Records();
  return ColumnBytes(rows);
}

bool MeasureList(const std::filesystem::path& history) {
  const BareLoop bare(history);
  Viewer viewer(history);
  viewer.ShowProcesses();
  const NodeId run = viewer.NodeAt({0, 0});
  const NodeId group = viewer.NodeAt({0, 0, 0});
  const auto click = [&] {
    viewer.Click(run);
    return viewer.Click(group);
  };
  const auto readAll = [&] { return bench::ReadStationsOfState(bare, kRows); };
  bool kept = Report("click to painted list of 1,000,000 rows / bare loop", Compare(click, readAll), kReadLimit);

  datasource::ProcessLogRecords rows;
  const double columns = BytesOfGroup(history, rows);
  viewer.Click(run);
  const double before = bench::HeapInUse();
  viewer.Click(group);
  // What Qt itself gave back meanwhile may exceed what the list takes.
  const auto beyond = [&] { return bench::Comparison{std::max(0.0, bench::HeapInUse() - before - columns), columns}; };
  kept &= Report("  memory beyond the columns after the fill / columns", beyond(), kFillMemoryLimit, bench::kMegabytes);
  bench::Comparison mostAfterSort = beyond();
  for (std::size_t column = 1; column <= list::StateListHeaders().size(); ++column) {
    viewer.SortBy(column);
    mostAfterSort = std::ranges::max(mostAfterSort, beyond(), {}, &bench::Comparison::measured);
  }
  kept &= Report("  the same after a sort by each column, the most / columns", mostAfterSort, kSortMemoryLimit,
                 bench::kMegabytes);
  bench::ComparePeersOfList(rows, kRows, columns);
  return kept;
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  if (argc < 2) {
    std::fprintf(stderr, "usage: quorvel_bench_history FOLDER [tree|list|growth]\n");
    return 2;
  }
  const std::filesystem::path folder(argv[1]);
  const std::string_view part = argc > 2 ? argv[2] : "";
  bool kept = true;
  if (part.empty() || part == "tree") kept &= MeasureTrees(bench::MakeHistory(folder, kRows));
  if (part.empty() || part == "list") kept &= MeasureList(bench::MakeLongRunHistory(folder));
  if (part.empty() || part == "growth") kept &= bench::MeasureGrowth(folder);
  return kept ? 0 : 1;
}
