#include "windows/Contents.h"

#include <commctrl.h>

#include <algorithm>
#include <string>

namespace quorvel::windows {
namespace {

int RowOf(const widgets::ItemList& list) {
  return list.selected() ? static_cast<int>(*list.selected()) : -1;
}

// The messages by which a box with rows is asked and told.
struct RowMessages {
  UINT count;
  UINT length;
  UINT text;
  UINT clear;
  UINT add;
  UINT select;
  UINT selected;
};
constexpr RowMessages kComboRows{CB_GETCOUNT,  CB_GETLBTEXTLEN, CB_GETLBTEXT, CB_RESETCONTENT,
                                 CB_ADDSTRING, CB_SETCURSEL,    CB_GETCURSEL};
constexpr RowMessages kListRows{LB_GETCOUNT,  LB_GETTEXTLEN, LB_GETTEXT,  LB_RESETCONTENT,
                                LB_ADDSTRING, LB_SETCURSEL,  LB_GETCURSEL};

std::wstring RowText(HWND window, const RowMessages& rows, WPARAM row) {
  const LRESULT length = SendMessageW(window, rows.length, row, 0);
  std::wstring text(static_cast<std::size_t>(std::max<LRESULT>(length, 0)), L'\0');
  if (length > 0) SendMessageW(window, rows.text, row, reinterpret_cast<LPARAM>(text.data()));
  return text;
}

bool Shows(HWND window, const RowMessages& rows, const widgets::ItemList& list) {
  const auto count = static_cast<std::size_t>(SendMessageW(window, rows.count, 0, 0));
  if (count != list.items().size()) return false;
  for (std::size_t row = 0; row < count; ++row) {
    if (RowText(window, rows, row) != ToWide(list.items()[row].text)) return false;
  }
  return true;
}

void DrawRows(HWND window, const RowMessages& rows, const widgets::ItemList& list) {
  if (!Shows(window, rows, list)) {
    SendMessageW(window, rows.clear, 0, 0);
    for (const widgets::Item& item : list.items()) {
      SendMessageW(window, rows.add, 0, reinterpret_cast<LPARAM>(ToWide(item.text).c_str()));
    }
  }
  const int row = RowOf(list);
  if (SendMessageW(window, rows.selected, 0, 0) != row) {
    SendMessageW(window, rows.select, static_cast<WPARAM>(row), 0);
  }
}

bool SameDay(const SYSTEMTIME& one, const SYSTEMTIME& other) {
  return one.wYear == other.wYear && one.wMonth == other.wMonth && one.wDay == other.wDay;
}
bool SameTime(const SYSTEMTIME& one, const SYSTEMTIME& other) {
  return one.wHour == other.wHour && one.wMinute == other.wMinute && one.wSecond == other.wSecond;
}

bool ShowsTime(HWND picker) {
  return (GetWindowLongPtrW(picker, GWL_STYLE) & DTS_UPDOWN) != 0;
}

}  // namespace

void ShowText(std::string_view text, HWND window) {
  const std::wstring wide = ToWide(text);
  // The same text set again would move the cursor of someone who types, and flicker.
  if (TextOf(window) != wide) SetWindowTextW(window, wide.c_str());
}

std::wstring TextOf(HWND window) {
  std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
  return text;
}

void DrawContent(const widgets::Label& label, HWND window, const Fonts& fonts) {
  ShowText(label.text(), window);
  const HFONT font = label.bold() ? fonts.bold() : fonts.regular();
  if (reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0)) == font) return;
  SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
}

void DrawContent(const widgets::CheckBox& box, HWND window) {
  ShowText(box.text(), window);
  const WPARAM state = box.checked() ? BST_CHECKED : BST_UNCHECKED;
  if (static_cast<WPARAM>(SendMessageW(window, BM_GETCHECK, 0, 0)) != state)
    SendMessageW(window, BM_SETCHECK, state, 0);
}

void DrawContent(const widgets::ComboBox& combo, HWND window, int height) {
  DrawRows(window, kComboRows, combo);
  RECT outer{};
  GetWindowRect(window, &outer);
  const LRESULT item = SendMessageW(window, CB_GETITEMHEIGHT, static_cast<WPARAM>(-1), 0);
  const LONG frame = outer.bottom - outer.top - static_cast<LONG>(item);
  if (frame > 0 && item != height - frame) {
    SendMessageW(window, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), height - frame);
  }
}

void DrawContent(const widgets::ListBox& list, HWND window, int height, const Fonts& fonts) {
  DrawRows(window, kListRows, list);
  RECT inner{};
  GetClientRect(window, &inner);
  RECT outer{};
  GetWindowRect(window, &outer);
  const int frame = static_cast<int>((outer.bottom - outer.top) - inner.bottom);
  const int rows = std::max(static_cast<int>(list.items().size()), 1);
  SendMessageW(window, LB_SETITEMHEIGHT, 0, std::max((height - frame) / rows, fonts.lineHeight()));
}

void DrawContent(const widgets::DateTimePicker& picker, HWND window) {
  const auto value = ToSystemTime(picker.value());
  if (!value) return;
  SYSTEMTIME shown{};
  SendMessageW(window, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&shown));
  if (ShowsTime(window) ? SameTime(shown, *value) : SameDay(shown, *value)) return;
  // A picker keeps both: the part that it does not show stays as it is.
  SYSTEMTIME& part = shown;
  if (ShowsTime(window)) {
    part.wHour = value->wHour;
    part.wMinute = value->wMinute;
    part.wSecond = value->wSecond;
  } else {
    part.wYear = value->wYear;
    part.wMonth = value->wMonth;
    part.wDay = value->wDay;
  }
  SendMessageW(window, DTM_SETSYSTEMTIME, GDT_VALID, reinterpret_cast<LPARAM>(&part));
}

DateValue ValueOf(HWND picker) {
  SYSTEMTIME shown{};
  SendMessageW(picker, DTM_GETSYSTEMTIME, 0, reinterpret_cast<LPARAM>(&shown));
  shown.wMilliseconds = 0;
  if (ShowsTime(picker)) return TimePart(FromSystemTime(shown));
  shown.wHour = shown.wMinute = shown.wSecond = 0;
  return FromSystemTime(shown);
}

void DrawContent(const widgets::ScrollBar& bar, HWND window) {
  SCROLLINFO info{};
  info.cbSize = sizeof(info);
  info.fMask = SIF_RANGE | SIF_PAGE | SIF_POS;
  info.nMin = bar.minimum();
  // The thumb's own length counts here.
  info.nMax = bar.maximum() + bar.page() - 1;
  info.nPage = static_cast<UINT>(bar.page());
  info.nPos = bar.value();
  SetScrollInfo(window, SB_CTL, &info, TRUE);
}

}  // namespace quorvel::windows
