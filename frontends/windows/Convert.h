// Places and dates on their way between the library and Windows.
#pragma once

#include <windows.h>

#include <cstdint>
#include <optional>

#include "platform/Dates.h"
#include "platform/windows/WideText.h"
#include "widgets/Control.h"

namespace quorvel::windows {

// Twips and the pixels of a window, by the dots per inch at which it is drawn.
class Scale {
 public:
  Scale() = default;
  explicit Scale(UINT dotsPerInch) : dots_(static_cast<std::int64_t>(dotsPerInch)) {}

  UINT dotsPerInch() const { return static_cast<UINT>(dots_); }

  int ToPixels(widgets::Twips twips) const {
    const std::int64_t scaled = twips * dots_;
    const std::int64_t half = kTwipsPerInch / 2;
    return static_cast<int>((scaled >= 0 ? scaled + half : scaled - half) / kTwipsPerInch);
  }
  // Whole pixels come back as they were when they are converted again.
  widgets::Twips ToTwips(int pixels) const {
    const std::int64_t scaled = pixels * kTwipsPerInch;
    const std::int64_t half = dots_ / 2;
    return static_cast<widgets::Twips>((scaled >= 0 ? scaled + half : scaled - half) / dots_);
  }
  // Edges are rounded, not sizes: places that touch in twips touch on the screen.
  RECT ToPixels(const widgets::Rect& place) const {
    return {ToPixels(place.left), ToPixels(place.top), ToPixels(place.right()), ToPixels(place.bottom())};
  }
  // What is so many pixels at 96 dots per inch.
  int Of96(int pixels) const { return ToPixels(pixels * widgets::kTwipsPerPixel); }

  friend bool operator==(const Scale&, const Scale&) = default;

 private:
  static constexpr std::int64_t kTwipsPerInch = 1440;
  std::int64_t dots_ = 96;
};

// Of the monitor that shows the window, where the program tells the system that it scales itself; else of the system.
Scale ScaleOf(HWND window);

// A day with a time of day as the date and time pickers have it; nothing when the date cannot be shown.
std::optional<SYSTEMTIME> ToSystemTime(DateValue date);
DateValue FromSystemTime(const SYSTEMTIME& time);

}  // namespace quorvel::windows
