// Typing ahead in a window: the letters of WM_CHAR, in one go or after a pause.
#pragma once

#include <windows.h>

#include <string>

#include "platform/windows/WideText.h"
#include "util/TypeAhead.h"

namespace quorvel::windows {

class TypedLetters {
 public:
  // Whether `unit` completes a letter to look for with `typed`; blanks, control codes and the first halves of letters
  // do not.
  bool Type(wchar_t unit) {
    if (unit <= L' ' || unit == kDelete) return false;
    letter_ += unit;
    if (IS_HIGH_SURROGATE(unit)) return false;
    const ULONGLONG now = GetTickCount64();
    typed_.Type(FromWide(letter_), now - last_ >= GetDoubleClickTime());
    last_ = now;
    letter_.clear();
    return true;
  }
  // What was typed so far.
  const util::TypeAhead& typed() const { return typed_; }

 private:
  static constexpr wchar_t kDelete = 0x7F;

  util::TypeAhead typed_;
  std::wstring letter_;
  ULONGLONG last_ = 0;
};

}  // namespace quorvel::windows
