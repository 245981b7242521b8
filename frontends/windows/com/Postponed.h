// What has to wait until the code that runs now has come to its end.
#pragma once

#include <functional>

#include "windows/Window.h"

namespace quorvel::windows {

// Calls what it was given last from the message loop, once a moment has passed. It does not when it ends before.
class Postponed final : public Window {
 public:
  Postponed();

  void Call(std::function<void()> later);

 protected:
  std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  std::function<void()> later_;
};

}  // namespace quorvel::windows
