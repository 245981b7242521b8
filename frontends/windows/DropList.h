// Tells what the user chose from a list that drops down.
#pragma once

#include <windows.h>

#include <cstddef>
#include <functional>

#include "windows/Ear.h"

namespace quorvel::windows {

// A row counts as chosen when the list is closed by a choice, or by keys while it is closed. Rows that keys pass while
// it is open do not, and Escape brings the row back that was shown before.
class DropList {
 public:
  // `chosen` gets the row; `left`: the list was closed without a choice, and may show another row than it should.
  DropList(HWND combo, std::function<void(std::size_t)> chosen, std::function<void()> left);

  // A notification of the native control.
  void Told(UINT code);

 private:
  void Closed();

  HWND combo_;
  std::function<void(std::size_t)> chosen_;
  std::function<void()> left_;
  bool open_ = false;  // and until what closed it is through
  bool accepted_ = false;
  Ear ear_;
};

}  // namespace quorvel::windows
