// Which field the Tab key and the access keys of the captions lead to.
#pragma once

#include <windows.h>

#include <vector>

#include "widgets/Control.h"

namespace quorvel::windows {

class TabOrder {
 public:
  // Behind those that were added before.
  void Add(HWND field) { fields_.push_back(field); }
  // The key that is marked in this caption leads to this field; it presses one that is a button or a check box.
  void AddAccessKey(const widgets::Control& caption, HWND field) { keys_.push_back({&caption, field}); }

  // The next field, or the one before, that can take the focus; null after the last one. `from`: a field or a window
  // inside one; null: before the first field, or after the last one.
  HWND Next(HWND from, bool backwards) const;
  // In a circle; null when there is none but `from`.
  HWND NextInCircle(HWND from, bool backwards) const;
  const std::vector<HWND>& fields() const { return fields_; }
  // The field of this access key; null when no caption that is seen has it.
  HWND OfAccessKey(wchar_t letter) const;

 private:
  struct AccessKey {
    const widgets::Control* caption;
    HWND field;
  };
  std::vector<HWND> fields_;
  std::vector<AccessKey> keys_;
};

// Whether the window is seen and enabled, with all that it lies in.
bool CanTakeFocus(HWND window);

// Shows which letters are access keys and where the focus is, where the desktop hides that from who uses the mouse.
void ShowKeyMarks(HWND window);

// Gives the focus by a key: the text of a field is selected then.
void FocusByKey(HWND field);
// The same, and presses what is a button or a check box.
void PressByKey(HWND field);

}  // namespace quorvel::windows
