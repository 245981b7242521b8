#include "Viewer.h"

#include <cstdio>
#include <cstdlib>
#include <string>

#include "Measure.h"
#include "qt/ListPane.h"
#include "qt/TreePane.h"

namespace quorvel::bench {

using widgets::NodeId;

void BenchPlatform::ShowMessage(std::string_view text, std::string_view title) {
  std::fprintf(stderr, "%s: %s\n", std::string(title).c_str(), std::string(text).c_str());
  std::exit(2);
}

Viewer::Viewer(const std::filesystem::path& history) : widget_(hub_, platform_) {
  widget_.tree().viewport()->installEventFilter(&treePaints_);
  widget_.list().viewport()->installEventFilter(&listPaints_);
  widget_.resize(1100, 700);
  widget_.show();
  const std::u8string path = history.u8string();
  control().p_Connect(hub_.OpenConnection("sqlite:" + std::string(path.begin(), path.end())));
  control().p_FromType(tlFromType::tlOneProcess);
  UntilPainted(treePaints_, [&] { control().m_GetLogByProcess(); });
  // The first request has read the installation's own period.
  ProcessLogControls& options = control().controls();
  options.cboState.Select(*options.cboState.RowOfText("All"));
  options.dtpDate.SetValue(DateFromCivil({2025, 11, 1}));
  options.txtDuring.SetText("24");
  options.cboDuringUnit.Select(*options.cboDuringUnit.RowOfText("Months"));
  QApplication::processEvents();
}

double Viewer::ShowProcesses() {
  return UntilPainted(treePaints_, [&] { control().m_GetLogByProcess(); });
}

double Viewer::ShowUsers() {
  return UntilPainted(treePaints_, [&] { control().m_GetLogByUser(); });
}

double Viewer::Open(NodeId node) {
  qt::TreePane& pane = widget_.tree();
  return UntilPainted(treePaints_, [&] { pane.expand(pane.nodes().IndexOf(node)); });
}

double Viewer::Click(NodeId node) {
  qt::TreePane& pane = widget_.tree();
  return UntilPainted(listPaints_, [&] { pane.setCurrentIndex(pane.nodes().IndexOf(node)); });
}

void Viewer::OpenRoots() {
  widgets::TreeView& nodes = control().controls().tvMotherList;
  nodes.InBatch([&] {
    for (const NodeId root : nodes.Children(NodeId::kNone)) nodes.SetExpanded(root, true);
  });
  QApplication::processEvents();
}

double Viewer::SortBy(std::size_t column) {
  return UntilPainted(listPaints_, [&] { control().lvMotherList_ColumnClick(column); });
}

NodeId Viewer::NodeAt(std::initializer_list<std::size_t> rows) {
  NodeId node = NodeId::kNone;
  for (const std::size_t row : rows) node = tree().Child(node, row);
  return node;
}

double Viewer::UntilPainted(PaintCounter& paints, const std::function<void()>& gesture) {
  QApplication::processEvents();
  paints.count = 0;
  return Seconds([&] {
    gesture();
    PumpUntilPainted(paints);
  });
}

}  // namespace quorvel::bench
