// Runs a scenario on Qt: quorvel_scenario_qt [--history URL] FILE.
#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QStatusBar>

#include "scenario/ProgramMain.h"
#include "scenario_qt/ScenarioQt.h"

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  QMainWindow window;
  auto* const status = new QStatusBar(&window);
  status->setObjectName("stStatusBar");
  status->addWidget(new QLabel(status));
  window.setStatusBar(status);
  auto* const form = new QWidget(&window);
  window.setCentralWidget(form);
  window.resize(1400, 1000);
  window.show();

  quorvel::scenario::ScenarioQt port([form](auto& platform, auto& factory) {
    auto* const viewer = new quorvel::qt::ProcessLogWidget(factory, platform, form);
    viewer->show();
    return viewer;
  });
  return quorvel::scenario::ProgramMain(port, {argv + 1, argv + argc}, std::cout, std::cerr);
}
