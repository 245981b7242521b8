#include "scenario/ViewerControls.h"

#include <algorithm>
#include <string>

#include "scenario/Script.h"

namespace quorvel::scenario {

std::vector<PlacedControl> PlacedControls(ProcessLogControls& c) {
  std::vector<PlacedControl> placed{
      {&c.fraProcessLog, nullptr}, {&c.sstProcessLog, &c.fraProcessLog}, {&c.fraOption, &c.fraProcessLog}};
  for (widgets::Control* option : std::initializer_list<widgets::Control*>{
           &c.lblState, &c.cboState, &c.lblDate, &c.dtpDate, &c.dtpHour, &c.lblDuring, &c.txtDuring, &c.updDuring,
           &c.cboDuringUnit, &c.lblPeriodEnd, &c.chkCommunicationsFilter, &c.chkGroupByDay, &c.chkAlarmFilter,
           &c.lblGroupBy, &c.lstGroupBy, &c.updGroupBy, &c.cmdRefresh}) {
    placed.push_back({option, &c.fraOption});
  }
  placed.push_back({&c.fraList, &c.fraProcessLog});
  for (widgets::Control* pane :
       std::initializer_list<widgets::Control*>{&c.tvMotherList, &c.lvMotherList, &c.imgSplitter, &c.picSplitter}) {
    placed.push_back({pane, &c.fraList});
  }
  for (widgets::Control* bar : std::initializer_list<widgets::Control*>{&c.HScroll, &c.VScroll, &c.fraCorner}) {
    placed.push_back({bar, nullptr});
  }
  return placed;
}

PlacedControl ControlNamed(ProcessLogControls& controls, std::string_view name) {
  const std::vector<PlacedControl> placed = PlacedControls(controls);
  const auto found =
      std::ranges::find_if(placed, [&](const PlacedControl& each) { return each.control->name() == name; });
  if (found == placed.end()) throw ScriptError("No such control: " + std::string(name));
  return *found;
}

std::vector<widgets::Control*> DetailControls(dlgLVDetailControls& c) {
  return {&c.lblTitle,  &c.lblDateStart, &c.lblDateStartValue, &c.lblDateEnd,         &c.lblDateEndValue,
          &c.rtbDetail, &c.cmdPrevious,  &c.cmdNext,           &c.cmdCopytoClipboard, &c.cmdClose};
}

const widgets::Control* PaneNamed(const ProcessLogControls& controls, std::string_view name) {
  if (name == "tree") return &controls.tvMotherList;
  if (name == "list") return &controls.lvMotherList;
  throw ScriptError("No such pane: " + std::string(name));
}

}  // namespace quorvel::scenario
