#include "dialogs/DetailLayout.h"

namespace quorvel {
namespace {

using widgets::Twips;

constexpr Twips kMargin = 180;
constexpr Twips kGap = 120;
constexpr Twips kTitleHeight = 360;
constexpr Twips kDateHeight = 300;
constexpr Twips kDateLabelWidth = 600;
constexpr Twips kDateValueWidth = 2400;
constexpr Twips kDateGap = 330;
constexpr Twips kButtonHeight = 405;
constexpr Twips kPictureWidth = 540;
constexpr Twips kCloseWidth = 1500;

// A label and its value, where the label is visible; returns where the next one begins.
Twips PlaceDate(widgets::Label& label, widgets::Label& value, Twips left, Twips top) {
  if (!label.visible()) return left;
  label.SetBounds({left, top, kDateLabelWidth, kDateHeight});
  value.SetBounds({left + kDateLabelWidth, top, kDateValueWidth, kDateHeight});
  return value.bounds().right() + kDateGap;
}

// The row at the foot: moving and copying on the left, closing on the right.
void PlaceButtons(dlgLVDetailControls& c, Twips width, Twips top) {
  c.cmdPrevious.SetBounds({kMargin, top, kPictureWidth, kButtonHeight});
  c.cmdNext.SetBounds({c.cmdPrevious.bounds().right() + kGap / 2, top, kPictureWidth, kButtonHeight});
  c.cmdCopytoClipboard.SetBounds({c.cmdNext.bounds().right() + kMargin, top, kPictureWidth, kButtonHeight});
  c.cmdClose.SetBounds({width - kMargin - kCloseWidth, top, kCloseWidth, kButtonHeight});
}

}  // namespace

void LayOutDetail(dlgLVDetailControls& c) {
  const Twips width = c.form.bounds().width;
  const Twips height = c.form.bounds().height;
  const Twips inner = width - 2 * kMargin;
  c.lblTitle.SetBounds({kMargin, kMargin, inner, kTitleHeight});
  const Twips dates = c.lblTitle.bounds().bottom();
  const Twips behind =
      PlaceDate(c.lblDateEnd, c.lblDateEndValue, PlaceDate(c.lblDateStart, c.lblDateStartValue, kMargin, dates), dates);
  const Twips text = dates + (behind > kMargin ? kDateHeight : 0) + kGap;
  const Twips buttons = height - kMargin - kButtonHeight;
  c.rtbDetail.SetBounds({kMargin, text, inner, buttons - kMargin - text});
  PlaceButtons(c, width, buttons);
}

}  // namespace quorvel
