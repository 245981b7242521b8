// A row of a list as text: "icon key: cell, cell" with "!" before a row that stands out.
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <string>

#include "list/ListParts.h"

namespace quorvel::test {

// A row is written as a whole, for the clipboard, and cell by cell: both say the same.
inline void ExpectWholeRow(const list::Rows& rows, std::size_t row, std::size_t columns) {
  std::string cells;
  for (std::size_t column = 0; column < columns; ++column) {
    if (column > 0) cells.push_back(widgets::kCellSeparator);
    rows->AppendCell(row, column, cells);
  }
  std::string whole = "before ";
  rows->AppendRow(row, columns, whole);
  EXPECT_EQ(whole, "before " + cells);
}

inline std::string RowText(const list::Rows& rows, std::size_t row, const list::Headers& headers) {
  ExpectWholeRow(rows, row, headers.size());
  std::string text = rows->Look(row).bold ? "!" : "";
  text.append(rows->Icon(row)).append(" ");
  rows->AppendKey(row, text);
  for (std::size_t column = 0; column < headers.size(); ++column) {
    text.append(column == 0 ? ": " : ", ");
    rows->AppendCell(row, column, text);
  }
  return text;
}

// The captions of the headers, joined the same way.
inline std::string CaptionsText(const list::Headers& headers) {
  std::string text;
  for (const widgets::ColumnHeader& header : headers) text.append(text.empty() ? "" : ", ").append(header.caption);
  return text;
}

}  // namespace quorvel::test
