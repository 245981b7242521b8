// Keys as scripts name them.
#pragma once

#include <cstdint>
#include <string_view>

namespace quorvel::scenario {

enum class KeyCode : std::uint8_t {
  kEnter,
  kEscape,
  kTab,
  kPageUp,
  kPageDown,
  kHome,
  kEnd,
  kUp,
  kDown,
  kLeft,
  kRight,
  kMenu,
  kF5,
  kF10,
  kA,
  kC,
};

struct Key {
  KeyCode code = KeyCode::kEnter;
  bool ctrl = false;
  bool shift = false;
  friend bool operator==(const Key&, const Key&) = default;
};

// "Enter", "Ctrl+A", "Ctrl+Shift+Tab". ScriptError for any other text.
Key KeyOf(std::string_view text);

// Whether it asks for a menu: Menu, or Shift+F10.
bool IsMenuKey(const Key& key);

}  // namespace quorvel::scenario
