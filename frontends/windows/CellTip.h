// The tool tip of the cell under the pointer.
#pragma once

#include <windows.h>

#include <cstddef>
#include <functional>
#include <optional>
#include <string>

#include "windows/Handles.h"

namespace quorvel::windows {

class CellTip {
 public:
  struct Cell {
    std::size_t row = 0;
    std::size_t column = 0;
    friend bool operator==(const Cell&, const Cell&) = default;
  };
  // `text`: what there is to say of a cell, "" = nothing.
  CellTip(HWND list, std::function<std::wstring(const Cell&)> text);

  // The pointer is over a cell, which lies there, or over none.
  void PointAt(const std::optional<Cell>& cell, const RECT& place);
  // The list got a message of the mouse.
  void Relay(UINT message, WPARAM wParam, LPARAM lParam);
  // Whether a notification that the list got was the tip's.
  bool Notify(NMHDR& header);
  void SetLook(HFONT font, int width);

 private:
  HWND list_;
  std::function<std::wstring(const Cell&)> text_;
  UniqueWindow tip_;
  std::optional<Cell> cell_;
  std::wstring shown_;  // which the tip reads while it is up
};

}  // namespace quorvel::windows
