// A window of its own over the control that opens it: a dialog.
#pragma once

#include "widgets/Control.h"

namespace quorvel::widgets {

// Its text is the caption, its place the area inside the window's frame, from the upper left corner of the control that
// opens it. Nobody waits for it: Show returns at once, and the front end keeps the window behind from taking input
// until Close. Comes up closed.
class Form : public Control {
 public:
  using Control::Control;

  bool shown() const { return shown_; }
  void Show() { Set(shown_, true); }
  void Close() { Set(shown_, false); }

  // Nobody can make the area smaller than this.
  Twips leastWidth() const { return leastWidth_; }
  Twips leastHeight() const { return leastHeight_; }
  void SetLeastSize(Twips width, Twips height) {
    Set(leastWidth_, width);
    Set(leastHeight_, height);
  }

 private:
  bool shown_ = false;
  Twips leastWidth_ = 0;
  Twips leastHeight_ = 0;
};

}  // namespace quorvel::widgets
