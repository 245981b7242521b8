// The viewer on Windows with histories of a million rows, against the least that reading the same rows can cost there,
// and what the native list and tree are sent meanwhile. The argument is the folder that the histories are written to.
#include <cstdint>
#include <cstdio>
#include <filesystem>

#include "BareLoop.h"
#include "Histories.h"
#include "Measure.h"
#include "NativeViewer.h"
#include "StationQueries.h"

namespace {

using namespace quorvel;
using bench::BareLoop;
using bench::Compare;
using bench::MessageRecorder;
using bench::NativeViewer;
using bench::Report;
using widgets::NodeId;

constexpr std::int32_t kRows = 1'000'000;
constexpr double kReadLimit = 1.3;

// Items of the native control that were inserted while it drew each of them, and of the list any at all.
bool ReportMessages(const char* pane, const MessageRecorder& recorder, int insertionsAllowed) {
  const bench::SentMessages& sent = recorder.sent();
  const bool kept = sent.insertions <= insertionsAllowed && sent.shownInsertions == 0;
  std::printf(
      "|   messages to the %s: %d insertions, %d of them drawn at once; %d times asked to erase, %d paintings | | | | "
      "| %s |\n",
      pane, sent.insertions, sent.shownInsertions, sent.erasures, sent.paints, kept ? "kept" : "EXCEEDED");
  return kept;
}

bool MeasureTree(const std::filesystem::path& history) {
  const BareLoop bare(history);
  NativeViewer viewer(history);
  const auto readAll = [&] { return bench::ReadStationsOfRuns(bare, viewer.from(), viewer.to(), kRows); };
  bool kept = Report("1,000,000 rows: request to painted process tree / bare loop",
                     Compare([&] { return viewer.ShowProcesses(); }, readAll), kReadLimit);
  const auto& tree = viewer.control().controls().tvMotherList;
  kept &= ReportMessages("tree", viewer.tree(), static_cast<int>(tree.ChildCount(NodeId::kNone)));
  return kept;
}

bool MeasureList(const std::filesystem::path& history) {
  const BareLoop bare(history);
  NativeViewer viewer(history);
  viewer.ShowProcesses();
  const auto& tree = viewer.control().controls().tvMotherList;
  const NodeId run = tree.Child(tree.Child(NodeId::kNone, 0), 0);
  const NodeId group = tree.Child(run, 0);
  const auto click = [&] {
    viewer.Click(run);
    return viewer.Click(group);
  };
  bool kept = Report("click to painted list of 1,000,000 rows / bare loop",
                     Compare(click, [&] { return bench::ReadStationsOfState(bare, kRows); }), kReadLimit);
  kept &= ReportMessages("list", viewer.list(), 0);
  return kept;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: quorvel_bench_windows FOLDER\n");
    return 2;
  }
  const std::filesystem::path folder(argv[1]);
  bool kept = MeasureTree(bench::MakeHistory(folder, kRows));
  kept &= MeasureList(bench::MakeLongRunHistory(folder));
  return kept ? 0 : 1;
}
