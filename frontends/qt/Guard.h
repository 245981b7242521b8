// The boundary to Qt: no exception leaves a slot or an overridden virtual function.
#pragma once

#include <QObject>
#include <utility>

#include "platform/Error.h"

namespace quorvel::qt {

// What `body` raises is written to the log of Qt and ends there: Qt calls slots and virtual functions through code that
// an exception cannot cross.
template <class Body>
void Guarded(Body&& body) noexcept {
  try {
    std::forward<Body>(body)();
  } catch (...) {
    const Error error = CurrentError();
    qWarning("%s (%d)", error.what(), error.number());
  }
}

// The same, where an answer is owed: `fallback` when `body` raises.
template <class Result, class Body>
Result GuardedOr(Result fallback, Body&& body) noexcept {
  try {
    return std::forward<Body>(body)();
  } catch (...) {
    const Error error = CurrentError();
    qWarning("%s (%d)", error.what(), error.number());
  }
  return fallback;
}

// A slot that calls `body` with what the signal carries.
template <class Sender, class Signal, class Body>
void On(Sender* sender, Signal signal, QObject* context, Body body) {
  QObject::connect(sender, signal, context,
                   [body = std::move(body)](auto&&... values) { Guarded([&] { body(values...); }); });
}

}  // namespace quorvel::qt
