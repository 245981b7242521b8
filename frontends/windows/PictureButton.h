// A push button with a picture in place of its caption.
#pragma once

#include <windows.h>

#include <optional>

#include "widgets/Control.h"
#include "windows/Ear.h"
#include "windows/Surface.h"

namespace quorvel::windows {

// Painted here: the native button draws no picture grey that is opaque in parts.
class PictureButton {
 public:
  // `name`: what a screen reader says of it, its window text.
  PictureButton(widgets::Button& model, Surface& surface, HWND parent, const wchar_t* name);

  HWND window() const { return window_; }
  // What it is asked to draw.
  void Paint(const DRAWITEMSTRUCT& item) const;

 private:
  std::optional<LRESULT> Hear(UINT message, LPARAM lParam);
  void PaintFrame(const DRAWITEMSTRUCT& item) const;
  void PaintPicture(const DRAWITEMSTRUCT& item) const;

  widgets::Button& model_;
  Surface& surface_;
  HWND window_;
  bool hot_ = false;  // the pointer is over it
  Ear ear_;
};

}  // namespace quorvel::windows
