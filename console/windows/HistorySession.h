// One history open in one window: the connection, the viewer that shows it, and what is said when it cannot be opened.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "console_windows/ConsoleWindow.h"
#include "console_windows/ViewerHost.h"
#include "control/ucProcessLog.h"
#include "datasource/ErrorsProcess.h"
#include "hub/RecordHub.h"
#include "windows/ProcessLogWindow.h"
#include "windows/WindowsPlatform.h"

namespace quorvel::console {

// Who gets to see messages: a person at the window, or the terminal.
enum class Audience { kWindow, kTerminal };

class ConsolePlatform final : public windows::WindowsPlatform {
 public:
  ConsolePlatform(ConsoleWindow& window, Audience audience);
  void ShowMessage(std::string_view text, std::string_view title) override;
  void SetMousePointer(MousePointer pointer) override;

 private:
  ReadingNotice& reading_;
  Audience audience_;
};

class HistorySession {
 public:
  // Places a viewer on `window`, which must outlive the session, opened for this view and process (-1 = all). It shows
  // nothing before a history is opened.
  HistorySession(ConsoleWindow& window, tlFromType fromType, std::int32_t processId, Audience audience);
  ~HistorySession();
  HistorySession(const HistorySession&) = delete;
  HistorySession& operator=(const HistorySession&) = delete;

  windows::ProcessLogWindow& viewer() { return viewer_; }

  // Opens a connection by its URL and shows it in place of the present one, which is closed then. A failure is shown
  // and logged, and leaves everything usable. True when the history is shown.
  bool OpenHistory(const std::string& url);

  // Opens the viewer for this view, as another host would.
  void OpenAs(tlFromType fromType);

  // Chooses the tab of this caption, as a click does. A tab that cannot be chosen is shown and logged as an error.
  bool ChooseTab(const std::string& caption);

  // Writes a report of the runs with these keys to a file, see CollectReport and SaveReport. What cannot be reported or
  // written is shown and logged.
  bool WriteReportOf(const std::string& keys, const std::filesystem::path& file);

 private:
  void Show(const std::string& url);

  ConsoleWindow& window_;
  ConsolePlatform platform_;
  datasource::ErrorsProcess errors_;
  hub::RecordHub hub_;
  ucProcessLog control_;
  windows::ProcessLogWindow viewer_;
  ViewerHost host_;
};

}  // namespace quorvel::console
