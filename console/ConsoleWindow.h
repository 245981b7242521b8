// The main window of the console: a form with menus and a status bar that holds a viewer.
#pragma once

#include <QMainWindow>
#include <QString>
#include <functional>
#include <memory>

#include "console/ReadingNotice.h"
#include "console/ViewerMenus.h"
#include "qt/ProcessLogWidget.h"

class QLabel;
class QTimer;

namespace quorvel::console {

class ConsoleWindow final : public QMainWindow {
 public:
  ConsoleWindow();

  // Puts the viewer on the form, and its commands into the menus, once; the form owns it.
  void Place(qt::ProcessLogWidget* viewer);

  // What "Open History..." does with the URL of the file that was chosen.
  void SetOpenHistory(std::function<void(const QString& url)> open) { openHistory_ = std::move(open); }

  // The history that the title names.
  void ShowHistoryName(const QString& url);

  // Says something in the status bar for a while, beside what the viewer says there.
  void ShowNote(const QString& text);

  // In the status bar's second panel; the first is the viewer's.
  ReadingNotice& reading() { return *reading_; }

 private:
  void MakeStatusBar();
  void AskForHistory();
  void ShowAbout();

  std::function<void(const QString&)> openHistory_;
  std::unique_ptr<ViewerMenus> viewerMenus_;
  QLabel* note_ = nullptr;
  QTimer* noteEnds_;
  std::unique_ptr<ReadingNotice> reading_;
};

}  // namespace quorvel::console
