// The rows of a list view as an item model of Qt: cells are made when they are painted.
#pragma once

#include <QAbstractTableModel>
#include <cstddef>
#include <string>
#include <string_view>

#include "qt/GlyphIcon.h"
#include "widgets/ListView.h"

namespace quorvel::qt {

class ListModel final : public QAbstractTableModel {
 public:
  // `list` must outlive the model; whoever observes it passes on what it hears.
  explicit ListModel(const widgets::ListView& list) : list_(list) {}

  // What ListObserver tells. A change in the number of columns is a reset to Qt; true when it was none.
  void Reset();
  bool HeadersChanged();
  void RowsChanged(widgets::RowRange rows);

  int rowCount(const QModelIndex& parent) const override;
  int columnCount(const QModelIndex& parent) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  // Valid until the next call.
  std::string_view Cell(std::size_t row, std::size_t column) const;

  const widgets::ListView& list_;
  std::size_t columns_ = 0;  // that Qt has heard of
  mutable GlyphIcons icons_;
  mutable std::string cell_;  // keeps its memory from cell to cell
};

}  // namespace quorvel::qt
