// The layout at every size: nothing lies over anything else, nothing lies outside of what it is in.
#include "control/Layout.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "control/Options.h"
#include "control/Tabs.h"

namespace quorvel {
namespace {

using widgets::Control;
using widgets::Rect;
using widgets::Twips;

bool Overlap(const Rect& a, const Rect& b) {
  return a.left < b.right() && b.left < a.right() && a.top < b.bottom() && b.top < a.bottom();
}

// What is wrong with these, each of which is to lie in a frame of this size; "" when nothing is.
std::string Faults(const std::vector<const Control*>& controls, const Rect& frame) {
  std::string faults;
  for (std::size_t i = 0; i < controls.size(); ++i) {
    const Rect& place = controls[i]->bounds();
    if (!controls[i]->visible()) continue;
    if (place.left < 0 || place.top < 0 || place.width <= 0 || place.height <= 0 || place.right() > frame.width ||
        place.bottom() > frame.height) {
      faults += controls[i]->name() + " lies outside\n";
    }
    for (std::size_t j = 0; j < i; ++j) {
      if (controls[j]->visible() && Overlap(place, controls[j]->bounds())) {
        faults += controls[i]->name() + " lies over " + controls[j]->name() + "\n";
      }
    }
  }
  return faults;
}

TEST(Layout, KeepsEverythingApartAtAnySizeOnEveryTab) {
  ProcessLogControls c;
  c.sstProcessLog.SetTabs(AllTabs());
  c.picSplitter.SetVisible(false);
  const std::vector<const Control*> options{&c.lblState,
                                            &c.cboState,
                                            &c.lblDate,
                                            &c.dtpDate,
                                            &c.dtpHour,
                                            &c.lblDuring,
                                            &c.txtDuring,
                                            &c.updDuring,
                                            &c.cboDuringUnit,
                                            &c.lblPeriodEnd,
                                            &c.chkCommunicationsFilter,
                                            &c.chkGroupByDay,
                                            &c.chkAlarmFilter,
                                            &c.lblGroupBy,
                                            &c.lstGroupBy,
                                            &c.updGroupBy,
                                            &c.cmdRefresh};
  for (std::size_t tab = 0; tab < c.sstProcessLog.tabs().size(); ++tab) {
    c.sstProcessLog.SetCurrent(tab);
    for (const StateFilter state : {StateFilter::kAll, StateFilter::kLastExecution}) {
      ShowOptions(c, state);
      for (Twips width = 300; width < 25'000; width += 370) {
        for (const Twips height : {300, 4000, 5000, 9000}) {
          LayOutControl(c, width, height);
          const std::string at = std::string(c.sstProcessLog.currentCaption()) + ", " + std::to_string(width) + " x " +
                                 std::to_string(height) + ": ";
          ASSERT_EQ(Faults(options, c.fraOption.bounds()), "") << at;
          ASSERT_EQ(Faults({&c.sstProcessLog, &c.fraOption, &c.fraList}, c.fraProcessLog.bounds()), "") << at;
          ASSERT_EQ(Faults({&c.tvMotherList, &c.lvMotherList, &c.imgSplitter}, c.fraList.bounds()), "") << at;
        }
      }
    }
  }
}

}  // namespace
}  // namespace quorvel
