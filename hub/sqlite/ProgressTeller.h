// Tells the host which query runs now.
#pragma once

#include <chrono>
#include <string_view>
#include <utility>

#include "hub/Progress.h"
#include "hub/sqlite/Database.h"

namespace quorvel::hub {

// Must outlive the databases that it watches.
class ProgressTeller {
 public:
  // Whom to tell from now on, nobody with an empty `callback`, and how often at most.
  void SetCallback(ProgressCallback callback, std::chrono::milliseconds interval) {
    callback_ = std::move(callback);
    interval_ = interval;
    next_ = {};
  }

  // Has SQLite call while it works on this database, if anybody is to be told.
  void Watch(const Database& database);

  // Another query begins. `query` must live forever.
  void Begin(std::string_view query) noexcept;

 private:
  using Clock = std::chrono::steady_clock;

  static int Called(void* teller) noexcept;
  void Tell(Clock::time_point now) noexcept;

  ProgressCallback callback_;
  std::chrono::milliseconds interval_{};
  std::string_view query_;
  Clock::time_point began_;
  Clock::time_point next_;  // when to tell again, whatever query runs then
};

}  // namespace quorvel::hub
