#include "console_windows/ConsoleWindow.h"

#include <commctrl.h>
#include <commdlg.h>

#include <algorithm>
#include <filesystem>
#include <iterator>

#include "platform/windows/WideText.h"
#include "windows/Convert.h"
#include "windows/Guard.h"
#include "windows/WindowsPlatform.h"

namespace quorvel::console {
namespace {

using windows::FromWide;
using windows::ToWide;

constexpr const wchar_t* kProduct = L"Quorvel console";
constexpr DWORD kStyle = WS_OVERLAPPEDWINDOW | WS_CLIPCHILDREN;
constexpr UINT kReadingEnds = WM_APP;
constexpr UINT_PTR kNoteTimer = 1;

enum CommandId : UINT { kOpenHistory = 1, kExit, kRefresh, kAbout, kOpenAs = 0x100 };

// How a host can open the viewer, which decides on its tabs.
struct Opening {
  const wchar_t* caption;
  tlFromType fromType;
};
constexpr Opening kOpenings[] = {
    {L"&Everything", tlFromType::tlOneProcess},        {L"All &Processes", tlFromType::tlAllProcess},
    {L"&Company", tlFromType::tlOneCompany},           {L"&Station", tlFromType::tlOneUser},
    {L"All on &Stations", tlFromType::tlAllOnStation}, {L"All &Alarms", tlFromType::tlAllAlarms},
};

HICON IconOf(int metric) {
  constexpr int kProgramIcon = 1;
  const int size = GetSystemMetrics(metric);
  return static_cast<HICON>(
      LoadImageW(windows::Module(), MAKEINTRESOURCEW(kProgramIcon), IMAGE_ICON, size, size, LR_SHARED));
}

}  // namespace

ConsoleWindow::ConsoleWindow()
    : Window({.style = kStyle, .caption = kProduct}, nullptr),
      statusBar_(window()),
      reading_(statusBar_, window(), kReadingEnds) {
  MakeMenus();
  SendMessageW(window(), WM_SETICON, ICON_BIG, reinterpret_cast<LPARAM>(IconOf(SM_CXICON)));
  SendMessageW(window(), WM_SETICON, ICON_SMALL, reinterpret_cast<LPARAM>(IconOf(SM_CXSMICON)));
}

ConsoleWindow::~ConsoleWindow() {
  End();
  DestroyAcceleratorTable(accelerators_);
}

void ConsoleWindow::MakeMenus() {
  const HMENU bar = CreateMenu();
  SetMenu(window(), bar);
  const auto add = [&](const wchar_t* caption) {
    const HMENU menu = CreatePopupMenu();
    AppendMenuW(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(menu), caption);
    return menu;
  };
  const HMENU file = add(L"&File");
  AppendMenuW(file, MF_STRING, kOpenHistory, L"&Open History...\tCtrl+O");
  AppendMenuW(file, MF_SEPARATOR, 0, nullptr);
  AppendMenuW(file, MF_STRING, kExit, L"E&xit\tCtrl+Q");
  ofList_ = add(L"&Log");
  ofView_ = add(L"&View");
  AppendMenuW(ofView_, MF_STRING, kRefresh, L"&Refresh\tF5");
  openAs_ = CreatePopupMenu();
  AppendMenuW(ofView_, MF_POPUP, reinterpret_cast<UINT_PTR>(openAs_), L"&Open As");
  AppendMenuW(ofView_, MF_SEPARATOR, 0, nullptr);
  UINT id = kOpenAs;
  for (const Opening& each : kOpenings) AppendMenuW(openAs_, MF_STRING, id++, each.caption);
  AppendMenuW(add(L"&Help"), MF_STRING, kAbout, L"&About");
  ACCEL keys[] = {{FCONTROL | FVIRTKEY, 'O', kOpenHistory}, {FCONTROL | FVIRTKEY, 'Q', kExit}};
  accelerators_ = CreateAcceleratorTableW(keys, static_cast<int>(std::size(keys)));
}

void ConsoleWindow::Place(windows::ProcessLogWindow& viewer) {
  viewer_ = &viewer;
  viewerMenus_ = std::make_unique<ViewerMenus>(viewer.control(), ofList_, ofView_);
  LayOut();
}

void ConsoleWindow::Remove() {
  viewerMenus_.reset();
  viewer_ = nullptr;
  commands_ = {};
}

void ConsoleWindow::Open(const WindowSize& size) {
  const windows::Scale scale = windows::ScaleOf(window());
  RECT place{0, 0, scale.Of96(size.width), scale.Of96(size.height)};
  AdjustWindowRectEx(&place, kStyle, FALSE, 0);  // the menu bar belongs to the size
  MONITORINFO monitor{};
  monitor.cbSize = sizeof(monitor);
  GetMonitorInfoW(MonitorFromWindow(window(), MONITOR_DEFAULTTOPRIMARY), &monitor);
  const RECT& room = monitor.rcWork;
  const LONG width = std::min(place.right - place.left, room.right - room.left);
  const LONG height = std::min(place.bottom - place.top, room.bottom - room.top);
  SetWindowPos(window(), nullptr, room.left + (room.right - room.left - width) / 2,
               room.top + (room.bottom - room.top - height) / 2, width, height, SWP_NOZORDER);
  ShowWindow(window(), SW_SHOWNORMAL);
  UpdateWindow(window());
}

void ConsoleWindow::LayOut() {
  statusBar_.Fit();
  if (viewer_ == nullptr) return;
  RECT client{};
  GetClientRect(window(), &client);
  const int height = std::max(static_cast<int>(client.bottom) - statusBar_.Height(), 0);
  SetWindowPos(viewer_->window(), nullptr, 0, 0, client.right, height, SWP_NOZORDER | SWP_NOACTIVATE);
}

void ConsoleWindow::ShowHistoryName(std::string_view url) {
  const std::string_view path = url.substr(std::min(url.find(':') + 1, url.size()));
  const std::filesystem::path file(ToWide(path.substr(0, path.find('?'))));
  SetWindowTextW(window(), (file.filename().wstring() + L" - " + kProduct).c_str());
}

void ConsoleWindow::ShowNote(std::string_view text) {
  constexpr UINT kNoteMilliseconds = 10'000;
  statusBar_.ShowNote(text);
  SetTimer(window(), kNoteTimer, kNoteMilliseconds, nullptr);
}

std::optional<LRESULT> ConsoleWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam) {
  switch (message) {
    case WM_SIZE:
      LayOut();
      return 0;
    case WM_INITMENUPOPUP:
      FollowMenus();
      return std::nullopt;
    case WM_COMMAND:
      Command(LOWORD(wParam));
      return 0;
    case WM_ACTIVATE:
      LOWORD(wParam) == WA_INACTIVE ? RememberFocus() : GiveFocusBack();
      return 0;
    case WM_SETFOCUS:
      GiveFocusBack();
      return 0;
    case WM_SETCURSOR:
      return windows::KeepHourglass() ? std::optional<LRESULT>(TRUE) : std::nullopt;
    case WM_TIMER:
      KillTimer(window(), kNoteTimer);
      statusBar_.ShowNote("");
      return 0;
    case kReadingEnds:
      reading_.End();
      return 0;
    case WM_DPICHANGED: {
      const RECT& place = *reinterpret_cast<const RECT*>(lParam);
      SetWindowPos(window(), nullptr, place.left, place.top, place.right - place.left, place.bottom - place.top,
                   SWP_NOZORDER | SWP_NOACTIVATE);
      return 0;
    }
    case WM_SYSCOLORCHANGE:
    case WM_SETTINGCHANGE:
    case WM_THEMECHANGED:
      // Only windows at the top are told.
      if (viewer_ != nullptr && message != WM_THEMECHANGED) SendMessageW(viewer_->window(), message, wParam, lParam);
      SendMessageW(statusBar_.window(), message, wParam, lParam);
      return std::nullopt;
    case WM_DESTROY:
      PostQuitMessage(0);
      return 0;
    default:
      return std::nullopt;
  }
}

