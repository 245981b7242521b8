// How texts are painted that no state of a native control tells about.
#pragma once

#include <windows.h>

#include <functional>

namespace quorvel::scenario {

struct Painted {
  bool bold = false;
  COLORREF colour = 0;
};

// Of the first text that `paint` writes; as a new device context writes when it writes none.
Painted PaintedBy(const std::function<void(HDC)>& paint);

}  // namespace quorvel::scenario
