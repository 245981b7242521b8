#include "widgets/TabStrip.h"

#include <utility>

#include "platform/Error.h"

namespace quorvel::widgets {

Tab& TabStrip::At(std::size_t tab) {
  if (tab >= tabs_.size()) throw Error(SystemError::kIndexOutOfRange, name() + " has no such tab");
  return tabs_[tab];
}

void TabStrip::SetTabs(std::vector<Tab> tabs) {
  tabs_ = std::move(tabs);
  current_ = 0;
  Changed();
}

void TabStrip::SetCurrent(std::size_t tab) {
  At(tab);
  Set(current_, tab);
}

std::string_view TabStrip::currentCaption() const {
  return tabs_.empty() ? std::string_view() : std::string_view(tabs_[current_].caption);
}

void TabStrip::SetCaption(std::size_t tab, std::string_view caption) {
  Set(At(tab).caption, std::string(caption));
}

void TabStrip::SetTabVisible(std::size_t tab, bool visible) {
  Set(At(tab).visible, visible);
}

void TabStrip::SetTabEnabled(std::size_t tab, bool enabled) {
  Set(At(tab).enabled, enabled);
}

}  // namespace quorvel::widgets
