#include "windows/CellTip.h"

#include <commctrl.h>

#include <utility>

#include "windows/Window.h"

namespace quorvel::windows {
namespace {

TTTOOLINFOW ToolOf(HWND list) {
  TTTOOLINFOW tool{};
  tool.cbSize = sizeof(tool);
  tool.hwnd = list;
  tool.lpszText = LPSTR_TEXTCALLBACKW;
  return tool;
}

}  // namespace

CellTip::CellTip(HWND list, std::function<std::wstring(const Cell&)> text)
    : list_(list),
      text_(std::move(text)),
      tip_(CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr, WS_POPUP | TTS_NOPREFIX, 0, 0, 0, 0, list, nullptr,
                           Module(), nullptr)) {
  TTTOOLINFOW tool = ToolOf(list_);
  SendMessageW(tip_.get(), TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void CellTip::PointAt(const std::optional<Cell>& cell, const RECT& place) {
  if (cell == cell_) return;
  cell_ = cell;
  SendMessageW(tip_.get(), TTM_POP, 0, 0);
  TTTOOLINFOW tool = ToolOf(list_);
  tool.rect = place;
  SendMessageW(tip_.get(), TTM_NEWTOOLRECTW, 0, reinterpret_cast<LPARAM>(&tool));
}

void CellTip::Relay(UINT message, WPARAM wParam, LPARAM lParam) {
  MSG told{};
  told.hwnd = list_;
  told.message = message;
  told.wParam = wParam;
  told.lParam = lParam;
  SendMessageW(tip_.get(), TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&told));
}

bool CellTip::Notify(NMHDR& header) {
  if (header.hwndFrom != tip_.get() || header.code != TTN_GETDISPINFOW) return false;
  shown_ = cell_ ? text_(*cell_) : std::wstring();
  reinterpret_cast<NMTTDISPINFOW&>(header).lpszText = shown_.data();
  return true;
}

void CellTip::SetLook(HFONT font, int width) {
  SendMessageW(tip_.get(), WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
  SendMessageW(tip_.get(), TTM_SETMAXTIPWIDTH, 0, width);
}

}  // namespace quorvel::windows
