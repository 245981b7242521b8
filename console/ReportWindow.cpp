#include "console/ReportWindow.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>
#include <QTextBrowser>
#include <QVBoxLayout>

#include "console/ReportPages.h"
#include "qt/Convert.h"
#include "qt/Guard.h"

namespace quorvel::console {
namespace {

constexpr QSize kSize(860, 720);
constexpr double kPaperMargin = 36;  // pixels

}  // namespace

ReportWindow::ReportWindow(ReportText report, datasource::ErrorsProcess& errors, QWidget* parent)
    : QDialog(parent, Qt::Window), report_(std::move(report)), errors_(errors), paper_(new QTextBrowser(this)) {
  setObjectName("ReportWindow");
  setWindowTitle("Execution Report");
  setAttribute(Qt::WA_DeleteOnClose);
  resize(kSize);
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(paper_);
  MakePaper();
  MakeButtons();
}

// Paper is white in the dark too: what is seen is what is printed.
void ReportWindow::MakePaper() {
  QPalette paper = paper_->palette();
  paper.setColor(QPalette::Base, Qt::white);
  paper.setColor(QPalette::Text, Qt::black);
  paper_->setPalette(paper);
  paper_->setAccessibleName("Execution report");
  paper_->setOpenLinks(false);
  paper_->document()->setDocumentMargin(kPaperMargin);
  paper_->setHtml(qt::ToQt(report_.html));
  paper_->setFocus();
}

void ReportWindow::MakeButtons() {
  auto* const buttons = new QDialogButtonBox(this);
  const auto add = [&](const QString& text, auto body) {
    QPushButton* const button = buttons->addButton(text, QDialogButtonBox::ActionRole);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, [body] { qt::Guarded(body); });
  };
  add("&Print...", [this] { Print(); });
  add("Save as P&DF...", [this] { AskAndSave("PDF", "pdf"); });
  add("Save as &HTML...", [this] { AskAndSave("HTML", "html"); });
  add("&Close", [this] { close(); });
  layout()->addWidget(buttons);
}

void ReportWindow::Print() {
  QPrinter printer(QPrinter::HighResolution);
  printer.setDocName(windowTitle());
  QPrintDialog dialog(&printer, this);
  if (dialog.exec() != QDialog::Accepted) return;
  datasource::Reporting(errors_, "Quorvel: console.PrintReport", [&] {
    PaintReport(report_, printer, {printer.fromPage(), printer.toPage()});
  });
}

void ReportWindow::AskAndSave(const QString& kind, const QString& suffix) {
  QFileDialog dialog(this, "Save as " + kind, {}, QString("%1 files (*.%2);;All files (*)").arg(kind, suffix));
  dialog.setAcceptMode(QFileDialog::AcceptSave);
  dialog.setDefaultSuffix(suffix);
  dialog.selectFile("execution-report." + suffix);
  if (dialog.exec() == QDialog::Accepted) SaveTo(dialog.selectedFiles().constFirst());
}

void ReportWindow::SaveTo(const QString& file) {
  datasource::Reporting(errors_, "Quorvel: console.SaveReport", [&] { SaveReport(report_, file); });
}

}  // namespace quorvel::console
