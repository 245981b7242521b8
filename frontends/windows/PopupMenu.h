// Puts a popup menu of the viewer up as a menu of Windows.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <type_traits>

#include "widgets/Menu.h"

namespace quorvel::windows {

// It comes up when the gesture that asked for it has been handled, and waits in a message loop of its own, as menus of
// Windows do, until it goes away.
class PopupMenu final : public widgets::ControlObserver {
 public:
  // `owner` gets a posted `message` with the address of this object as its `lParam`, and calls `Track` then. `place`:
  // where on the screen to put it up. `picked`: the command of the entry that was chosen, after the menu went away.
  PopupMenu(widgets::Menu& model, HWND owner, UINT message, std::function<POINT()> place,
            std::function<void(std::int32_t)> picked);
  ~PopupMenu() override;
  PopupMenu(const PopupMenu&) = delete;
  PopupMenu& operator=(const PopupMenu&) = delete;

  void ControlChanged(widgets::Control& control) override;

  // Shows the menu, if the model is still open. The object may be gone when this returns.
  void Track();

  // The menu while it is up, else null; its items carry the numbers of `IdOf`.
  HMENU menu() const { return menu_.get(); }
  // Entries count from 0 as they do in the model, hidden ones included.
  static constexpr UINT IdOf(std::size_t entry) { return static_cast<UINT>(entry) + 1; }
  // Null for a number that no entry has.
  const widgets::MenuEntry* EntryOf(UINT id) const;

 private:
  void AppendEntries();

  widgets::Menu& model_;
  HWND owner_;
  UINT message_;
  std::function<POINT()> place_;
  std::function<void(std::int32_t)> picked_;
  bool wanted_ = false;  // posted, or up
  // While it is up; whoever shows it keeps it too, for this object may go meanwhile.
  std::shared_ptr<std::remove_pointer_t<HMENU>> menu_;
};

}  // namespace quorvel::windows
