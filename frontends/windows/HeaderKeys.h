// The header of a list for the keyboard: one goes along its captions, sorts by them, and widens columns.
#pragma once

#include <windows.h>

#include <functional>
#include <optional>

#include "windows/Ear.h"

namespace quorvel::windows {

// With the focus: Left, Right, Home and End choose a column, Space and Enter click it, Ctrl+Left and Ctrl+Right make it
// narrower and wider, Down goes to the rows.
class HeaderKeys {
 public:
  // `click`: on a column, counted from 0.
  HeaderKeys(HWND header, HWND list, std::function<void(int)> click);

 private:
  std::optional<LRESULT> Hear(UINT message, WPARAM wParam, LPARAM lParam);
  bool TakeKey(WPARAM key);
  bool Widen(WPARAM key);
  void Choose(int column);
  int Column() const;
  void Frame() const;

  HWND header_;
  HWND list_;
  std::function<void(int)> click_;
  int column_ = 0;
  Ear ear_;
};

}  // namespace quorvel::windows
