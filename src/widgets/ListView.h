// The model of a list view with columns: rows made from columns of data when they are asked for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "platform/Dates.h"
#include "widgets/Control.h"
#include "widgets/RowRanges.h"
#include "widgets/TreeView.h"

namespace quorvel::widgets {

enum class Alignment : std::int32_t { kLeft = 0, kRight = 1, kCentre = 2 };
enum class SortOrder : std::int32_t { kAscending = 0, kDescending = 1 };

// What a column holds, which decides how it sorts.
enum class ColumnTag : std::int16_t { kText = 0, kDates = 1, kNumbers = 2 };

// Width of a column for which none is set.
inline constexpr Twips kDefaultColumnWidth = 1440;

struct ColumnHeader {
  std::string caption;
  Twips width = kDefaultColumnWidth;
  Alignment alignment = Alignment::kLeft;
  ColumnTag tag = ColumnTag::kText;
  std::string icon = {};  // "" = none
  friend bool operator==(const ColumnHeader&, const ColumnHeader&) = default;
};

struct RowLook {
  SystemColour colour = SystemColour::kWindowText;
  bool bold = false;
  friend bool operator==(const RowLook&, const RowLook&) = default;
};

// Between the cells of a row that is written as one text.
inline constexpr char kCellSeparator = '\t';

// Makes key, icon and cells of a row on request; holds the data that they are made from. Immutable while a list shows
// it. Rows and columns are counted from 0 and always in range.
class RowSource {
 public:
  virtual ~RowSource() = default;
  virtual std::size_t Count() const = 0;
  // They append to `out`, so that text of many rows is gathered without a string for each.
  virtual void AppendKey(std::size_t row, std::string& out) const = 0;
  virtual void AppendCell(std::size_t row, std::size_t column, std::string& out) const = 0;
  // The first `columns` cells, parted by kCellSeparator.
  virtual void AppendRow(std::size_t row, std::size_t columns, std::string& out) const;
  // Key into the image list, "" = none; lives as long as the source.
  virtual std::string_view Icon(std::size_t row) const = 0;
  virtual RowLook Look(std::size_t /*row*/) const { return {}; }

  // What stands behind the text of a cell, for whoever would have to make a million texts to sort by them. Nothing, the
  // default, is always right and leaves the text to tell.
  //
  // The text itself, where it lies as it is shown; lives as long as the source.
  virtual std::optional<std::string_view> TextOf(std::size_t /*row*/, std::size_t /*column*/) const { return {}; }
  // The date that the cell shows together with its time of day; an empty cell may have 0 or a date that cannot be
  // shown.
  virtual std::optional<DateValue> DateOf(std::size_t /*row*/, std::size_t /*column*/) const { return {}; }
  // The number that the cell shows in decimal digits; an empty cell has 0.
  virtual std::optional<std::int32_t> NumberOf(std::size_t /*row*/, std::size_t /*column*/) const { return {}; }
};

// What stands in the upper left corner of a list.
struct ListCorner {
  std::size_t row = 0;
  Twips left = 0;  // how much of the columns is scrolled away
  friend bool operator==(const ListCorner&, const ListCorner&) = default;
};

// Draws a list. Hears of a batch of changes once, after all of them were made. Must not change the list from a call,
// but for its selection.
class ListObserver {
 public:
  virtual ~ListObserver() = default;
  // Headers and rows are new, selection included.
  virtual void ListReset() = 0;
  virtual void HeadersChanged() = 0;
  // The same rows stand in another order; selection, icons and looks went with them.
  virtual void RowsReordered() = 0;
  // Icon or look of rows within this range changed.
  virtual void RowsChanged(RowRange rows) = 0;
  virtual void ListSelectionChanged() = 0;
  // The list is to be scrolled to this corner.
  virtual void ListScrolled(const ListCorner& corner) = 0;
  virtual ListCorner CornerInSight() const = 0;
};

// Rows are counted from 0 as they are shown, whatever their order in the source; a row that does not exist is error 9.
class ListView : public Control {
 public:
  using Control::Control;

  void ObserveList(ListObserver* observer) { observer_ = observer; }

  // Runs `body`, whose changes are told once when the outermost batch ends, by an exception too.
  template <class Body>
  void InBatch(Body&& body) {
    ++batchDepth_;
    try {
      std::forward<Body>(body)();
    } catch (...) {
      --batchDepth_;
      Settle();
      throw;
    }
    --batchDepth_;
    Settle();
  }

  const std::vector<ColumnHeader>& headers() const { return headers_; }
  void SetHeaders(std::vector<ColumnHeader> headers);
  void SetHeaderWidth(std::size_t column, Twips width);

