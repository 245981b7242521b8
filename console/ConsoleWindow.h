// The main window of the console: a form with menus and a status bar that holds a viewer.
#pragma once

#include <QMainWindow>
#include <QString>
#include <functional>

#include "qt/ProcessLogWidget.h"

namespace quorvel::console {

class ConsoleWindow final : public QMainWindow {
 public:
  ConsoleWindow();

  // Puts the viewer on the form, once; the form owns it.
  void Place(qt::ProcessLogWidget* viewer);

  // What "Open History..." does with the URL of the file that was chosen.
  void SetOpenHistory(std::function<void(const QString& url)> open) { openHistory_ = std::move(open); }

  // The history that the title names.
  void ShowHistoryName(const QString& url);

 private:
  void MakeStatusBar();
  void AskForHistory();
  void ShowAbout();

  std::function<void(const QString&)> openHistory_;
};

}  // namespace quorvel::console
