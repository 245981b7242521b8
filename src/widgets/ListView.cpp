#include "widgets/ListView.h"

#include <algorithm>

#include "platform/Error.h"

namespace quorvel::widgets {

void RowSource::AppendRow(std::size_t row, std::size_t columns, std::string& out) const {
  for (std::size_t column = 0; column < columns; ++column) {
    if (column > 0) out.push_back(kCellSeparator);
    AppendCell(row, column, out);
  }
}

void ListView::RequireRow(std::size_t row) const {
  if (row >= Count()) throw Error(SystemError::kIndexOutOfRange, name() + " has no such row");
}

void ListView::SetHeaders(std::vector<ColumnHeader> headers) {
  if (headers == headers_) return;
  headers_ = std::move(headers);
  pending_.headers = true;
  Settle();
}

void ListView::SetHeaderWidth(std::size_t column, Twips width) {
  if (column >= headers_.size()) throw Error(SystemError::kIndexOutOfRange, name() + " has no such column");
  if (headers_[column].width == width) return;
  headers_[column].width = width;
  pending_.headers = true;
  Settle();
}

void ListView::SetRows(std::shared_ptr<const RowSource> rows) {
  rows_ = std::move(rows);
  order_ = {};
  sorted_ = false;
  for (ColumnHeader& header : headers_) header.icon.clear();
  overlay_.clear();
  selection_.Clear();
  selectedItem_.reset();
  corner_ = {};
  pending_.scrolled = false;
  pending_.reset = true;
  Settle();
}

void ListView::Reorder(std::vector<std::uint32_t> rows) {
  if (rows.size() != Count()) throw Error(SystemError::kInvalidCall, name() + " has another number of rows");
  if (std::ranges::is_sorted(rows)) return;
  MoveSelection(rows);
  for (std::uint32_t& row : rows) row = static_cast<std::uint32_t>(SourceRow(row));
  order_ = std::move(rows);
  pending_.order = true;
  Settle();
}

void ListView::MoveSelection(const std::vector<std::uint32_t>& rows) {
  if (selectedItem_) {
    selectedItem_ = static_cast<std::size_t>(std::ranges::find(rows, *selectedItem_) - rows.begin());
  }
  if (selection_.empty()) return;
  std::vector<bool> selected(rows.size());
  for (const RowRange range : selection_.ranges()) {
    std::fill(selected.begin() + static_cast<std::ptrdiff_t>(range.first),
              selected.begin() + static_cast<std::ptrdiff_t>(range.last), true);
  }
  selection_.Clear();
  std::size_t first = 0;  // of the selected rows that end before this one
  for (std::size_t row = 0; row <= rows.size(); ++row) {
    if (row < rows.size() && selected[rows[row]]) continue;
    selection_.Add({first, row});
    first = row + 1;
  }
}

std::string ListView::Key(std::size_t row) const {
  RequireRow(row);
  std::string key;
  rows_->AppendKey(SourceRow(row), key);
  return key;
}

std::string ListView::Cell(std::size_t row, std::size_t column) const {
  RequireRow(row);
  if (column >= headers_.size()) throw Error(SystemError::kIndexOutOfRange, name() + " has no such column");
  std::string cell;
  AppendCell(row, column, cell);
  return cell;
}

std::string_view ListView::Icon(std::size_t row) const {
  RequireRow(row);
  const std::size_t source = SourceRow(row);
  const auto found = overlay_.find(source);
  if (found != overlay_.end() && found->second.icon) return *found->second.icon;
  return rows_->Icon(source);
}

RowLook ListView::Look(std::size_t row) const {
  RequireRow(row);
  const std::size_t source = SourceRow(row);
  const auto found = overlay_.find(source);
  if (found != overlay_.end() && found->second.look) return *found->second.look;
  return rows_->Look(source);
}

std::optional<std::size_t> ListView::RowOfKey(std::string_view key) const {
  std::string each;
  for (std::size_t row = 0; row < Count(); ++row) {
    each.clear();
    rows_->AppendKey(SourceRow(row), each);
    if (each == key) return row;
  }
  return std::nullopt;
}

void ListView::SetIcon(std::size_t row, std::string_view icon) {
  RequireRow(row);
  if (Icon(row) == icon) return;
  overlay_[SourceRow(row)].icon = icon;
  NoteRow(row);
  Settle();
}

void ListView::SetLook(std::size_t row, RowLook look) {
  RequireRow(row);
  if (Look(row) == look) return;
  overlay_[SourceRow(row)].look = look;
  NoteRow(row);
  Settle();
}

void ListView::SetSelection(RowRanges selection, std::optional<std::size_t> item) {
  if (!selection.empty()) RequireRow(selection.ranges().back().last - 1);
  if (item) RequireRow(*item);
  if (!item && !selection.empty()) item = selection.ranges().front().first;
  if (selection == selection_ && item == selectedItem_) return;
  selection_ = std::move(selection);
  selectedItem_ = item;
  pending_.selection = true;
  Settle();
}

void ListView::ScrollTo(ListCorner corner) {
  RequireRow(corner.row);
  corner_ = corner;
  pending_.scrolled = true;
  Settle();
}

void ListView::NoteRow(std::size_t row) {
  const RowRange range{row, row + 1};
  pending_.rows = pending_.rows
                      ? RowRange{std::min(pending_.rows->first, range.first), std::max(pending_.rows->last, range.last)}
                      : range;
}

void ListView::Settle() {
  if (batchDepth_ > 0) return;
  const Pending told = std::exchange(pending_, {});
  if (observer_ == nullptr) return;
  Tell(told);
  if (told.scrolled) observer_->ListScrolled(corner_);
}

void ListView::Tell(const Pending& told) {
  if (told.reset) {
    observer_->ListReset();
    return;
  }
  if (told.headers) observer_->HeadersChanged();
  if (told.order) {
    observer_->RowsReordered();
    return;
  }
  if (told.rows) observer_->RowsChanged(*told.rows);
  if (told.selection) observer_->ListSelectionChanged();
}

}  // namespace quorvel::widgets
