#include "widgets/Menu.h"

#include <algorithm>
#include <utility>

#include "platform/Error.h"

namespace quorvel::widgets {

Menu::Menu(std::string_view name, std::string_view caption, std::vector<MenuEntry> entries)
    : Control(name), entries_(std::move(entries)) {
  SetText(caption);
}

std::size_t Menu::IndexOf(std::string_view name) const {
  const auto found = std::ranges::find(entries_, name, &MenuEntry::name);
  if (found == entries_.end()) {
    throw Error(SystemError::kElementNotFound, "No menu entry " + std::string(name));
  }
  return static_cast<std::size_t>(found - entries_.begin());
}

const MenuEntry& Menu::Entry(std::string_view name) const {
  return entries_[IndexOf(name)];
}

void Menu::SetEntryVisible(std::string_view name, bool visible) {
  Set(entries_[IndexOf(name)].visible, visible);
}

void Menu::SetEntryEnabled(std::string_view name, bool enabled) {
  Set(entries_[IndexOf(name)].enabled, enabled);
}

}  // namespace quorvel::widgets
