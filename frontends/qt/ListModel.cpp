#include "qt/ListModel.h"

#include "qt/Convert.h"
#include "qt/Guard.h"
#include "qt/ItemDelegate.h"
#include "qt/ItemLook.h"

namespace quorvel::qt {
namespace {

QVariant AlignmentOf(widgets::Alignment alignment) {
  switch (alignment) {
    case widgets::Alignment::kRight:
      return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    case widgets::Alignment::kCentre:
      return QVariant::fromValue(Qt::AlignHCenter | Qt::AlignVCenter);
    case widgets::Alignment::kLeft:
      break;
  }
  return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
}

}  // namespace

void ListModel::Reset() {
  beginResetModel();
  columns_ = list_.headers().size();
  endResetModel();
}

bool ListModel::HeadersChanged() {
  if (columns_ != list_.headers().size()) {
    Reset();
    return false;
  }
  emit headerDataChanged(Qt::Horizontal, 0, static_cast<int>(columns_) - 1);
  return true;
}

void ListModel::RowsChanged(widgets::RowRange rows) {
  if (columns_ == 0) return;
  emit dataChanged(index(static_cast<int>(rows.first), 0),
                   index(static_cast<int>(rows.last) - 1, static_cast<int>(columns_) - 1));
}

int ListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(list_.Count());
}

int ListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(columns_);
}

std::string_view ListModel::Cell(std::size_t row, std::size_t column) const {
  if (const auto text = list_.TextOf(row, column)) return *text;
  cell_.clear();
  list_.AppendCell(row, column, cell_);
  return cell_;
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  return GuardedOr(QVariant(), [&]() -> QVariant {
    if (!index.isValid()) return {};
    const auto row = static_cast<std::size_t>(index.row());
    const auto column = static_cast<std::size_t>(index.column());
    switch (role) {
      case Qt::DisplayRole:
        return ToQt(Cell(row, column));
      case kPaintedTextRole:
        return ToQt(Cell(row, column).substr(0, kPaintedBytes));
      case Qt::AccessibleTextRole:
        return SpokenText(Cell(row, column), column == 0 ? list_.Icon(row) : std::string_view());
      case Qt::DecorationRole:
        return column == 0 ? QVariant(icons_.Of(list_.Icon(row))) : QVariant();
      case Qt::TextAlignmentRole:
        return AlignmentOf(list_.headers()[column].alignment);
      case Qt::ForegroundRole:
        return ForegroundOf(list_.Look(row).colour);
      case Qt::FontRole:
        return FontOf(list_.Look(row).bold);
      default:
        return {};
    }
  });
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  return GuardedOr(QVariant(), [&]() -> QVariant {
    if (orientation != Qt::Horizontal || section < 0 || static_cast<std::size_t>(section) >= columns_) return {};
    const widgets::ColumnHeader& header = list_.headers()[static_cast<std::size_t>(section)];
    switch (role) {
      case Qt::DisplayRole:
        return ToQt(header.caption);
      case Qt::DecorationRole:
        return header.icon.empty() ? QVariant() : QVariant(icons_.Of(header.icon));
      case Qt::TextAlignmentRole:
        return AlignmentOf(header.alignment);
      default:
        return {};
    }
  });
}

}  // namespace quorvel::qt
