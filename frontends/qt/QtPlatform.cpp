#include "qt/QtPlatform.h"

#include <QApplication>
#include <QClipboard>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QMessageBox>
#include <QProcess>
#include <QStatusBar>
#include <QUrl>
#include <string>
#include <system_error>

#include "platform/Error.h"
#include "qt/Convert.h"

namespace quorvel::qt {

QtPlatform::~QtPlatform() {
  if (pointer_ == MousePointer::kHourglass) QGuiApplication::restoreOverrideCursor();
}

void QtPlatform::ShowMessage(std::string_view text, std::string_view title) {
  // Over the dialog that is open, if one is: behind it nobody could answer.
  QWidget* const dialog = QApplication::activeModalWidget();
  QWidget* const window = widget_ ? widget_->window() : nullptr;
  QMessageBox box(QMessageBox::NoIcon, ToQt(title), ToQt(text), QMessageBox::Ok, dialog != nullptr ? dialog : window);
  box.setTextFormat(Qt::PlainText);
  WithDefaultPointer([&] { box.exec(); });
}

// Nobody should look for a button with an hourglass.
template <class Body>
void QtPlatform::WithDefaultPointer(Body body) {
  const MousePointer pointer = pointer_;
  SetMousePointer(MousePointer::kDefault);
  body();
  SetMousePointer(pointer);
}

void QtPlatform::SetMousePointer(MousePointer pointer) {
  if (pointer == pointer_) return;
  pointer_ = pointer;
  if (pointer == MousePointer::kHourglass) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
}

void QtPlatform::ClearClipboard() {
  QGuiApplication::clipboard()->clear();
}

void QtPlatform::SetClipboardText(std::string_view text) {
  QGuiApplication::clipboard()->setText(ToQt(text));
}

void QtPlatform::OpenFile(const std::filesystem::path& file) {
  std::error_code code;
  if (!std::filesystem::exists(file, code)) throw Error(SystemError::kFileNotFound, file.string() + ": File not found");
  if (!QDesktopServices::openUrl(QUrl::fromLocalFile(ToQt(file.string())))) {
    throw Error(SystemError::kInvalidCall, file.string() + ": No program opens this file");
  }
}

// No desktop but Windows has a dialog of its own for this: the user shows the program itself, which gets the file as
// its one argument, past any shell.
void QtPlatform::OpenFileWith(const std::filesystem::path& file) {
  const QString path = ToQt(file.string());
  const QString title = QStringLiteral("Open %1 with").arg(QFileInfo(path).fileName());
  QString program;
  WithDefaultPointer([&] {
    program = QFileDialog::getOpenFileName(widget_ ? widget_->window() : nullptr, title, QStringLiteral("/usr/bin"));
  });
  if (program.isEmpty()) return;
  if (!QProcess::startDetached(program, {path})) {
    throw Error(SystemError::kInvalidCall, FromQt(program) + ": The program does not start");
  }
}

bool QtPlatform::IsEscapePressed() {
  return escape_.IsPressed();
}

void QtPlatform::SetHostStatusText(std::string_view text) {
  auto* const bar = widget_ ? widget_->window()->findChild<QStatusBar*>(QStringLiteral("stStatusBar")) : nullptr;
  if (bar == nullptr) throw Error(SystemError::kUnsupportedMember, "The host has no status bar stStatusBar");
  if (auto* const panel = bar->findChild<QLabel*>()) {
    panel->setText(ToQt(text));
  } else {
    bar->showMessage(ToQt(text));
  }
}

}  // namespace quorvel::qt
