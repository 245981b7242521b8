#include "scenario/Keys.h"

#include <string>

#include "scenario/Script.h"

namespace quorvel::scenario {
namespace {

struct KeyName {
  std::string_view name;
  KeyCode code;
};

constexpr KeyName kNames[] = {
    {"Enter", KeyCode::kEnter},
    {"Escape", KeyCode::kEscape},
    {"Tab", KeyCode::kTab},
    {"PageUp", KeyCode::kPageUp},
    {"PageDown", KeyCode::kPageDown},
    {"Home", KeyCode::kHome},
    {"End", KeyCode::kEnd},
    {"Up", KeyCode::kUp},
    {"Down", KeyCode::kDown},
    {"Left", KeyCode::kLeft},
    {"Right", KeyCode::kRight},
    {"Menu", KeyCode::kMenu},
    {"F5", KeyCode::kF5},
    {"F10", KeyCode::kF10},
    {"A", KeyCode::kA},
    {"C", KeyCode::kC},
};

bool TakePrefix(std::string_view& text, std::string_view prefix) {
  if (!text.starts_with(prefix)) return false;
  text.remove_prefix(prefix.size());
  return true;
}

}  // namespace

Key KeyOf(std::string_view text) {
  Key key;
  std::string_view name = text;
  key.ctrl = TakePrefix(name, "Ctrl+");
  key.shift = TakePrefix(name, "Shift+");
  for (const KeyName& each : kNames) {
    // Letters alone are typed, not pressed.
    const bool letter = each.name.size() == 1;
    if (each.name != name || (letter && !key.ctrl)) continue;
    key.code = each.code;
    return key;
  }
  throw ScriptError("No such key: " + std::string(text));
}

bool IsMenuKey(const Key& key) {
  return key == Key{.code = KeyCode::kMenu} || key == Key{.code = KeyCode::kF10, .shift = true};
}

}  // namespace quorvel::scenario
