// One history open in one window: the connection, the viewer that shows it, and what is said when it cannot be opened.
#pragma once

#include <QPointer>
#include <cstdint>
#include <memory>

#include "console/ConsoleWindow.h"
#include "console/ViewerHost.h"
#include "control/Enumerations.h"
#include "datasource/ErrorsProcess.h"
#include "hub/RecordHub.h"
#include "qt/QtPlatform.h"

namespace quorvel::console {

// Who gets to see messages: a person at the window, the terminal, or both.
enum class Audience { kWindow, kTerminal, kBoth };

class ConsolePlatform final : public qt::QtPlatform {
 public:
  ConsolePlatform(ConsoleWindow& window, Audience audience)
      : QtPlatform(window), reading_(window.reading()), audience_(audience) {}
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

  // Opens a connection by its URL and shows it in place of the present one, which is closed then. A failure is shown
  // and logged, and leaves everything usable. True when the history is shown.
  bool OpenHistory(const QString& url);

  // Chooses the tab of this caption, as a click does. A tab that cannot be chosen is shown and logged as an error.
  bool ChooseTab(const QString& caption);

  // Writes a report of the runs with these keys to a file, see CollectReport and SaveReport. What cannot be reported or
  // written is shown and logged.
  bool WriteReportOf(const QString& keys, const QString& file);

 private:
  void Show(const QString& url);

  ConsoleWindow& window_;
  ConsolePlatform platform_;
  datasource::ErrorsProcess errors_;
  hub::RecordHub hub_;
  QPointer<qt::ProcessLogWidget> viewer_;
  std::unique_ptr<ViewerHost> host_;
};

}  // namespace quorvel::console
