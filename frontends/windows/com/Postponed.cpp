#include "com/Postponed.h"

#include <utility>

namespace quorvel::windows {
namespace {

constexpr UINT_PTR kTimer = 1;

}  // namespace

Postponed::Postponed() : Window({}, HWND_MESSAGE) {}

// A timer, as what is called may find that it is too early still: a message that is posted again and again would keep
// the user's input away.
void Postponed::Call(std::function<void()> later) {
  later_ = std::move(later);
  SetTimer(window(), kTimer, USER_TIMER_MINIMUM, nullptr);
}

// The call may end this object.
std::optional<LRESULT> Postponed::Handle(UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/) {
  if (message != WM_TIMER) return std::nullopt;
  KillTimer(window(), kTimer);
  if (const auto later = std::exchange(later_, nullptr)) later();
  return 0;
}

}  // namespace quorvel::windows
