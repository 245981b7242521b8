#include "Viewer.h"

#include <algorithm>
#include <string>

#include "Measure.h"
#include "qt/ListPane.h"
#include "qt/TreePane.h"

namespace quorvel::bench {

using widgets::NodeId;

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

double Viewer::ShowConnections(bool byDay) {
  control().controls().chkGroupByDay.SetChecked(byDay);
  return UntilPainted(treePaints_, [&] { control().m_GetLogByCommunication(); });
}

double Viewer::ShowAlarms() {
  return UntilPainted(treePaints_, [&] { control().m_GetLogByAlarms(); });
}

double Viewer::ShowBackups() {
  return UntilPainted(treePaints_, [&] { control().m_GetLogByBackup(); });
}

double Viewer::ShowImport(std::int32_t import) {
  std::int32_t view = 0;
  std::int32_t passed = 0;
  return UntilPainted(treePaints_, [&] { control().m_GetLogByImports(view, import, passed); });
}

// Only its tab leads to it.
double Viewer::ShowSystemLog() {
  widgets::TabStrip& tabs = control().controls().sstProcessLog;
  const auto system = std::ranges::find(tabs.tabs(), "System", &widgets::Tab::caption);
  tabs.SetCurrent(static_cast<std::size_t>(system - tabs.tabs().begin()));
  StateFilter state = StateFilter::kAll;
  return UntilPainted(listPaints_, [&] { control().m_GetLogAll(state); });
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
