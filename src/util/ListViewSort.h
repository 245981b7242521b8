// Sorting a list by a column, as a click on its header asks for, and marking whole rows.
#pragma once

#include <cstddef>
#include <cstdint>

#include "platform/Platform.h"
#include "widgets/ListView.h"

namespace quorvel::util {

// Sorts `list` by a column, counted from 1: in the other direction when the list is sorted by it already, as its
// header shows, else ascending. Selection, marks and icons go with their rows.
//
// Columns of dates and numbers are sorted by CompareDates and CompareNumbers in a merge sort that keeps the item on the
// left while the result is 0 or less. So "ascending" shows the latest date and the greatest number first, and rows that
// are alike change places at each click. Other columns are sorted by their whole text without regard to letter case
// (see CompareTexts), and rows that are alike keep their order.
//
// Error 9 for a column that does not exist; 13, or 6 for a number beyond 32 bits, for a cell that does not convert: the
// list, its sort key and its headers stay as they were then.
void ListViewSortColumn(const Platform& platform, widgets::ListView& list, std::size_t column);

// Sorts `list` by a column, counted from 1, in this order. The same in all else.
void SortListViewBy(const Platform& platform, widgets::ListView& list, std::size_t column, widgets::SortOrder order);

// Draws the arrow of the list's sort key and sort order into the header of that column, and no other: the one of dates
// and numbers or the one of text, up where the rows as they are seen ascend. Width and caption stay.
void SortListView(widgets::ListView& list);

// Names the list whose rows the compare routines compare, and the order that they do it for, while it lives. There is
// one such sort at a time in a thread.
class CustomSort {
 public:
  // Both must outlive the sort.
  CustomSort(const Platform& platform, const widgets::ListView& list, widgets::SortOrder order);
  ~CustomSort();
  CustomSort(const CustomSort&) = delete;
  CustomSort& operator=(const CustomSort&) = delete;
};

// Compare two rows of the list that is being sorted by the cells of a column, counted from 1. Ascending: 0 when the
// first is greater, 1 when both are equal, 2 when it is less; descending: 0 when it is less, 2 when it is greater.
// Never negative; 0 when no list is being sorted.
std::int32_t CompareDates(std::size_t first, std::size_t second, std::int32_t column);
std::int32_t CompareNumbers(std::size_t first, std::size_t second, std::int32_t column);

// What the text of a cell stands for: a date as the platform reads it, a whole number. The first 21 characters count.
// 0 for an empty cell and for a column below 1; error 13 for any other text that does not convert, 6 for a number
// beyond 32 bits, 9 for a row or column that does not exist.
DateValue ListView_GetItemDate(const Platform& platform, const widgets::ListView& list, std::size_t row,
                               std::int32_t column);
std::int32_t ListView_GetItemNumber(const widgets::ListView& list, std::size_t row, std::int32_t column);

// How a row looks that is marked with these flags: the colour of window text or that of grey text, bold or not. Rows
// that failed carry both.
constexpr widgets::RowLook FullRowLook(bool colour, bool bold) {
  return {colour ? widgets::SystemColour::kWindowText : widgets::SystemColour::kGrayText, bold};
}

// Marks a row with them. Error 9 for a row that does not exist.
void SetListViewFullRowState(widgets::ListView& list, std::size_t row, bool colour, bool bold);

}  // namespace quorvel::util
