// The main window of the console: a form with menus and a status bar that holds a viewer.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "console_core/ConsoleOptions.h"
#include "console_windows/ReadingNotice.h"
#include "console_windows/StatusBar.h"
#include "console_windows/ViewerMenus.h"
#include "control/Enumerations.h"
#include "windows/ProcessLogWindow.h"
#include "windows/Window.h"

namespace quorvel::console {

// What the menus ask of whoever shows histories in the window.
struct SessionCommands {
  std::function<void(const std::string& url)> openHistory;
  std::function<void(tlFromType)> openAs;
};

class ConsoleWindow final : public windows::Window {
 public:
  ConsoleWindow();
  ~ConsoleWindow() override;
  ConsoleWindow(const ConsoleWindow&) = delete;
  ConsoleWindow& operator=(const ConsoleWindow&) = delete;

  // Puts the viewer on the form, and its commands into the menus. `viewer` must be a child of this window; it must
  // stay until `Remove`.
  void Place(windows::ProcessLogWindow& viewer);
  void Remove();
  void SetCommands(SessionCommands commands) { commands_ = std::move(commands); }

  // In the middle of the screen, no larger than that. `size` at 96 dots per inch, without the frame.
  void Open(const WindowSize& size);

  // The history that the title names.
  void ShowHistoryName(std::string_view url);
  // Says something in the status bar for a while, beside what the viewer says there.
  void ShowNote(std::string_view text);

  StatusBar& statusBar() { return statusBar_; }
  ReadingNotice& reading() { return reading_; }

  // Handles messages until the window is closed. The exit code.
  int Run();

 protected:
  std::optional<LRESULT> Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

 private:
  void MakeMenus();
  void LayOut();
  void FollowMenus();
  void Command(UINT id);
  void AskForHistory();
  void ShowAbout();
  void RememberFocus();
  void GiveFocusBack();
  bool TakeKey(const MSG& message);

  SessionCommands commands_;
  StatusBar statusBar_;
  ReadingNotice reading_;
  windows::ProcessLogWindow* viewer_ = nullptr;
  std::unique_ptr<ViewerMenus> viewerMenus_;
  HMENU ofList_ = nullptr;  // the window's own, as its whole menu bar
  HMENU ofView_ = nullptr;
  HMENU openAs_ = nullptr;
  HACCEL accelerators_ = nullptr;
  HWND focus_ = nullptr;  // who had it when another program came to the front
};

}  // namespace quorvel::console
