// The fonts of the viewer: the one that the desktop shows messages in, at the resolution of a window.
#pragma once

#include "windows/Handles.h"

namespace quorvel::windows {

class Fonts {
 public:
  explicit Fonts(UINT dotsPerInch);

  HFONT regular() const { return regular_.get(); }
  HFONT bold() const { return bold_.get(); }
  // For the head of a section.
  HFONT head() const { return head_.get(); }

  // Of a line of text.
  int lineHeight() const { return lineHeight_; }

 private:
  UniqueFont regular_;
  UniqueFont bold_;
  UniqueFont head_;
  int lineHeight_ = 0;
};

// Draws in a font as long as it lives.
class FontOn {
 public:
  FontOn(HDC dc, HFONT font) : dc_(dc), before_(SelectObject(dc, font)) {}
  ~FontOn() { SelectObject(dc_, before_); }
  FontOn(const FontOn&) = delete;
  FontOn& operator=(const FontOn&) = delete;

 private:
  HDC dc_;
  HGDIOBJ before_;
};

}  // namespace quorvel::windows