void ConsoleWindow::FollowMenus() {
  if (viewer_ == nullptr) return;
  viewerMenus_->Follow();
  const auto* const now = std::ranges::find(kOpenings, viewer_->control().p_FromType(), &Opening::fromType);
  const auto count = static_cast<UINT>(std::size(kOpenings));
  CheckMenuRadioItem(openAs_, kOpenAs, kOpenAs + count - 1,
                     kOpenAs + static_cast<UINT>(std::distance(std::begin(kOpenings), now)), MF_BYCOMMAND);
}

void ConsoleWindow::Command(UINT id) {
  if (viewerMenus_ != nullptr && viewerMenus_->Run(id)) return;
  if (id >= kOpenAs && id < kOpenAs + std::size(kOpenings)) {
    if (commands_.openAs) commands_.openAs(kOpenings[id - kOpenAs].fromType);
    return;
  }
  switch (id) {
    case kOpenHistory:
      return AskForHistory();
    case kExit:
      SendMessageW(window(), WM_CLOSE, 0, 0);
      return;
    case kRefresh:
      if (viewer_ != nullptr) viewer_->control().cmdRefresh_Click();
      return;
    case kAbout:
      return ShowAbout();
    default:
      return;
  }
}

void ConsoleWindow::AskForHistory() {
  constexpr DWORD kLongestName = 32'768;
  std::wstring name(kLongestName, L'\0');
  OPENFILENAMEW asked{};
  asked.lStructSize = sizeof(asked);
  asked.hwndOwner = window();
  asked.lpstrTitle = L"Open History";
  asked.lpstrFilter = L"Histories (*.db, *.sqlite, *.sqlite3)\0*.db;*.sqlite;*.sqlite3\0All files\0*.*\0";
  asked.lpstrFile = name.data();
  asked.nMaxFile = kLongestName;
  asked.Flags = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_EXPLORER;
  if (GetOpenFileNameW(&asked) == FALSE || !commands_.openHistory) return;
  commands_.openHistory("sqlite:" + FromWide(name.c_str()));
}

