// The boundary to Windows: no exception leaves a window procedure or another function that the system calls.
#pragma once

#include <windows.h>

#include <utility>

#include "platform/Error.h"
#include "platform/windows/WideText.h"

namespace quorvel::windows {

// Tells the debugger: handlers of gestures have shown what went wrong, what comes here has nobody left to tell.
inline void NoteCurrentError() noexcept {
  try {
    const Error error = CurrentError();
    OutputDebugStringW(ToWide(error.description() + " (" + std::to_string(error.number()) + ")\n").c_str());
  } catch (...) {
    OutputDebugStringW(L"An error without memory for its text\n");
  }
}

// What `body` raises ends here: the system calls through code that an exception cannot cross.
template <class Body>
void Guarded(Body&& body) noexcept {
  try {
    std::forward<Body>(body)();
  } catch (...) {
    NoteCurrentError();
  }
}

// The same, where an answer is owed: `fallback` when `body` raises.
template <class Result, class Body>
Result GuardedOr(Result fallback, Body&& body) noexcept {
  try {
    return std::forward<Body>(body)();
  } catch (...) {
    NoteCurrentError();
  }
  return fallback;
}

}  // namespace quorvel::windows
