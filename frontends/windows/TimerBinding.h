// Keeps the time for a timer of the control.
#pragma once

#include <windows.h>

#include <functional>
#include <utility>

#include "widgets/Ranges.h"

namespace quorvel::windows {

class TimerBinding final : public widgets::ControlObserver {
 public:
  // The timer of `window` with the number `id`, which gives its WM_TIMER to `Tick`. `model` must outlive the binding.
  TimerBinding(widgets::Timer& model, HWND window, UINT_PTR id, std::function<void()> tick)
      : model_(model), window_(window), id_(id), tick_(std::move(tick)) {
    model_.Observe(this);
    TimerBinding::ControlChanged(model_);
  }
  ~TimerBinding() override {
    model_.Observe(nullptr);
    KillTimer(window_, id_);
  }
  TimerBinding(const TimerBinding&) = delete;
  TimerBinding& operator=(const TimerBinding&) = delete;

  // One that was on its way when the timer was stopped is none.
  void Tick() const {
    if (model_.enabled()) tick_();
  }

  void ControlChanged(widgets::Control& /*control*/) override {
    if (model_.enabled()) {
      SetTimer(window_, id_, static_cast<UINT>(model_.intervalMilliseconds()), nullptr);
    } else {
      KillTimer(window_, id_);
    }
  }

 private:
  widgets::Timer& model_;
  HWND window_;
  UINT_PTR id_;
  std::function<void()> tick_;
};

}  // namespace quorvel::windows
