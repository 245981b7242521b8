// How errors travel: passed upward with a label for each procedure, shown and logged once at an entry point.
#pragma once

#include <cstdint>
#include <string_view>
#include <utility>

#include "platform/Error.h"
#include "platform/Platform.h"

namespace quorvel::datasource {

// The title of message boxes that are no errors.
inline constexpr std::string_view kProductTitle = "Vendrix Ostrana";

// Raises the error being handled again, with "label, line end, tab" in front of its source. Called only while an
// exception is handled; anything that is not an Error yet becomes one here (see CurrentError).
[[noreturn]] void PropagateError(std::string_view label);

// The help file that PropagateError gives to errors without one, in this thread; "" = none.
void SetHelpFile(std::string_view path);

class ErrorsProcess {
 public:
  // `platform` must outlive this object.
  explicit ErrorsProcess(Platform& platform) : platform_(&platform) {}

  // Shows the error being handled in one message box and appends it to the log. Object error + 516 was reported before:
  // nothing happens. Object error + 525 gives the message that another user is modifying the data, and no log record.
  // Never raises.
  void ProcessError(std::int32_t number, std::string_view label, std::string_view description) noexcept;

  // The same for the error being handled, by its own number and description.
  void ProcessCurrentError(std::string_view label) noexcept;

  // Only the log record, for procedures that give their default instead of an error and have nothing to show.
  void LogCurrentError(std::string_view label) noexcept;

 private:
  Platform* platform_;
};

// The trap of every procedure that is no entry point: what `body` raises goes on to the caller with the label.
template <class Body>
decltype(auto) Propagating(std::string_view label, Body&& body) {
  try {
    return std::forward<Body>(body)();
  } catch (...) {
    PropagateError(label);
  }
}

// The trap of an entry point: what `body` raises is shown and logged, and the action ends there.
template <class Body>
void Reporting(ErrorsProcess& errors, std::string_view label, Body&& body) noexcept {
  try {
    std::forward<Body>(body)();
  } catch (...) {
    errors.ProcessCurrentError(label);
  }
}

// The trap of a procedure that has nobody to tell: what `body` raises is logged without a message.
template <class Body>
void Logging(ErrorsProcess& errors, std::string_view label, Body&& body) noexcept {
  try {
    std::forward<Body>(body)();
  } catch (...) {
    errors.LogCurrentError(label);
  }
}

// The same for a procedure that then answers with its default.
template <class Result, class Body>
Result Logging(ErrorsProcess& errors, std::string_view label, Result fallback, Body&& body) noexcept {
  Logging(errors, label, [&] { fallback = std::forward<Body>(body)(); });
  return fallback;
}

}  // namespace quorvel::datasource
