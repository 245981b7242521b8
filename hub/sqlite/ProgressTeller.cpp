#include "hub/sqlite/ProgressTeller.h"

namespace quorvel::hub {
namespace {

// Steps of SQLite's machine between two calls: about a millisecond, and so many that the calls cost nothing.
constexpr int kStepsAtOnce = 10'000;

}  // namespace

void ProgressTeller::Watch(const Database& database) {
  database.CallWhileWorking(kStepsAtOnce, callback_ ? &Called : nullptr, this);
}

void ProgressTeller::Begin(std::string_view query) noexcept {
  if (!callback_) return;
  query_ = query;
  began_ = Clock::now();
  Tell(began_);
}

int ProgressTeller::Called(void* teller) noexcept {
  constexpr int kGoOn = 0;
  static_cast<ProgressTeller*>(teller)->Tell(Clock::now());
  return kGoOn;
}

void ProgressTeller::Tell(Clock::time_point now) noexcept {
  if (now < next_) return;
  next_ = now + interval_;
  try {
    callback_({query_, std::chrono::duration_cast<std::chrono::milliseconds>(now - began_)});
  } catch (...) {  // NOLINT(bugprone-empty-catch): an answer is not lost because nobody could be told of it
  }
}

}  // namespace quorvel::hub