void ConsoleWindow::ShowAbout() {
  const std::wstring text = std::wstring(kProduct) + L" " + ToWide(QUORVEL_VERSION) +
                            L"\n\nShows what an installation executed: processes, their runs, and what became of them "
                            L"on every station.";
  MessageBoxW(window(), text.c_str(), kProduct, MB_OK | MB_ICONINFORMATION);
}

void ConsoleWindow::RememberFocus() {
  const HWND focus = GetFocus();
  if (IsChild(window(), focus) != FALSE) focus_ = focus;
}

void ConsoleWindow::GiveFocusBack() {
  if (IsIconic(window()) != FALSE) return;
  if (IsChild(window(), focus_) != FALSE && IsWindowVisible(focus_) != FALSE) {
    SetFocus(focus_);
  } else if (viewer_ != nullptr) {
    viewer_->FocusFirst(false);
  }
}

bool ConsoleWindow::TakeKey(const MSG& message) {
  if (message.message < WM_KEYFIRST || message.message > WM_KEYLAST) return false;
  if (viewer_ != nullptr && viewer_->TakeKey(message)) return true;
  MSG copy = message;
  return IsWindowEnabled(window()) != FALSE && TranslateAcceleratorW(window(), accelerators_, &copy) != 0;
}

int ConsoleWindow::Run() {
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (windows::GuardedOr(true, [&] { return TakeKey(message); })) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return static_cast<int>(message.wParam);
}

}  // namespace quorvel::console
