// The widget models with the Qt front end attached, from the first value to the painted picture, against filling plain
// vectors with the same values. Off-screen: QT_QPA_PLATFORM=offscreen.
#include <QApplication>
#include <memory>
#include <string>
#include <vector>

#include "Measure.h"
#include "Painting.h"
#include "datasource/Column.h"
#include "platform/Dates.h"
#include "qt/ListPane.h"
#include "qt/TreePane.h"
#include "util/WholeTree.h"
#include "widgets/ListView.h"
#include "widgets/TreeView.h"

namespace {

using namespace quorvel;
using bench::PaintCounter;
using bench::PumpUntilPainted;
using bench::Seconds;
using bench::ShowInUse;
using widgets::NodeId;

constexpr int kRows = 1'000'000;
constexpr int kStations = 3'000;
constexpr int kRunsOfTree = 25'000;
constexpr int kGroupsOfRun = 4;  // with their run: 125,000 nodes
constexpr int kRowsBefore = 200;
constexpr double kLimit = 1.5;

// The values, made on the fly by both sides alike.
std::string StationName(int row) {
  return "Lyon Part-Dieu " + std::to_string(row % kStations);
}
std::string_view StatusName(int row) {
  return row % 150 == 0 ? "Not Ok" : "Ok";
}
double StartDate(int row) {
  return 46346.0 + row * 1e-5;
}

// The most repaints that one fill cost.
int g_listRepaints = 0;
int g_treeRepaints = 0;

class StationRows : public widgets::RowSource {
 public:
  StationRows(datasource::Column<std::int32_t> ids, datasource::TextColumn names, datasource::TextColumn states,
              datasource::Column<double> dates)
      : ids_(std::move(ids)), names_(std::move(names)), states_(std::move(states)), dates_(std::move(dates)) {}
  std::size_t Count() const override { return ids_.size(); }
  void AppendKey(std::size_t row, std::string& out) const override { out += std::to_string(ids_[row]) + "|LPROC"; }
  void AppendCell(std::size_t row, std::size_t column, std::string& out) const override {
    if (column == 0) out += names_[row];
    if (column == 1) out += FormatFixedDateTime(dates_[row]);
    if (column == 2) out += states_[row];
  }
  std::string_view Icon(std::size_t row) const override { return states_[row] == "Ok" ? "User_Ok" : "User_NoOk"; }

