// The dialog "History details": one row of a list as a page, with the rows before and after it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>

#include "datasource/ErrorsProcess.h"
#include "dialogs/dlgLVDetailControls.h"
#include "platform/Platform.h"
#include "widgets/ListView.h"

namespace quorvel {

// Shows the selected item of the list; it has no place of its own, so moving in the dialog moves in the list, which is
// left at the row that was viewed last.
//
// Errors: what goes wrong is shown in one message, and the page stays as it was; Form_KeyDown alone passes errors on.
class dlgLVDetail {
 public:
  // `moved`: called after the dialog selected another row of the list. Platform and errors must outlive the dialog.
  dlgLVDetail(Platform& platform, datasource::ErrorsProcess& errors, std::function<void()> moved = {});
  ~dlgLVDetail() = default;
  dlgLVDetail(const dlgLVDetail&) = delete;
  dlgLVDetail& operator=(const dlgLVDetail&) = delete;

  dlgLVDetailControls& controls() { return c_; }
  const dlgLVDetailControls& controls() const { return c_; }

  // Opens the dialog over this rectangle, which is that of the list within its control, or makes it larger where the
  // rectangle is too small. Returns whether it is shown: not so when no row is selected, the row has nothing to show
  // beside its first cell and its dates, or it cannot be read, which was shown then. The list must stay until the
  // dialog is closed.
  bool ShowLVDetail(widgets::ListView& list, widgets::Twips left, widgets::Twips top, widgets::Twips width,
                    widgets::Twips height);

  // Fills the page from the selected item. Where that has no detail text, the texts stay as they were. Returns whether
  // there is one; false after an error too.
  bool m_SetInformations();
  // Whether the last row that was to be shown could not be read, which was told then.
  bool failed() const { return failed_; }

  // Enables what leads to another row.
  void UpdateButtons();

  // Events, called by the front end. At the end of the list there is no next row, and at its beginning no previous one.
  void cmdPrevious_Click();
  void cmdNext_Click();
  // Replaces the clipboard with the page.
  void cmdCopytoClipboard_Click();
  // Also for whatever else closes the window.
  void cmdClose_Click();
  // Escape (27), Page Up (33) and Page Down (34) do what the buttons do, enabled or not. Returns whether the key was
  // one of them, which the controls do not get then.
  bool Form_KeyDown(std::int32_t keyCode);
  // The area of the form has this size now; the least size where that is more.
  void Form_Resize(widgets::Twips width, widgets::Twips height);

 private:
  // Goes on to the row that is `by` further, if it is there.
  void Move(std::ptrdiff_t by);
  void Unload();

  Platform& platform_;
  datasource::ErrorsProcess& errors_;
  std::function<void()> moved_;
  dlgLVDetailControls c_;
  widgets::ListView* list_ = nullptr;  // while the dialog is open
  bool failed_ = false;
};

}  // namespace quorvel
