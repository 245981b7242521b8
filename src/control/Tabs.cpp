#include "control/Tabs.h"

#include <cstddef>
#include <string_view>

#include "control/Routing.h"

namespace quorvel {
namespace {

// The tab after which a view is named; where a host builds what tabs do not, that of what it builds.
std::string_view OwnTab(tlFromType fromType, View view) {
  if (view != View::kNone) return NameOf(view);
  return NameOf(fromType == tlFromType::tlAllImports ? View::kProcesses : View::kAlarms);
}

bool IsOffered(std::size_t tab, bool reduced) {
  constexpr std::size_t kFirstReduced = 1;
  constexpr std::size_t kLastReduced = 3;
  return !reduced || tab < kFirstReduced || tab > kLastReduced;
}

// Whether a tab is the one, of those that build the same view, to show.
bool StandsForItsView(const std::vector<widgets::Tab>& tabs, std::size_t tab, tlFromType fromType, bool reduced) {
  const View view = ViewOfTab(fromType, tabs[tab].caption);
  const std::string_view own = OwnTab(fromType, view);
  for (std::size_t other = 0; other < tabs.size(); ++other) {
    if (other == tab || !IsOffered(other, reduced) || ViewOfTab(fromType, tabs[other].caption) != view) continue;
    // Of several that carry the name, or none, the first.
    const bool otherOwn = tabs[other].caption == own;
    const bool thisOwn = tabs[tab].caption == own;
    if (otherOwn != thisOwn ? otherOwn : other < tab) return false;
  }
  return true;
}

}  // namespace

std::vector<widgets::Tab> AllTabs() {
  return {{"Processes"}, {"Users"}, {"Connections"}, {"System"}, {"Alarms"}, {"Backups"}};
}

void ShowTabs(widgets::TabStrip& strip, tlFromType fromType, bool reduced, bool keepCurrent) {
  const std::vector<widgets::Tab>& tabs = strip.tabs();
  std::size_t firstShown = tabs.size();
  for (std::size_t tab = 0; tab < tabs.size(); ++tab) {
    const bool shown = IsOffered(tab, reduced) && StandsForItsView(tabs, tab, fromType, reduced);
    strip.SetTabVisible(tab, shown);
    if (shown && firstShown == tabs.size()) firstShown = tab;
  }
  if (!(keepCurrent && tabs[strip.current()].visible)) strip.SetCurrent(firstShown);
}

}  // namespace quorvel
