// Keeps the time for a timer of the control.
#pragma once

#include <QTimer>
#include <functional>

#include "qt/Guard.h"
#include "widgets/Ranges.h"

namespace quorvel::qt {

class TimerBinding final : public widgets::ControlObserver {
 public:
  // `model` must outlive the binding.
  TimerBinding(widgets::Timer& model, const std::function<void()>& tick) : model_(model) {
    timer_.setInterval(model.intervalMilliseconds());
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [tick] { Guarded(tick); });
    model_.Observe(this);
  }
  ~TimerBinding() override { model_.Observe(nullptr); }
  TimerBinding(const TimerBinding&) = delete;
  TimerBinding& operator=(const TimerBinding&) = delete;

  void ControlChanged(widgets::Control& /*control*/) override {
    if (model_.enabled()) {
      timer_.start();
    } else {
      timer_.stop();
    }
  }

 private:
  widgets::Timer& model_;
  QTimer timer_;
};

}  // namespace quorvel::qt
