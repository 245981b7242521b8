// Controls that hold a value within bounds: up-downs, scroll bars, date and time pickers, and the timer.
#pragma once

#include <algorithm>
#include <cstdint>

#include "platform/Dates.h"
#include "widgets/Control.h"

namespace quorvel::widgets {

// A whole number between two bounds; what is set outside them is cut to the nearer one.
class RangeControl : public Control {
 public:
  using Control::Control;

  std::int32_t value() const { return value_; }
  void SetValue(std::int32_t value) { Set(value_, std::clamp(value, minimum_, maximum_)); }

  std::int32_t minimum() const { return minimum_; }
  std::int32_t maximum() const { return maximum_; }
  // A maximum below the minimum counts as the minimum.
  void SetRange(std::int32_t minimum, std::int32_t maximum) {
    if (minimum == minimum_ && maximum == maximum_) return;
    minimum_ = minimum;
    maximum_ = std::max(minimum, maximum);
    value_ = std::clamp(value_, minimum_, maximum_);
    Changed();
  }

 private:
  std::int32_t value_ = 0;
  std::int32_t minimum_ = 0;
  std::int32_t maximum_ = 100;
};

class UpDown : public RangeControl {
 public:
  using RangeControl::RangeControl;
};

class ScrollBar : public RangeControl {
 public:
  using RangeControl::RangeControl;
  // How far a click beside the thumb goes, in the unit of the value.
  std::int32_t page() const { return page_; }
  void SetPage(std::int32_t page) { Set(page_, page); }

 private:
  std::int32_t page_ = 1;
};

// A date picker shows whole days, a time picker times of day.
class DateTimePicker : public Control {
 public:
  using Control::Control;
  DateValue value() const { return value_; }
  void SetValue(DateValue value) { Set(value_, value); }

 private:
  DateValue value_ = 0;
};

// Ticks while it is enabled; the front end, or a scenario, makes it tick.
class Timer : public Control {
 public:
  using Control::Control;
  std::int32_t intervalMilliseconds() const { return interval_; }
  void SetIntervalMilliseconds(std::int32_t interval) { Set(interval_, interval); }

 private:
  std::int32_t interval_ = 100;
};

}  // namespace quorvel::widgets
