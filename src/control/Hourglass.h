// The pointer while the control works.
#pragma once

#include "platform/Platform.h"

namespace quorvel {

// Shows the hourglass and, whatever happens, the default pointer at the end.
class Hourglass {
 public:
  explicit Hourglass(Platform& platform) : platform_(platform) { platform_.SetMousePointer(MousePointer::kHourglass); }
  ~Hourglass() {
    try {
      platform_.SetMousePointer(MousePointer::kDefault);
    } catch (...) {  // NOLINT(bugprone-empty-catch): a pointer that cannot be set is no reason to lose what was done
    }
  }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  Platform& platform_;
};

}  // namespace quorvel
