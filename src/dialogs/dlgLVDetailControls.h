// The standard controls that make up the detail dialog, by name.
#pragma once

#include "widgets/Control.h"
#include "widgets/Form.h"

namespace quorvel {

// All lie on the form, here in the order of the tab key from the text on. The form hears of keys before they do.
struct dlgLVDetailControls {
  widgets::Form form{"dlgLVDetail"};
  widgets::Label lblTitle{"lblTitle"};
  widgets::Label lblDateStart{"lblDateStart"};
  widgets::Label lblDateStartValue{"lblDateStartValue"};
  widgets::Label lblDateEnd{"lblDateEnd"};
  widgets::Label lblDateEndValue{"lblDateEndValue"};
  widgets::RichTextBox rtbDetail{"rtbDetail"};
  widgets::Button cmdPrevious{"cmdPrevious"};
  widgets::Button cmdNext{"cmdNext"};
  widgets::Button cmdCopytoClipboard{"cmdCopytoClipboard"};
  // What Enter presses where no other button has the focus.
  widgets::Button cmdClose{"cmdClose"};
};

}  // namespace quorvel
