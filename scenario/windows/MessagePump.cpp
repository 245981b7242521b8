#include "scenario_windows/MessagePump.h"

#include <algorithm>
#include <stdexcept>

#include "windows/Guard.h"

namespace quorvel::scenario {

MessagePump::MessagePump() : script_(ConvertThreadToFiber(nullptr)), loop_(CreateFiber(0, &Run, this)) {
  if (script_ == nullptr || loop_ == nullptr) throw std::runtime_error("No fibers for script and message loop");
  running_ = this;
}

MessagePump::~MessagePump() {
  DeleteFiber(loop_);
  ConvertFiberToThread();
}

void MessagePump::Settle() {
  SetTimer(nullptr, 0, USER_TIMER_MINIMUM, &WakeScript);
  SwitchToFiber(loop_);
}

// Called on the stack of the loop, which stands still here until the script settles again.
void CALLBACK MessagePump::WakeScript(HWND /*window*/, UINT /*message*/, UINT_PTR timer, DWORD /*time*/) {
  KillTimer(nullptr, timer);
  SwitchToFiber(running_->script_);
}

void CALLBACK MessagePump::Run(void* pump) {
  static_cast<const MessagePump*>(pump)->Pump();
}

void MessagePump::Pump() const {
  for (MSG message; GetMessageW(&message, nullptr, 0, 0) != -1;) {
    if (IsTaken(message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

bool MessagePump::IsTaken(const MSG& message) const {
  return windows::GuardedOr(false, [&] {
    return std::ranges::any_of(viewers_, [&](windows::ProcessLogWindow* each) { return each->TakeKey(message); });
  });
}

}  // namespace quorvel::scenario
