#include "windows/DropList.h"

#include <utility>

namespace quorvel::windows {
namespace {

constexpr UINT kClosed = WM_APP + 1;

}  // namespace

DropList::DropList(HWND combo, std::function<void(std::size_t)> chosen, std::function<void()> left)
    : combo_(combo),
      chosen_(std::move(chosen)),
      left_(std::move(left)),
      ear_(combo, [this](UINT message, WPARAM, LPARAM) {
        if (message != kClosed) return std::optional<LRESULT>();
        Closed();
        return std::optional<LRESULT>(0);
      }) {}

void DropList::Told(UINT code) {
  switch (code) {
    case CBN_DROPDOWN:
      open_ = true;
      accepted_ = false;
      break;
    case CBN_SELENDOK:
      accepted_ = true;
      break;
    case CBN_SELENDCANCEL:
      accepted_ = false;
      break;
    case CBN_CLOSEUP:
      // The native control is not through yet, and a choice may take long.
      PostMessageW(combo_, kClosed, 0, 0);
      break;
    case CBN_SELCHANGE:
      if (!open_) Closed();
      break;
    default:
      break;
  }
}

void DropList::Closed() {
  const bool choice = accepted_ || !open_;
  open_ = false;
  const LRESULT row = SendMessageW(combo_, CB_GETCURSEL, 0, 0);
  (choice && row >= 0) ? chosen_(static_cast<std::size_t>(row)) : left_();
}

}  // namespace quorvel::windows
