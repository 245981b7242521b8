// What mouse and keyboard do to the detail dialog where no widgets are: the same as a front end's.
#pragma once

#include "dialogs/dlgLVDetail.h"
#include "scenario/Keys.h"

namespace quorvel::scenario {

class HeadlessDetail {
 public:
  // Which must outlive it.
  explicit HeadlessDetail(dlgLVDetail& detail) : detail_(detail), c_(detail.controls()) {}

  bool open() const { return c_.form.shown(); }
  const std::string& caption() const { return c_.form.text(); }
  // Whether the control is one of the dialog's.
  bool Has(const widgets::Control& control) const;

  void Press(const widgets::Button& button);
  // Keys without a meaning for the dialog scroll the text at most.
  void Press(const Key& key);
  void Resize(int width, int height) {
    detail_.Form_Resize(width * widgets::kTwipsPerPixel, height * widgets::kTwipsPerPixel);
  }

 private:
  dlgLVDetail& detail_;
  dlgLVDetailControls& c_;
};

}  // namespace quorvel::scenario
