#include "windows/Convert.h"

#include "windows/Handles.h"

namespace quorvel::windows {
namespace {

using DpiForWindowCall = UINT(WINAPI*)(HWND);

// Systems before Windows 10 have no such call.
DpiForWindowCall FindDpiForWindow() {
  const HMODULE user = GetModuleHandleW(L"user32.dll");
  const FARPROC found = user == nullptr ? nullptr : GetProcAddress(user, "GetDpiForWindow");
  return reinterpret_cast<DpiForWindowCall>(reinterpret_cast<void*>(found));
}

}  // namespace

Scale ScaleOf(HWND window) {
  static const DpiForWindowCall dpiForWindow = FindDpiForWindow();
  const UINT ofWindow = dpiForWindow == nullptr ? 0 : dpiForWindow(window);
  if (ofWindow != 0) return Scale(ofWindow);
  const ScreenDc screen;
  return Scale(static_cast<UINT>(GetDeviceCaps(screen.get(), LOGPIXELSX)));
}

std::optional<SYSTEMTIME> ToSystemTime(DateValue date) {
  const auto civil = CivilFromDate(date);
  if (!civil) return std::nullopt;
  SYSTEMTIME time{};
  time.wYear = static_cast<WORD>(civil->year);
  time.wMonth = static_cast<WORD>(civil->month);
  time.wDay = static_cast<WORD>(civil->day);
  time.wHour = static_cast<WORD>(civil->hour);
  time.wMinute = static_cast<WORD>(civil->minute);
  time.wSecond = static_cast<WORD>(civil->second);
  return time;
}

DateValue FromSystemTime(const SYSTEMTIME& time) {
  return DateFromCivil({time.wYear, time.wMonth, time.wDay, time.wHour, time.wMinute, time.wSecond});
}

}  // namespace quorvel::windows
