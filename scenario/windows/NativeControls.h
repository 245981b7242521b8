// What native controls show, as text and numbers.
#pragma once

#include <windows.h>

#include <commctrl.h>

#include <cstddef>
#include <string>
#include <vector>

#include "scenario/ScenarioPort.h"

namespace quorvel::scenario {

inline LRESULT Send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0) {
  return SendMessageW(window, message, wParam, lParam);
}
template <class Struct>
LRESULT Send(HWND window, UINT message, WPARAM wParam, Struct* lParam) {
  return SendMessageW(window, message, wParam, reinterpret_cast<LPARAM>(lParam));
}

// Caption or content, by what the window is.
std::string TextOf(HWND window);
// What the window shows that draws this control; everything but its place.
SeenControl SeeControl(const widgets::Control& control, HWND window);
// The first panel of a status bar.
std::string PanelText(HWND statusBar);

// "" behind the last one.
std::string TabCaption(HWND tabs, int tab);
bool IsTabGray(HWND tabs, int tab);

HTREEITEM NextItem(HWND tree, WPARAM relation, HTREEITEM item = nullptr);
bool IsItemOpen(HWND tree, HTREEITEM item);
// Everything but node and depth.
SeenNode SeeItem(HWND tree, HTREEITEM item);
// Of its text; empty when a closed item hides it.
RECT ItemPlace(HWND tree, HTREEITEM item);

// Widths are pixels.
struct NativeHeader {
  std::string caption;
  int width = 0;
  widgets::Alignment alignment = widgets::Alignment::kLeft;
};
std::vector<NativeHeader> HeadersOf(HWND header);
SeenRow SeeRow(HWND list, std::size_t row, std::size_t columns);
RECT RowPlace(HWND list, std::size_t row);

// What an open menu shows of an entry. One that it does not hold is hidden, and stays as it is otherwise.
void SeeEntry(HMENU menu, UINT id, SeenMenuEntry& entry);
bool IsHighlighted(HMENU menu, UINT id);

RECT ClientOf(HWND window);
// The place of a window within another one, or on the screen for null.
RECT PlaceIn(HWND container, HWND window);
POINT CentreOf(const RECT& place);

}  // namespace quorvel::scenario
