// Says in the status bar what is being read, when that takes long.
#pragma once

#include <windows.h>

#include <chrono>
#include <optional>
#include <string>

#include "console_windows/StatusBar.h"
#include "hub/Progress.h"

namespace quorvel::console {

// A request is what happens between two looks of the program at its messages: as long as one lasts, the window answers
// nobody.
class ReadingNotice {
 public:
  // `window` gets a posted `message` as soon as messages are handled again, and calls `End` then.
  ReadingNotice(StatusBar& bar, HWND window, UINT message) : bar_(bar), window_(window), message_(message) {}

  // A request begins, unless one is going on. Where nobody says so, it begins with its first query.
  void Begin();
  // A query is at work. After 300 ms of the request the bar says so; it alone is painted, and no input is handled.
  void Show(const hub::QueryProgress& progress);
  void End();

 private:
  StatusBar& bar_;
  HWND window_;
  UINT message_;
  std::optional<std::chrono::steady_clock::time_point> since_;
  std::string shown_;
};

}  // namespace quorvel::console
