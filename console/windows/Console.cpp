#include "console_windows/Console.h"

#include <windows.h>

#include <commctrl.h>
#include <ole2.h>

#include <exception>
#include <iostream>

#include "console_core/ConsoleOptions.h"
#include "console_core/ScriptRun.h"
#include "console_windows/ConsoleWindow.h"
#include "console_windows/HistorySession.h"
#include "console_windows/Picture.h"
#include "console_windows/ScenarioRun.h"
#include "platform/windows/WideText.h"

namespace quorvel::console {
namespace {

using windows::ToWide;

class Ole {
 public:
  Ole() : ready_(SUCCEEDED(OleInitialize(nullptr))) {}
  ~Ole() {
    if (ready_) OleUninitialize();
  }
  Ole(const Ole&) = delete;
  Ole& operator=(const Ole&) = delete;

 private:
  bool ready_;
};

int ExitCode(bool ok) {
  return ok ? 0 : 1;
}

// A program with windows has no terminal of its own: what it has to say goes where its starter redirected it, or to a
// message box.
void Say(const std::string& text, bool failure) {
  if (GetStdHandle(failure ? STD_ERROR_HANDLE : STD_OUTPUT_HANDLE) != nullptr) {
    (failure ? std::cerr : std::cout) << text << std::flush;
  } else {
    MessageBoxW(nullptr, ToWide(text).c_str(), L"Quorvel console", MB_OK);
  }
}

// What has been posted, but no wait for more.
void HandleWaitingMessages() {
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
}

bool Write(const ConsoleOptions& options, ConsoleWindow& window, HistorySession& session) {
  if (!options.report.empty()) return session.WriteReportOf(options.report, ToWide(options.output));
  HandleWaitingMessages();
  WritePicture(window.window(), ToWide(options.screenshot));
  Say(options.screenshot + "\n", false);
  return true;
}

int ShowWindow(const ConsoleOptions& options) {
  // Whoever wants a picture or a report alone does not sit in front of the window.
  const bool unattended = !options.screenshot.empty() || !options.report.empty();
  ConsoleWindow window;
  HistorySession session(window, options.fromType, options.processId,
                         unattended ? Audience::kTerminal : Audience::kWindow);
  window.Open(options.size);
  bool ok = options.history.empty() || session.OpenHistory(options.history);
  if (ok && !options.tab.empty()) ok = session.ChooseTab(options.tab);
  return unattended ? ExitCode(ok && Write(options, window, session)) : window.Run();
}

}  // namespace

int RunConsole(std::span<const std::string> arguments) {
  constexpr Abilities kAbilities{.dark = false, .part = false, .pdf = false, .reportOfScenario = false};
  const CommandLine commandLine = ReadCommandLine(arguments, kAbilities);
  if (!commandLine.options) {
    Say(commandLine.text, commandLine.exitCode != 0);
    return commandLine.exitCode;
  }
  const Ole ole;
  const INITCOMMONCONTROLSEX wanted{sizeof(wanted), ICC_WIN95_CLASSES | ICC_DATE_CLASSES | ICC_STANDARD_CLASSES};
  InitCommonControlsEx(&wanted);
  try {
    if (commandLine.options->headless) return RunScenarioHeadless(*commandLine.options);
    if (!commandLine.options->scenario.empty()) return RunScenario(*commandLine.options);
    return ShowWindow(*commandLine.options);
  } catch (const std::exception& problem) {
    Say(problem.what() + std::string("\n"), true);
    return ExitCode(false);
  }
}

}  // namespace quorvel::console
