// Where the controls of the detail dialog lie, at every size and with any dates.
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "dialogs/DetailLayout.h"
#include "dialogs/dlgLVDetail.h"
#include "support/RecordingPlatform.h"

namespace quorvel {
namespace {

using widgets::Control;
using widgets::Rect;

bool Overlap(const Rect& a, const Rect& b) {
  return a.left < b.right() && b.left < a.right() && a.top < b.bottom() && b.top < a.bottom();
}

class DetailLayoutTest : public testing::Test {
 protected:
  void ShowDates(bool start, bool end) {
    c.lblDateStart.SetVisible(start);
    c.lblDateStartValue.SetVisible(start);
    c.lblDateEnd.SetVisible(end);
    c.lblDateEndValue.SetVisible(end);
  }
  std::vector<const Control*> VisibleControls() const {
    std::vector<const Control*> controls{&c.lblTitle,           &c.lblDateStart, &c.lblDateStartValue, &c.lblDateEnd,
                                         &c.lblDateEndValue,    &c.rtbDetail,    &c.cmdPrevious,       &c.cmdNext,
                                         &c.cmdCopytoClipboard, &c.cmdClose};
    std::erase_if(controls, [](const Control* each) { return !each->visible(); });
    return controls;
  }
  void ExpectOrder() {
    const Rect form{0, 0, c.form.bounds().width, c.form.bounds().height};
    const auto controls = VisibleControls();
    for (const Control* const each : controls) {
      const Rect& place = each->bounds();
      EXPECT_TRUE(place.width > 0 && place.height > 0) << each->name();
      EXPECT_TRUE(place.left >= 0 && place.top >= 0) << each->name();
      EXPECT_TRUE(place.right() <= form.width && place.bottom() <= form.height) << each->name();
      for (const Control* const other : controls) {
        EXPECT_TRUE(each == other || !Overlap(place, other->bounds())) << each->name() << " " << other->name();
      }
    }
  }

  test::RecordingPlatform platform;
  datasource::ErrorsProcess errors{platform};
  dlgLVDetail dialog{platform, errors};
  dlgLVDetailControls& c = dialog.controls();
};

TEST_F(DetailLayoutTest, EverythingLiesInTheFormAndBesideTheOthers) {
  for (const bool start : {false, true}) {
    for (const bool end : {false, true}) {
      ShowDates(start, end);
      for (const auto& [width, height] :
           {std::pair{-270, 0}, std::pair{kLeastDetailWidth, kLeastDetailHeight}, std::pair{9001, 60000}}) {
        dialog.Form_Resize(width, height);
        ExpectOrder();
      }
    }
  }
}

TEST_F(DetailLayoutTest, TheTextTakesTheFreeSpace) {
  dialog.Form_Resize(9000, 6000);
  const Rect before = c.rtbDetail.bounds();
  dialog.Form_Resize(9500, 7000);
  EXPECT_EQ(c.rtbDetail.bounds(), (Rect{before.left, before.top, before.width + 500, before.height + 1000}));
  ShowDates(false, false);
  dialog.Form_Resize(9500, 7000);
  EXPECT_LT(c.rtbDetail.bounds().top, before.top);
}

}  // namespace
}  // namespace quorvel
