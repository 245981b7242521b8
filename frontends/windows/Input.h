// What input is made of.
#pragma once

#include <windows.h>

#include <windowsx.h>

namespace quorvel::windows {

// As it was when the message was sent.
inline bool IsDown(int key) {
  return GetKeyState(key) < 0;
}

// The place that a message of the mouse tells.
inline POINT PointOf(LPARAM lParam) {
  return {GET_X_LPARAM(lParam), GET_Y_LPARAM(lParam)};
}

}  // namespace quorvel::windows