  // Shows the rows of `rows` (null = none) in their order; selection, marks and changed icons of the rows before go.
  // The list's own sorting is off then, and no header has an icon.
  void SetRows(std::shared_ptr<const RowSource> rows);
  std::size_t Count() const { return rows_ ? rows_->Count() : 0; }

  // Shows the rows in another order: for each place the row that stands in `rows` there, every row once. Selection,
  // marks and changed icons go with their rows. Error 5 for another number of rows.
  void Reorder(std::vector<std::uint32_t> rows);
  // Where an existing row stands in the source.
  std::size_t SourceRow(std::size_t row) const { return order_.empty() ? row : order_[row]; }

  std::string Key(std::size_t row) const;
  // Error 9 for a column without a header too.
  std::string Cell(std::size_t row, std::size_t column) const;
  // For many rows and cells: append to `out` and check nothing; row and column must exist.
  void AppendKey(std::size_t row, std::string& out) const { rows_->AppendKey(SourceRow(row), out); }
  void AppendCell(std::size_t row, std::size_t column, std::string& out) const {
    rows_->AppendCell(SourceRow(row), column, out);
  }
  // All cells of a row that have a header, parted by kCellSeparator.
  void AppendRow(std::size_t row, std::string& out) const { rows_->AppendRow(SourceRow(row), headers_.size(), out); }
  // What stands behind the text of a cell, where the source tells; they check nothing either. A text is valid until the
  // list gets other rows.
  std::optional<std::string_view> TextOf(std::size_t row, std::size_t column) const {
    return rows_->TextOf(SourceRow(row), column);
  }
  std::optional<DateValue> DateOf(std::size_t row, std::size_t column) const {
    return rows_->DateOf(SourceRow(row), column);
  }
  std::optional<std::int32_t> NumberOf(std::size_t row, std::size_t column) const {
    return rows_->NumberOf(SourceRow(row), column);
  }
  // Valid until the list changes.
  std::string_view Icon(std::size_t row) const;
  RowLook Look(std::size_t row) const;
  // The first row of that key. Looks at one row after the other.
  std::optional<std::size_t> RowOfKey(std::string_view key) const;

  // Single changes lie over the source's rows.
  void SetIcon(std::size_t row, std::string_view icon);
  void SetLook(std::size_t row, RowLook look);

  // The selected rows, and among them the one that commands act on.
  const RowRanges& Selection() const { return selection_; }
  std::optional<std::size_t> SelectedItem() const { return selectedItem_; }
  // Replaces the selection. The selected item is `item`, else the first selected row, else none.
  void SetSelection(RowRanges selection, std::optional<std::size_t> item = std::nullopt);

  // The corner in sight, which the observer knows. Other rows are seen from their beginning.
  ListCorner Corner() const { return observer_ == nullptr ? corner_ : observer_->CornerInSight(); }
  void ScrollTo(ListCorner corner);

  // The sort key counts columns from 0. They say how the rows are sorted when sorting is on.
  std::int32_t sortKey() const { return sortKey_; }
  void SetSortKey(std::int32_t column) { sortKey_ = column; }
  SortOrder sortOrder() const { return sortOrder_; }
  void SetSortOrder(SortOrder order) { sortOrder_ = order; }
  bool sorted() const { return sorted_; }
  void SetSorted(bool sorted) { sorted_ = sorted; }

 private:
  struct Overlay {
    std::optional<std::string> icon;
    std::optional<RowLook> look;
  };
  struct Pending {
    bool reset = false;
    bool headers = false;
    bool order = false;
    bool selection = false;
    bool scrolled = false;
    std::optional<RowRange> rows;
  };

  void RequireRow(std::size_t row) const;
  void MoveSelection(const std::vector<std::uint32_t>& rows);
  void NoteRow(std::size_t row);
  // Outside batches: tells what is pending.
  void Settle();
  void Tell(const Pending& told);

  std::vector<ColumnHeader> headers_;
  std::shared_ptr<const RowSource> rows_;
  std::vector<std::uint32_t> order_;                  // the source's row at each place; empty = as in the source
  std::unordered_map<std::size_t, Overlay> overlay_;  // by row of the source
  RowRanges selection_;
  std::optional<std::size_t> selectedItem_;
  ListCorner corner_;  // where it was scrolled to last
  std::int32_t sortKey_ = 0;
  SortOrder sortOrder_ = SortOrder::kAscending;
  bool sorted_ = false;

  ListObserver* observer_ = nullptr;
  int batchDepth_ = 0;
  Pending pending_;
};

}  // namespace quorvel::widgets
