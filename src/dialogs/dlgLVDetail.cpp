#include "dialogs/dlgLVDetail.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "dialogs/DetailLayout.h"
#include "dialogs/DetailPage.h"

namespace quorvel {
namespace {

using datasource::Reporting;
using widgets::Twips;

// How much smaller than the list the dialog is, so that its frame stays inside.
constexpr Twips kInsideList = 270;

constexpr const char* kLineEnd = "\r\n";

void ShowDate(widgets::Label& label, widgets::Label& value, bool visible) {
  label.SetVisible(visible);
  value.SetVisible(visible);
}

std::string PageText(const dlgLVDetailControls& c) {
  std::string text = c.lblTitle.text() + kLineEnd;
  text += c.lblDateStart.text() + " " + c.lblDateStartValue.text() + kLineEnd;
  text += c.lblDateEnd.text() + " " + c.lblDateEndValue.text() + kLineEnd;
  return text + "Description: " + c.rtbDetail.text();
}

}  // namespace

dlgLVDetail::dlgLVDetail(Platform& platform, datasource::ErrorsProcess& errors, std::function<void()> moved)
    : platform_(platform), errors_(errors), moved_(std::move(moved)) {
  c_.form.SetText("History details");
  c_.form.SetLeastSize(kLeastDetailWidth, kLeastDetailHeight);
  c_.lblTitle.SetText("Step: ");
  c_.lblTitle.SetBold(true);
  c_.lblDateStart.SetText("Start:");
  c_.lblDateEnd.SetText("End:");
  c_.cmdPrevious.SetPicture("DetailPrevious");
  c_.cmdPrevious.SetToolTip("Previous entry (Page Up)");
  c_.cmdNext.SetPicture("DetailNext");
  c_.cmdNext.SetToolTip("Next entry (Page Down)");
  c_.cmdCopytoClipboard.SetPicture("DetailCopy");
  c_.cmdCopytoClipboard.SetToolTip("Copy to clipboard");
  c_.cmdClose.SetText("&Close");
}

bool dlgLVDetail::ShowLVDetail(widgets::ListView& list, Twips left, Twips top, Twips width, Twips height) {
  Reporting(errors_, "Quorvel: dlgLVDetail.ShowLVDetail()", [&] {
    list_ = &list;
    c_.form.SetBounds({left, top, width - kInsideList, height - kInsideList});
    Form_Resize(width - kInsideList, height - kInsideList);
    if (!m_SetInformations()) return Unload();
    c_.form.Show();
  });
  return c_.form.shown();
}

bool dlgLVDetail::m_SetInformations() {
  bool filled = false;
  failed_ = true;
  Reporting(errors_, "Quorvel: dlgLVDetail.m_SetInformations()", [&] {
    const auto row = list_ == nullptr ? std::nullopt : list_->SelectedItem();
    const DetailPage page = row ? ReadDetailPage(platform_, *list_, *row) : DetailPage();
    ShowDate(c_.lblDateStart, c_.lblDateStartValue, page.start.has_value());
    ShowDate(c_.lblDateEnd, c_.lblDateEndValue, page.end.has_value());
    LayOutDetail(c_);
    if (!page.detail.empty()) {
      c_.lblTitle.SetText(page.title);
      c_.lblDateStartValue.SetText(page.start.value_or(""));
      c_.lblDateEndValue.SetText(page.end.value_or(""));
      c_.rtbDetail.SetText(page.detail);
      filled = true;
    }
    failed_ = false;
  });
  // By an error too: they lead away from the row that is selected now.
  UpdateButtons();
  return filled;
}

void dlgLVDetail::UpdateButtons() {
  Reporting(errors_, "Quorvel: dlgLVDetail.UpdateButtons", [&] {
    const auto row = list_ == nullptr ? std::nullopt : list_->SelectedItem();
    c_.cmdPrevious.SetEnabled(row && *row > 0);
    c_.cmdNext.SetEnabled(row && *row + 1 < list_->Count());
  });
}

void dlgLVDetail::Move(std::ptrdiff_t by) {
  const auto row = list_ == nullptr ? std::nullopt : list_->SelectedItem();
  if (!row) return;
  // Before the first row is, as a number without sign, behind the last.
  const std::size_t next = *row + static_cast<std::size_t>(by);
  if (next >= list_->Count()) return;
  // Other rows that a host selected stay selected.
  widgets::RowRanges selection = list_->Selection();
  selection.Add({next, next + 1});
  selection.Remove({*row, *row + 1});
  list_->SetSelection(std::move(selection), next);
  m_SetInformations();
  if (moved_) moved_();
}

void dlgLVDetail::cmdPrevious_Click() {
  Reporting(errors_, "Quorvel: dlgLVDetail.cmdPrevious_Click", [&] { Move(-1); });
}

void dlgLVDetail::cmdNext_Click() {
  Reporting(errors_, "Quorvel: dlgLVDetail.cmdNext_Click", [&] { Move(+1); });
}

void dlgLVDetail::cmdCopytoClipboard_Click() {
  Reporting(errors_, "Quorvel: dlgLVDetail.cmdCopytoClipboard_Click", [&] {
    platform_.ClearClipboard();
    platform_.SetClipboardText(PageText(c_));
  });
}

void dlgLVDetail::cmdClose_Click() {
  Reporting(errors_, "Quorvel: dlgLVDetail.cmdClose_Click", [&] { Unload(); });
}

void dlgLVDetail::Unload() {
  list_ = nullptr;
  c_.form.Close();
}

bool dlgLVDetail::Form_KeyDown(std::int32_t keyCode) {
  struct FormKey {
    std::int32_t code;
    void (dlgLVDetail::*click)();
  };
  static constexpr FormKey kKeys[] = {
      {27, &dlgLVDetail::cmdClose_Click},
      {33, &dlgLVDetail::cmdPrevious_Click},
      {34, &dlgLVDetail::cmdNext_Click},
  };
  return datasource::Propagating("Quorvel: dlgLVDetail.KeyDown", [&] {
    const auto* const key = std::ranges::find(kKeys, keyCode, &FormKey::code);
    if (key == std::end(kKeys)) return false;
    (this->*key->click)();
    return true;
  });
}

void dlgLVDetail::Form_Resize(Twips width, Twips height) {
  Reporting(errors_, "Quorvel: dlgLVDetail.Form_Resize", [&] {
    widgets::Rect place = c_.form.bounds();
    place.width = std::max(width, c_.form.leastWidth());
    place.height = std::max(height, c_.form.leastHeight());
    c_.form.SetBounds(place);
    LayOutDetail(c_);
  });
}

}  // namespace quorvel
