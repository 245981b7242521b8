// A menu: entries in order, each shown or hidden, enabled or disabled.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "widgets/Control.h"

namespace quorvel::widgets {

struct MenuEntry {
  std::string name;     // for example "mnu_copy"
  std::string caption;  // "&" marks the access key; "-" is a separator
  bool visible = true;
  bool enabled = true;
  friend bool operator==(const MenuEntry&, const MenuEntry&) = default;
};

// Entries are found by name; one that does not exist is error 35601.
class Menu : public Control {
 public:
  Menu(std::string_view name, std::vector<MenuEntry> entries);

  const std::vector<MenuEntry>& entries() const { return entries_; }
  const MenuEntry& Entry(std::string_view name) const;
  void SetEntryVisible(std::string_view name, bool visible);
  void SetEntryEnabled(std::string_view name, bool enabled);

 private:
  std::size_t IndexOf(std::string_view name) const;

  std::vector<MenuEntry> entries_;
};

}  // namespace quorvel::widgets
