// Mouse and keyboard input as native controls get it from a user.
#pragma once

#include <windows.h>

#include <string_view>

#include "control/Enumerations.h"
#include "scenario/Keys.h"
#include "scenario/ScenarioPort.h"
#include "scenario_windows/MessagePump.h"

namespace quorvel::scenario {

// Input of one thread's windows. Places are pixels within the window. All returns when what follows was done.
//
// It is posted, so that it is handled in a message loop, and nobody else's mouse or keyboard comes in between.
class Input {
 public:
  explicit Input(MessagePump& pump) : pump_(pump) {}

  void Press(HWND window, POINT at);
  // The left button is held, and let go.
  void Drag(HWND window, POINT to);
  void Release(HWND window, POINT at);
  void Click(HWND window, POINT at, MouseButton button = MouseButton::kLeft, Held held = Held::kNothing);
  void DoubleClick(HWND window, POINT at);

  void PressKey(HWND window, const Key& key);
  void PressKey(HWND window, WORD virtualKey);
  // Letter by letter, at once.
  void Type(HWND window, std::wstring_view text);

  // Parts of a gesture, handled with what comes next.
  void PostKey(HWND window, WORD virtualKey);
  void PostText(HWND window, std::wstring_view text);

 private:
  MessagePump& pump_;
};

}  // namespace quorvel::scenario
