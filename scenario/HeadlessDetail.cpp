#include "scenario/HeadlessDetail.h"

#include <algorithm>

#include "scenario/ViewerControls.h"

namespace quorvel::scenario {

bool HeadlessDetail::Has(const widgets::Control& control) const {
  return std::ranges::count(DetailControls(c_), &control) > 0;
}

void HeadlessDetail::Press(const widgets::Button& button) {
  if (&button == &c_.cmdPrevious) detail_.cmdPrevious_Click();
  if (&button == &c_.cmdNext) detail_.cmdNext_Click();
  if (&button == &c_.cmdCopytoClipboard) detail_.cmdCopytoClipboard_Click();
  if (&button == &c_.cmdClose) detail_.cmdClose_Click();
}

void HeadlessDetail::Press(const Key& key) {
  if (key == Key{.code = KeyCode::kEnter}) detail_.cmdClose_Click();
  if (key == Key{.code = KeyCode::kEscape}) detail_.Form_KeyDown(27);
  if (key == Key{.code = KeyCode::kPageUp}) detail_.Form_KeyDown(33);
  if (key == Key{.code = KeyCode::kPageDown}) detail_.Form_KeyDown(34);
}

}  // namespace quorvel::scenario
