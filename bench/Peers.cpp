#include "Peers.h"

#include <QStandardItemModel>
#include <QTableWidget>
#include <QTreeView>
#include <QTreeWidget>
#include <functional>
#include <optional>
#include <string>

#include "Measure.h"
#include "Memory.h"
#include "Painting.h"
#include "Viewer.h"
#include "list/StateList.h"
#include "qt/Convert.h"
#include "qt/GlyphIcon.h"
#include "qt/ListPane.h"
#include "qt/TreePane.h"
#include "tree/ProcessTree.h"

namespace quorvel::bench {
namespace {

using qt::ToQt;
using widgets::NodeId;

// Seconds from the call of `fill` to the picture of a pane that is on the screen.
template <class Pane>
double FillAndPaint(Pane& pane, const std::function<void()>& fill) {
  PaintCounter paints;
  ShowInUse(pane, paints);
  return Seconds([&] {
    fill();
    PumpUntilPainted(paints);
  });
}

// The peers of the tree are given the finished nodes: they need not count and label.
class TreePeers {
 public:
  explicit TreePeers(const widgets::TreeView& tree) : tree_(tree) {}

  double InTreeWidget() {
    QTreeWidget widget;
    widget.setHeaderHidden(true);
    widget.setUniformRowHeights(true);
    return FillAndPaint(widget, [&] {
      QList<QTreeWidgetItem*> items;
      for (const NodeId node : tree_.Children(NodeId::kNone)) items.append(WidgetItem(node));
      widget.addTopLevelItems(items);
    });
  }

  double InStandardModel() {
    QStandardItemModel model;
    QTreeView view;
    view.setHeaderHidden(true);
    view.setUniformRowHeights(true);
    return FillAndPaint(view, [&] {
      QList<QStandardItem*> items;
      for (const NodeId node : tree_.Children(NodeId::kNone)) items.append(StandardItem(node));
      model.invisibleRootItem()->appendRows(items);
      view.setModel(&model);
    });
  }

 private:
  QTreeWidgetItem* WidgetItem(NodeId node) {
    auto* const item = new QTreeWidgetItem;
    item->setText(0, ToQt(tree_.Text(node)));
    item->setIcon(0, icons_.Of(tree_.Image(node)));
    item->setData(0, Qt::UserRole, ToQt(tree_.Key(node)));
    for (const NodeId child : tree_.Children(node)) item->addChild(WidgetItem(child));
    return item;
  }

  QStandardItem* StandardItem(NodeId node) {
    auto* const item = new QStandardItem(icons_.Of(tree_.Image(node)), ToQt(tree_.Text(node)));
    item->setData(ToQt(tree_.Key(node)), Qt::UserRole);
    for (const NodeId child : tree_.Children(node)) item->appendRow(StandardItem(child));
    return item;
  }

  const widgets::TreeView& tree_;
  qt::GlyphIcons icons_;
};

double FillListPane(const list::Rows& rows) {
  widgets::ListView list("lvMotherList");
  qt::ListPane pane(list);
  return FillAndPaint(pane, [&] {
    list.InBatch([&] {
      list.SetHeaders(list::StateListHeaders());
      list.SetRows(rows);
    });
  });
}

void FillTable(const list::Rows& rows, QTableWidget& table) {
  qt::GlyphIcons icons;
  std::string cell;
  table.setRowCount(static_cast<int>(rows->Count()));
  for (std::size_t row = 0; row < rows->Count(); ++row) {
    for (int column = 0; column < table.columnCount(); ++column) {
      cell.clear();
      rows->AppendCell(row, static_cast<std::size_t>(column), cell);
      auto* const item = new QTableWidgetItem(ToQt(cell));
      if (column == 0) item->setIcon(icons.Of(rows->Icon(row)));
      table.setItem(static_cast<int>(row), column, item);
    }
  }
}

}  // namespace

void ComparePeersOfTree(const datasource::ProcessLogRecords& rows, std::int32_t count) {
  BenchPlatform platform;
  datasource::ErrorsProcess errors(platform);
  const auto append = [&](widgets::TreeView& tree) {
    tree::AppendProcessNodes(rows, count, "0123", platform, errors, tree);
  };
  widgets::TreeView finished("tvMotherList");
  append(finished);
  TreePeers peers(finished);
  const auto own = [&] {
    widgets::TreeView tree("tvMotherList");
    qt::TreePane pane(tree, {[](NodeId) {}, [](NodeId) {}, [](NodeId) {}});
    return FillAndPaint(pane, [&] { tree.InBatch([&] { append(tree); }); });
  };
  Report("  peer: the finished nodes in QTreeWidget / columns to picture",
         Compare([&] { return peers.InTreeWidget(); }, own), std::nullopt);
  Report("  peer: the same in QStandardItemModel / columns to picture",
         Compare([&] { return peers.InStandardModel(); }, own), std::nullopt);
}

void ComparePeersOfList(const datasource::ProcessLogRecords& records, std::int32_t count, double columnBytes) {
  const BenchPlatform platform;
  const list::Rows rows = list::StateListRows(records, count, "LPROC|1|0|1|1", platform);
  FillListPane(rows);
  const double own = FillListPane(rows);
  const double before = HeapInUse();
  QTableWidget table(0, static_cast<int>(list::StateListHeaders().size()));
  const double seconds = FillAndPaint(table, [&] { FillTable(rows, table); });
  Report("  peer: QTableWidget, once / columns to picture", {seconds, own}, std::nullopt);
  Report("  peer: memory of QTableWidget / columns", {HeapInUse() - before, columnBytes}, std::nullopt, kMegabytes);
}

}  // namespace quorvel::bench
