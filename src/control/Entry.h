// How the control is entered: by a host that calls a method, and by a user's gesture.
#pragma once

#include <string>
#include <utility>

#include "control/Hourglass.h"
#include "control/Working.h"
#include "control/ucProcessLog.h"

namespace quorvel {

template <class Body>
void ucProcessLog::Build(std::string_view label, Body&& body) {
  if (f_blnClickNode) {
    throw Error(static_cast<std::int32_t>(SystemError::kInvalidCall), std::string(label),
                "The viewer is at work on an earlier request");
  }
  const Working working(f_blnClickNode);
  std::forward<Body>(body)();
}

template <class Body>
void ucProcessLog::Handle(std::string_view label, Body&& body) {
  if (f_blnClickNode) return;
  datasource::Reporting(errors_, label, [&] {
    const Working working(f_blnClickNode);
    const Hourglass hourglass(platform_);
    std::forward<Body>(body)();
  });
}

}  // namespace quorvel