 private:
  datasource::Column<std::int32_t> ids_;
  datasource::TextColumn names_;
  datasource::TextColumn states_;
  datasource::Column<double> dates_;
};

datasource::TextColumn Repeated(std::string_view text, int rows) {
  datasource::TextColumnBuilder builder;
  for (int row = 0; row < rows; ++row) builder.Append(text);
  return builder.Take();
}

void FillBefore(widgets::ListView& list) {
  list.SetRows(std::make_shared<StationRows>(
      datasource::Column(std::vector<std::int32_t>(kRowsBefore)), Repeated("What was shown before", kRowsBefore),
      Repeated("Ok", kRowsBefore), datasource::Column(std::vector<double>(kRowsBefore))));
}

double FillListModel() {
  widgets::ListView list("lvMotherList");
  qt::ListPane pane(list);
  PaintCounter paints;
  list.SetHeaders({{.caption = "Before"}});
  FillBefore(list);
  ShowInUse(pane, paints);
  const double seconds = Seconds([&] {
    std::vector<std::int32_t> ids;
    std::vector<double> dates;
    datasource::TextColumnBuilder names;
    datasource::TextColumnBuilder states;
    ids.reserve(kRows);
    dates.reserve(kRows);
    names.Reserve(kRows);
    states.Reserve(kRows);
    for (int row = 0; row < kRows; ++row) {
      ids.push_back(row);
      names.Append(StationName(row));
      states.Append(StatusName(row));
      dates.push_back(StartDate(row));
    }
    list.InBatch([&] {
      list.SetHeaders({{.caption = "Name"}, {.caption = "Start", .width = 2250}, {.caption = "Status"}});
      list.SetRows(std::make_shared<StationRows>(datasource::Column(std::move(ids)), names.Take(), states.Take(),
                                                 datasource::Column(std::move(dates))));
    });
    PumpUntilPainted(paints);
  });
  g_listRepaints = std::max(g_listRepaints, paints.count);
  return seconds;
}

double FillListVectors() {
  struct {
    std::vector<std::int32_t> ids;
    std::vector<double> dates;
    std::vector<std::string> names;
    std::vector<std::string> states;
  } plain;
  return Seconds([&] {
    plain.ids.reserve(kRows);
    plain.dates.reserve(kRows);
    plain.names.reserve(kRows);
    plain.states.reserve(kRows);
    for (int row = 0; row < kRows; ++row) {
      plain.ids.push_back(row);
      plain.names.push_back(StationName(row));
      plain.states.emplace_back(StatusName(row));
      plain.dates.push_back(StartDate(row));
    }
  });
}

// How many runs stand under one process; with none the runs stand at the root, the most that a picture has to lay out.
enum class Shape { kRunsAtRoot = 0, kRunsUnderProcesses = 125 };

// Calls add(parent, key, text, image) for every node, parents first; add returns what stands for the node as a parent.
template <class Parent, class Add>
void ForEachNode(Shape shape, Parent root, Add add) {
  const int runsOfProcess = static_cast<int>(shape);
  Parent process = root;
  for (int run = 0; run < kRunsOfTree; ++run) {
    if (runsOfProcess > 0 && run % runsOfProcess == 0) {
      process = add(root, "LPROC|" + std::to_string(run), "Nightly price update", "Process");
    }
    const std::string key = "LPROC|12|0|" + std::to_string(run);
    const Parent node = add(process, key, "2026-11-20 23:05:07 (Batch No." + std::to_string(run) + ")", "ProcessOk");
    for (int group = 1; group <= kGroupsOfRun; ++group) {
      add(node, key + "|" + std::to_string(group), "In progress : 05% (" + std::to_string(run) + ")",
          "User_Inprogress");
    }
  }
}

double FillTreeModel(Shape shape) {
  widgets::TreeView tree("tvMotherList");
  qt::TreePane pane(tree, {[](NodeId) {}, [](NodeId) {}, [](NodeId) {}});
  PaintCounter paints;
  for (int node = 0; node < kRowsBefore; ++node) tree.Add(NodeId::kNone, "before", "What was shown before", "Process");
  ShowInUse(pane, paints);
  const double seconds = Seconds([&] {
    tree.InBatch([&] {
      tree.Clear();
      ForEachNode(shape, NodeId::kNone,
                  [&](NodeId parent, const std::string& key, const std::string& text, const char* image) {
                    return tree.Add(parent, key, text, image);
                  });
    });
    PumpUntilPainted(paints);
  });
  g_treeRepaints = std::max(g_treeRepaints, paints.count);
  return seconds;
}

double FillTreeVectors(Shape shape) {
  struct {
    std::vector<int> parents;
    std::vector<std::string> keys;
    std::vector<std::string> texts;
    std::vector<std::string> images;
  } plain;
  constexpr std::size_t kProcesses = kRunsOfTree / static_cast<std::size_t>(Shape::kRunsUnderProcesses);
  constexpr std::size_t kNodes = std::size_t{kRunsOfTree} * (1 + kGroupsOfRun) + kProcesses;
  return Seconds([&] {
    plain.parents.reserve(kNodes);
    plain.keys.reserve(kNodes);
    plain.texts.reserve(kNodes);
    plain.images.reserve(kNodes);
    ForEachNode(shape, -1, [&](int parent, const std::string& key, const std::string& text, const char* image) {
      plain.parents.push_back(parent);
      plain.keys.push_back(key);
      plain.texts.push_back(text);
      plain.images.emplace_back(image);
      return static_cast<int>(plain.keys.size()) - 1;
    });
  });
}

// Processes that have 99 runs each, with state groups below.
void FillClosed(widgets::TreeView& tree, int runs) {
  constexpr int kRunsOfProcess = 99;
  NodeId process = NodeId::kNone;
  tree.InBatch([&] {
    for (int run = 0; run < runs; ++run) {
      if (run % kRunsOfProcess == 0) process = tree.Add(NodeId::kNone, "LPROC", "Nightly price update", "Process");
      const NodeId node = tree.Add(process, "LPROC|12", "2026-11-20 23:05:07 (Batch No.)", "ProcessOk");
      for (int group = 1; group <= kGroupsOfRun; ++group) tree.Add(node, "LPROC|12|1", "OK : 95%", "User_Ok");
    }
  });
}

// As they are opened again after a refresh: the runs, then their process.
void OpenOneByOne(widgets::TreeView& tree) {
  for (const NodeId process : tree.Children(NodeId::kNone)) {
    for (const NodeId run : tree.Children(process)) tree.SetExpanded(run, true);
    tree.SetExpanded(process, true);
  }
}

// Seconds for each run whose node is opened, to the painted picture.
double OpenNodes(void (*open)(widgets::TreeView&), int runs) {
  widgets::TreeView tree("tvMotherList");
  qt::TreePane pane(tree, {[](NodeId) {}, [](NodeId) {}, [](NodeId) {}});
  PaintCounter paints;
  FillClosed(tree, runs);
  ShowInUse(pane, paints);
  return Seconds([&] {
           open(tree);
           PumpUntilPainted(paints);
         }) /
         runs;
}

// Many nodes at once cost no more each than a few.
bool MeasureOpening(const char* what, void (*open)(widgets::TreeView&)) {
  constexpr int kFew = 2'000;
  constexpr int kMany = 20'000;
  return bench::Report(what,
                       bench::Compare([=] { return OpenNodes(open, kMany); }, [=] { return OpenNodes(open, kFew); }),
                       kLimit, {1e6, "us"});
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  bool kept = bench::Report("1,000,000 rows into the list, painted / into vectors",
                            bench::Compare(FillListModel, FillListVectors), kLimit);
  const auto compareTrees = [](Shape shape) {
    return bench::Compare([=] { return FillTreeModel(shape); }, [=] { return FillTreeVectors(shape); });
  };
  kept &= bench::Report("125,000 nodes into the tree, 200 roots, painted / into vectors",
                        compareTrees(Shape::kRunsUnderProcesses), kLimit);
  kept &= bench::Report("the same, 25,000 roots, painted / into vectors", compareTrees(Shape::kRunsAtRoot), kLimit);
  kept &= MeasureOpening("all nodes opened, each of 20,000 / each of 2,000", util::ExpandAll);
  kept &= MeasureOpening("nodes opened one by one, each of 20,000 / each of 2,000", OpenOneByOne);
  constexpr bench::Unit kTimes{1, "x "};
  kept &= bench::Report("paintings of one fill of the list / 1", {static_cast<double>(g_listRepaints), 1}, 1, kTimes);
  kept &= bench::Report("paintings of one fill of the tree / 1", {static_cast<double>(g_treeRepaints), 1}, 1, kTimes);
  return kept ? 0 : 1;
}
