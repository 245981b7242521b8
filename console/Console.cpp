#include "console/Console.h"

#include <QApplication>
#include <QPainter>
#include <QPixmap>
#include <iostream>
#include <string>
#include <vector>

#include "console/Appearance.h"
#include "console/ConsoleWindow.h"
#include "console/HistorySession.h"
#include "console/ScenarioRun.h"
#include "console_core/ConsoleOptions.h"
#include "console_core/ScriptRun.h"
#include "qt/Convert.h"

namespace quorvel::console {
namespace {

using qt::ToQt;

// Nobody sits in front of the window.
bool IsUnattended() {
  return QGuiApplication::platformName() == "offscreen" || QGuiApplication::platformName() == "minimal";
}

// Off-screen, Qt complains of each thing that only a window manager does.
void DropOffscreenNoise() {
  qInstallMessageHandler([](QtMsgType type, const QMessageLogContext& context, const QString& text) {
    if (text.startsWith("This plugin does not support")) return;
    std::cerr << qt::FromQt(qFormatLogMessage(type, context, text)) << std::endl;
  });
}

// Qt ends the program when it finds no display; so it is not asked to look for one that cannot be there.
bool HasDisplay() {
  return qEnvironmentVariableIsSet("DISPLAY") || qEnvironmentVariableIsSet("WAYLAND_DISPLAY") ||
         qEnvironmentVariableIsSet("QT_QPA_PLATFORM");
}

int ExitCode(bool ok) {
  return ok ? 0 : 1;
}

// Where to look for a picture of the window; nowhere when it has no such part.
QRect PlaceOf(const QWidget& window, const QString& part) {
  constexpr int kSurroundings = 8;  // pixels, so that one sees where the part ends
  if (part.isEmpty()) return window.rect();
  const auto* const widget = window.findChild<QWidget*>(part);
  if (widget == nullptr) return {};
  // A dialog is a window of its own.
  const QRect place(window.mapFromGlobal(widget->mapToGlobal(QPoint())), widget->size());
  return place.adjusted(-kSurroundings, -kSurroundings, kSurroundings, kSurroundings) & window.rect();
}

// A part of the window, with the menus and dialogs that stand over it.
QPixmap PictureOf(QWidget& window, const QRect& place) {
  QPixmap picture = window.grab(place);
  QPainter painter(&picture);
  painter.setPen(window.palette().color(QPalette::Mid));
  for (QWidget* const above : QApplication::topLevelWidgets()) {
    const bool over = above->windowType() == Qt::Popup || above->windowType() == Qt::Dialog;
    if (!over || !above->isVisible()) continue;
    const QPoint corner = above->mapToGlobal(QPoint()) - window.mapToGlobal(place.topLeft());
    painter.drawPixmap(corner, above->grab());
    painter.drawRect(QRect(corner, above->size()).adjusted(-1, -1, 0, 0));
  }
  return picture;
}

int ShowWindow(const ConsoleOptions& options) {
  const bool unattended = IsUnattended();
  const Audience audience = unattended                   ? Audience::kTerminal
                            : options.screenshot.empty() ? Audience::kWindow
                                                         : Audience::kBoth;
  ConsoleWindow window;
  HistorySession session(window, options.fromType, options.processId, audience);
  window.resize(options.size.width, options.size.height);
  window.show();
  bool ok = options.history.empty() || session.OpenHistory(ToQt(options.history));
  if (!options.report.empty()) {
    return ExitCode(ok && session.WriteReportOf(ToQt(options.report), ToQt(options.output)));
  }
  if (ok && !options.tab.empty()) ok = session.ChooseTab(ToQt(options.tab));
  if (!options.screenshot.empty()) ok = WritePicture(window, ToQt(options.screenshot), ToQt(options.part)) && ok;
  // A person goes on from here; without one the picture was all there was to do.
  return unattended ? ExitCode(ok) : QApplication::exec();
}

}  // namespace

bool WritePicture(QWidget& window, const QString& file, const QString& part) {
  QCoreApplication::processEvents();
  const QRect place = PlaceOf(window, part);
  const bool written = !place.isEmpty() && PictureOf(window, place).save(file);
  if (written) {
    std::cout << qt::FromQt(file) << std::endl;
  } else {
    std::cerr << qt::FromQt(file) << ": The picture cannot be written" << std::endl;
  }
  return written;
}

int RunConsole(int argc, char** argv) {
  const std::vector<std::string> arguments(argv, argv + argc);
  const CommandLine commandLine = ReadCommandLine(arguments);
  if (!commandLine.options) {
    (commandLine.exitCode == 0 ? std::cout : std::cerr) << commandLine.text << std::flush;
    return commandLine.exitCode;
  }
  const ConsoleOptions& options = *commandLine.options;
  if (options.headless) return RunScenarioHeadless(options);
  if (!HasDisplay()) {
    if (options.screenshot.empty() && options.scenario.empty() && options.report.empty()) {
      std::cerr << "There is no display. --screenshot FILE.png draws the window off-screen." << std::endl;
      return ExitCode(false);
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
  }

  const QApplication application(argc, argv);
  if (IsUnattended()) DropOffscreenNoise();
  QCoreApplication::setApplicationName("Quorvel");
  QCoreApplication::setApplicationVersion(QUORVEL_VERSION);
  SetAppearance(options.dark);
  return options.scenario.empty() ? ShowWindow(options) : RunScenarioOnQt(options);
}

}  // namespace quorvel::console
