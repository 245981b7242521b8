// Draws a tab strip: the heads alone, there is no page below them.
#pragma once

#include <windows.h>

#include <cstddef>
#include <functional>

#include "widgets/TabStrip.h"
#include "windows/Ear.h"
#include "windows/Surface.h"

namespace quorvel::windows {

// Which tab is current is the strip's to say; what is seen follows it.
class TabBar {
 public:
  // `chosen`: the user wants this tab, which can be chosen.
  TabBar(widgets::TabStrip& tabs, Surface& surface, HWND parent, std::function<void(std::size_t)> chosen);

  HWND window() const { return window_; }

  // Asks for the tab after the current one, or before it: of those that can be chosen, in a circle or only to the end.
  void ChooseNeighbour(int by, bool circle);

 private:
  void Draw(HWND window);
  void DrawTabs(HWND window);
  void DrawTab(const DRAWITEMSTRUCT& item) const;
  LRESULT Notify(const NMHDR& header);
  std::optional<LRESULT> Hear(UINT message, WPARAM wParam, LPARAM lParam);
  bool CanChoose(std::size_t tab) const;
  // Of the strip, by the place in the native control; hidden tabs have none.
  std::size_t TabAt(int index) const;
  int IndexOf(std::size_t tab) const;

  widgets::TabStrip& tabs_;
  Surface& surface_;
  std::function<void(std::size_t)> chosen_;
  std::vector<widgets::Tab> drawn_;
  HWND window_;
  Ear ear_;
};

}  // namespace quorvel::windows
