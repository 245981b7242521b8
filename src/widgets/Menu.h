// A menu: entries in order, each shown or hidden, enabled or disabled.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "widgets/Control.h"

namespace quorvel::widgets {

struct MenuEntry {
  std::string name;          // for example "mnu_copy"
  std::string caption;       // "&" marks the access key; "-" is a separator
  std::int32_t command = 0;  // what it does, by the numbers of the menu's owner; 0 for a separator
  bool visible = true;
  bool enabled = true;
  friend bool operator==(const MenuEntry&, const MenuEntry&) = default;
};

// Entries are found by name; one that does not exist is error 35601.
class Menu : public Control {
 public:
  Menu(std::string_view name, std::string_view caption, std::vector<MenuEntry> entries);

  const std::vector<MenuEntry>& entries() const { return entries_; }
  const MenuEntry& Entry(std::string_view name) const;
  void SetEntryVisible(std::string_view name, bool visible);
  void SetEntryEnabled(std::string_view name, bool enabled);

  // Whether it is up. The observer puts it up when the owner opens it, and closes it when it went away: by a choice,
  // which is then told to the owner, or without one.
  bool open() const { return open_; }
  void Open() { Set(open_, true); }
  void Close() { Set(open_, false); }

 private:
  std::size_t IndexOf(std::string_view name) const;

  std::vector<MenuEntry> entries_;
  bool open_ = false;
};

}  // namespace quorvel::widgets
