// The properties of the control that are more than a store, and who hears its events.
#include <algorithm>

#include "control/Tabs.h"
#include "control/ucProcessLog.h"

namespace quorvel {

using datasource::Propagating;

void ucProcessLog::Subscribe(HostEvents& host) {
  if (std::ranges::find(subscribers_, &host) == subscribers_.end()) subscribers_.push_back(&host);
}

void ucProcessLog::Unsubscribe(HostEvents& host) {
  std::erase(subscribers_, &host);
}

std::optional<widgets::ListItem> ucProcessLog::SelectedItem() const {
  const auto row = controls_.lvMotherList.SelectedItem();
  return row ? std::optional(widgets::ListItem(controls_.lvMotherList, *row)) : std::nullopt;
}

void ucProcessLog::p_Connect(std::int32_t value) {
  if (value != f_lngConnect) labelsRead_ = periodSet_ = false;
  f_lngConnect = value;
}

void ucProcessLog::p_FromType(tlFromType value) {
  Propagating("Quorvel: ucProcessLog.p_FromType", [&] {
    f_tlFromType = value;
    OfferTabs();
  });
}

// The value is not looked at: hosts pass either, and mean this.
void ucProcessLog::p_TabStripVisible(bool /*value*/) {
  Propagating("Quorvel: ucProcessLog.p_TabStripVisible", [&] {
    widgets::TabStrip& tabs = controls_.sstProcessLog;
    RestoreTabName();
    tabs.SetCaption(tabs.current(), NameOf(View::kProcesses));
    tabsReduced_ = true;
    OfferTabs();
  });
}

// Options belong to a tab: those of the one that is current then are shown.
void ucProcessLog::OfferTabs() {
  widgets::TabStrip& tabs = controls_.sstProcessLog;
  const std::size_t before = tabs.current();
  RestoreTabName();
  ShowTabs(tabs, f_tlFromType, tabsReduced_, tabChosen_);
  if (tabs.current() != before) ShowOptionsOfTab();
}

std::int32_t ucProcessLog::p_ListCount() const {
  return static_cast<std::int32_t>(controls_.lvMotherList.Count());
}

}  // namespace quorvel
