#include "console_windows/StatusBar.h"

#include <commctrl.h>

#include <algorithm>

#include "console_core/ReadingWords.h"
#include "console_windows/NamedMembers.h"
#include "platform/Error.h"
#include "platform/windows/WideText.h"
#include "windows/Convert.h"
#include "windows/Window.h"

namespace quorvel::console {
namespace {

using windows::ComPtr;
using windows::ToWide;
using windows::Variant;

enum Part { kOfViewer, kNote, kReading, kParts };

std::wstring TextOf(HWND bar, int part) {
  std::wstring text(LOWORD(SendMessageW(bar, SB_GETTEXTLENGTHW, static_cast<WPARAM>(part), 0)), L'\0');
  SendMessageW(bar, SB_GETTEXTW, static_cast<WPARAM>(part), reinterpret_cast<LPARAM>(text.data()));
  return text;
}

ComPtr<IDispatch> PanelOf(HWND bar, int part) {
  return NamedMembers::Make({{L"Text", [=](std::int32_t) { return Variant(windows::Bstr(TextOf(bar, part))); },
                              [=](const Variant& value) {
                                SendMessageW(bar, SB_SETTEXTW, static_cast<WPARAM>(part),
                                             reinterpret_cast<LPARAM>(ToWide(value.ToText()).c_str()));
                              }}});
}

// An object with one member, another object.
ComPtr<IDispatch> Holder(const wchar_t* name, const ComPtr<IDispatch>& held) {
  return NamedMembers::Make({{name, [held](std::int32_t) { return Variant(held); }, {}}});
}

}  // namespace

StatusBar::StatusBar(HWND parent)
    : window_(CreateWindowExW(0, STATUSCLASSNAMEW, L"", WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS | SBARS_SIZEGRIP, 0, 0,
                              0, 0, parent, nullptr, windows::Module(), nullptr)) {
  if (window_ == nullptr) throw Error(SystemError::kOutOfMemory, "No status bar");
  Fit();
  SetText(kNote, "");
  SetText(kReading, "");
}

int StatusBar::Height() const {
  RECT place{};
  GetWindowRect(window_, &place);
  return place.bottom - place.top;
}

int StatusBar::WidthOf(const std::wstring& text) const {
  constexpr int kMargins = 16;  // at 96 dots per inch
  if (text.empty()) return 0;
  const HDC dc = GetDC(window_);
  const HGDIOBJ before = SelectObject(dc, reinterpret_cast<HGDIOBJ>(SendMessageW(window_, WM_GETFONT, 0, 0)));
  SIZE size{};
  GetTextExtentPoint32W(dc, text.c_str(), static_cast<int>(text.size()), &size);
  SelectObject(dc, before);
  ReleaseDC(window_, dc);
  return size.cx + windows::ScaleOf(window_).Of96(kMargins);
}

void StatusBar::Fit() {
  SendMessageW(window_, WM_SIZE, 0, 0);
  RECT client{};
  GetClientRect(window_, &client);
  int reading = 0;  // room for the longest text: while a request goes on, nothing is laid out
  for (const Reading& each : Readings()) reading = std::max(reading, WidthOf(ToWide(WordsFor(each.query))));
  const int grip = GetSystemMetrics(SM_CXVSCROLL);
  const int ofReading = std::max(static_cast<int>(client.right) - reading - grip, 0);
  int ends[kParts] = {std::max(ofReading - WidthOf(note_), 0), ofReading, -1};
  SendMessageW(window_, SB_SETPARTS, kParts, reinterpret_cast<LPARAM>(ends));
}

void StatusBar::SetText(int part, std::string_view text) {
  SendMessageW(window_, SB_SETTEXTW, static_cast<WPARAM>(part | (part == kOfViewer ? 0 : SBT_NOBORDERS)),
               reinterpret_cast<LPARAM>(ToWide(text).c_str()));
}

void StatusBar::ShowNote(std::string_view text) {
  note_ = ToWide(text);
  Fit();
  SetText(kNote, text);
}

void StatusBar::ShowReading(std::string_view text) {
  SetText(kReading, text);
  UpdateWindow(window_);
}

ComPtr<IDispatch> StatusBar::HostObject() const {
  const HWND bar = window_;
  const auto panels = NamedMembers::Make({{L"Count", [](std::int32_t) { return Variant(std::int32_t{kParts}); }, {}},
                                          {L"Item",
                                           [bar](std::int32_t index) {
                                             if (index < 1 || index > kParts)
                                               throw Error(SystemError::kIndexOutOfRange, "There is no such panel");
                                             return Variant(PanelOf(bar, index - 1));
                                           },
                                           {}}});
  return Holder(L"Parent", Holder(L"stStatusBar", Holder(L"Panels", panels)));
}

}  // namespace quorvel::console
