#include "windows/PopupMenu.h"

#include <utility>

#include "windows/Convert.h"
#include "windows/Handles.h"

namespace quorvel::windows {

PopupMenu::PopupMenu(widgets::Menu& model, HWND owner, UINT message, std::function<POINT()> place,
                     std::function<void(std::int32_t)> picked)
    : model_(model), owner_(owner), message_(message), place_(std::move(place)), picked_(std::move(picked)) {
  model_.Observe(this);
  PopupMenu::ControlChanged(model_);
}

PopupMenu::~PopupMenu() {
  model_.Observe(nullptr);
  if (menu_) EndMenu();
  // A menu that nobody shows any more went away without a choice.
  model_.Close();
}

void PopupMenu::ControlChanged(widgets::Control& /*control*/) {
  if (model_.open() == wanted_) return;
  wanted_ = model_.open();
  if (wanted_) {
    PostMessageW(owner_, message_, 0, reinterpret_cast<LPARAM>(this));
  } else if (menu_) {
    EndMenu();
  }
}

const widgets::MenuEntry* PopupMenu::EntryOf(UINT id) const {
  return id == 0 || id > model_.entries().size() ? nullptr : &model_.entries()[id - 1];
}

void PopupMenu::AppendEntries() {
  for (std::size_t i = 0; i < model_.entries().size(); ++i) {
    const widgets::MenuEntry& entry = model_.entries()[i];
    if (!entry.visible) continue;
    const bool separator = entry.command == 0;
    const UINT flags = separator ? MF_SEPARATOR : MF_STRING | static_cast<UINT>(entry.enabled ? MF_ENABLED : MF_GRAYED);
    AppendMenuW(menu_.get(), flags, IdOf(i), separator ? nullptr : ToWide(entry.caption).c_str());
  }
}

void PopupMenu::Track() {
  if (!model_.open() || menu_) return;
  const POINT place = place_();
  menu_ = UniqueMenu(CreatePopupMenu());
  AppendEntries();
  const auto menu = menu_;
  const auto id = static_cast<UINT>(
      TrackPopupMenu(menu.get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, place.x, place.y, 0, owner_, nullptr));
  if (menu.use_count() == 1) return;  // this object is gone
  menu_.reset();
  wanted_ = false;
  model_.Close();
  // What became impossible while the menu was up is not done.
  const widgets::MenuEntry* const entry = EntryOf(id);
  const auto picked = picked_;  // which may end this object
  if (entry != nullptr && entry->visible && entry->enabled) picked(entry->command);
}

}  // namespace quorvel::windows
