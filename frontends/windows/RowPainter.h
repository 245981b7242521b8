// How a row of the list is painted: its icon, one line of text a cell, and the selection.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>

#include "widgets/ListView.h"
#include "windows/Handles.h"
#include "windows/Icons.h"

namespace quorvel::windows {

// Paints whole rows itself: native lists fill a column's first cell to the left whatever its alignment, show line
// breaks as boxes, and read every cell as far as it goes.
class RowPainter {
 public:
  // Both must outlive the painter.
  RowPainter(const widgets::ListView& list, Icons& icons) : list_(list), icons_(icons) {}

  // What rows are drawn with from now on. The font is not copied.
  void Prepare(HFONT font, const Scale& scale);

  struct Row {
    std::size_t number = 0;
    RECT place{};  // from the beginning of the first column to the end of the last one
    bool selected = false;
    bool current = false;  // where the keys are
    bool listHasFocus = false;
  };
  // `header`: the header of the list, which knows the columns.
  void Paint(HDC dc, const Row& row, HWND header);
  // The text of a cell, as much of it as a tool tip holds, where less than all of it is painted; else "".
  std::wstring TextIfCut(std::size_t row, std::size_t column, HWND header);

 private:
  void PaintCell(HDC dc, std::size_t row, std::size_t column, RECT place);
  RECT TextIn(std::size_t column, RECT place) const;
  void PaintIcon(HDC dc, const Row& row, RECT& place);
  std::string_view CellText(std::size_t row, std::size_t column);

  const widgets::ListView& list_;
  Icons& icons_;
  Scale scale_;
  HFONT plain_ = nullptr;
  UniqueFont bold_;
  std::string cell_;  // keeps its memory from cell to cell
};

}  // namespace quorvel::windows
