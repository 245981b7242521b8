// Lets a script and the message loop of its thread take turns.
#pragma once

#include <windows.h>

#include <vector>

#include "windows/ProcessLogWindow.h"

namespace quorvel::scenario {

// A menu of Windows, and a control that follows the mouse, wait in loops of their own: what started them returns when
// they are over. A script must go on meanwhile, for it says what is picked. So the script and the message loop are two
// fibers of one thread, each with a stack of its own. The script hands over and gets its turn back from a timer, whose
// messages come when no others are left, whichever loop looks for them: the pump's or that of an open menu.
//
// One at a time.
class MessagePump {
 public:
  // The thread that calls it is the script's.
  MessagePump();
  // No menu may be open any more.
  ~MessagePump();
  MessagePump(const MessagePump&) = delete;
  MessagePump& operator=(const MessagePump&) = delete;

  // Whose keys are asked for before messages are translated, as hosts do.
  void Serve(windows::ProcessLogWindow& viewer) { viewers_.push_back(&viewer); }
  void Leave(windows::ProcessLogWindow& viewer) { std::erase(viewers_, &viewer); }

  // Returns when all messages were handled that are there, and those that follow from them.
  void Settle();

 private:
  static void CALLBACK Run(void* pump);
  // A timer tells it nothing about whose it is.
  static inline const MessagePump* running_ = nullptr;
  static void CALLBACK WakeScript(HWND window, UINT message, UINT_PTR timer, DWORD time);
  void Pump() const;
  bool IsTaken(const MSG& message) const;

  std::vector<windows::ProcessLogWindow*> viewers_;
  void* script_;
  void* loop_;
};

}  // namespace quorvel::scenario
