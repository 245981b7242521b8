#include "console/ConsoleWindow.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>
#include <QLabel>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QTimer>

#include "qt/Guard.h"

namespace quorvel::console {
namespace {

constexpr const char* kProduct = "Quorvel console";

}  // namespace

ConsoleWindow::ConsoleWindow() : noteEnds_(new QTimer(this)) {
  setWindowTitle(kProduct);
  MakeStatusBar();
  noteEnds_->setSingleShot(true);
  connect(noteEnds_, &QTimer::timeout, note_, &QLabel::clear);
}

void ConsoleWindow::Place(qt::ProcessLogWidget* viewer) {
  const auto add = [this](QMenu* menu, const QString& text, const QKeySequence& shortcut, auto body) {
    QAction* const action = menu->addAction(text);
    action->setShortcut(shortcut);
    connect(action, &QAction::triggered, this, [body](bool) { qt::Guarded(body); });
  };
  QMenu* const file = menuBar()->addMenu("&File");
  add(file, "&Open History...", QKeySequence::Open, [this] { AskForHistory(); });
  file->addSeparator();
  add(file, "&Quit", QKeySequence(Qt::CTRL | Qt::Key_Q), [this] { close(); });
  QMenu* const log = menuBar()->addMenu("&Log");
  QMenu* const view = menuBar()->addMenu("&View");
  view->addAction(&viewer->refreshAction());
  view->addSeparator();
  viewerMenus_ = std::make_unique<ViewerMenus>(*viewer, *log, *view);
  add(menuBar()->addMenu("&Help"), "&About", {}, [this] { ShowAbout(); });
  setCentralWidget(viewer);
  viewer->setFocus();
}

void ConsoleWindow::MakeStatusBar() {
  statusBar()->setObjectName("stStatusBar");
  const auto make = [this](const char* name) {
    auto* const panel = new QLabel(this);
    panel->setObjectName(name);
    panel->setContentsMargins(8, 0, 8, 0);
    return panel;
  };
  statusBar()->addWidget(make("Panel1"), 1);
  note_ = make("Note");
  statusBar()->addPermanentWidget(note_);
  QLabel* const second = make("Panel2");
  statusBar()->addPermanentWidget(second);
  reading_ = std::make_unique<ReadingNotice>(*second);
}

void ConsoleWindow::ShowNote(const QString& text) {
  constexpr int kNoteMilliseconds = 10'000;
  note_->setText(text);
  noteEnds_->start(kNoteMilliseconds);
}

void ConsoleWindow::AskForHistory() {
  const QString filter("Histories (*.db *.sqlite *.sqlite3);;All files (*)");
  const QString file = QFileDialog::getOpenFileName(this, "Open History", {}, filter);
  if (!file.isEmpty() && openHistory_) openHistory_("sqlite:" + file);
}

void ConsoleWindow::ShowAbout() {
  const QString text(
      "<h3>%1 %2</h3><p>Shows what an installation executed: processes, their runs, and what became of "
      "them on every station.</p>");
  QMessageBox::about(this, kProduct, text.arg(kProduct, QApplication::applicationVersion()));
}

void ConsoleWindow::ShowHistoryName(const QString& url) {
  const QString path = url.section(':', 1).section('?', 0, 0);
  setWindowTitle(QFileInfo(path).fileName() + " - " + kProduct);
}

}  // namespace quorvel::console
