// How the control is entered: by a host that calls a method, and by a user's gesture.
#pragma once

#include <algorithm>
#include <exception>
#include <string>
#include <utility>
#include <vector>

#include "control/Hourglass.h"
#include "control/Working.h"
#include "control/ucProcessLog.h"

namespace quorvel {

// A subscriber may go, or take another with it, while it hears; one that fails keeps nobody from hearing.
template <class Event, class... Values>
void ucProcessLog::Raise(Event event, const Values&... values) {
  const std::vector<HostEvents*> hosts = subscribers_;
  std::exception_ptr failure;
  for (HostEvents* const host : hosts) {
    if (std::ranges::find(subscribers_, host) == subscribers_.end()) continue;
    try {
      (host->*event)(values...);
    } catch (...) {
      if (!failure) failure = std::current_exception();
    }
  }
  if (failure) std::rethrow_exception(failure);
}

template <class Body>
void ucProcessLog::Build(std::string_view label, Body&& body) {
  if (f_blnClickNode) {
    throw Error(static_cast<std::int32_t>(SystemError::kInvalidCall), std::string(label),
                "The viewer is at work on an earlier request");
  }
  try {
    const Working working(f_blnClickNode);
    std::forward<Body>(body)();
  } catch (...) {
    TellHost(label);
    throw;
  }
  TellHost(label);
}

template <class Body>
void ucProcessLog::Handle(std::string_view label, Body&& body) {
  if (f_blnClickNode) return;
  datasource::Reporting(errors_, label, [&] {
    const Working working(f_blnClickNode);
    const Hourglass hourglass(platform_);
    std::forward<Body>(body)();
  });
  TellHost(label);
}

}  // namespace quorvel
