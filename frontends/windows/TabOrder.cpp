#include "windows/TabOrder.h"

#include <algorithm>
#include <string>

#include "windows/Convert.h"

namespace quorvel::windows {
namespace {

// The letter that "&" marks in a caption, in upper case; 0 when there is none.
wchar_t MarkedLetter(const std::string& caption) {
  const std::wstring text = ToWide(caption);
  for (std::size_t at = text.find(L'&'); at != std::wstring::npos && at + 1 < text.size();
       at = text.find(L'&', at + 2)) {
    if (text[at + 1] != L'&') return text[at + 1];
  }
  return 0;
}

wchar_t Upper(wchar_t letter) {
  wchar_t upper[] = {letter, 0};
  return *CharUpperW(upper);
}

}  // namespace

bool CanTakeFocus(HWND window) {
  return IsWindow(window) != FALSE && IsWindowVisible(window) != FALSE && IsWindowEnabled(window) != FALSE;
}

HWND TabOrder::Next(HWND from, bool backwards) const {
  std::vector<HWND> order = fields_;
  if (backwards) std::ranges::reverse(order);
  // The innermost of fields that lie in each other.
  auto at = std::ranges::find(order, from);
  if (at == order.end() && from != nullptr) {
    at = std::ranges::find_if(order, [from](HWND field) { return IsChild(field, from) != FALSE; });
  }
  const auto next = std::find_if(at == order.end() ? order.begin() : at + 1, order.end(), CanTakeFocus);
  return next == order.end() ? nullptr : *next;
}

HWND TabOrder::NextInCircle(HWND from, bool backwards) const {
  HWND next = Next(from, backwards);
  if (next == nullptr) next = Next(nullptr, backwards);
  return next == from ? nullptr : next;
}

HWND TabOrder::OfAccessKey(wchar_t letter) const {
  const auto found = std::ranges::find_if(keys_, [&](const AccessKey& key) {
    return key.caption->visible() && CanTakeFocus(key.field) &&
           Upper(MarkedLetter(key.caption->text())) == Upper(letter);
  });
  return found == keys_.end() ? nullptr : found->field;
}

void ShowKeyMarks(HWND window) {
  SendMessageW(window, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS | UISF_HIDEACCEL), 0);
}

void FocusByKey(HWND field) {
  ShowKeyMarks(field);
  SetFocus(field);
  if ((SendMessageW(field, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL) != 0) SendMessageW(field, EM_SETSEL, 0, -1);
}

void PressByKey(HWND field) {
  FocusByKey(field);
  constexpr LRESULT kButtons = DLGC_BUTTON | DLGC_DEFPUSHBUTTON | DLGC_UNDEFPUSHBUTTON;
  if ((SendMessageW(field, WM_GETDLGCODE, 0, 0) & kButtons) != 0) SendMessageW(field, BM_CLICK, 0, 0);
}

}  // namespace quorvel::windows
