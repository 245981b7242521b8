// An execution report on the screen, from where it is printed and saved.
#pragma once

#include <QDialog>
#include <QString>

#include "console_core/ReportHtml.h"
#include "datasource/ErrorsProcess.h"

class QTextBrowser;

namespace quorvel::console {

// Stands beside the window that it belongs to, which stays usable. What cannot be printed or saved is shown and logged.
class ReportWindow final : public QDialog {
 public:
  // `errors` must outlive the window, which goes with its parent or when it is closed.
  ReportWindow(ReportText report, datasource::ErrorsProcess& errors, QWidget* parent);

  // Writes the report to a file, see SaveReport.
  void SaveTo(const QString& file);

 private:
  void MakePaper();
  void MakeButtons();
  void Print();
  // Asks where to, and saves there as this kind of file.
  void AskAndSave(const QString& kind, const QString& suffix);

  ReportText report_;
  datasource::ErrorsProcess& errors_;
  QTextBrowser* paper_;
};

}  // namespace quorvel::console
