// What the control asks of its surroundings, answered by Qt and the window that holds it.
#pragma once

#include <QPointer>
#include <QWidget>

#include "platform/StandardPlatform.h"
#include "qt/EscapeWatch.h"

namespace quorvel::qt {

// The host's status bar is the QStatusBar named "stStatusBar" in the window of `widget`; its first panel is the first
// QLabel on it, or its message where it has none.
class QtPlatform : public StandardPlatform {
 public:
  // `widget`: message boxes belong to its window.
  explicit QtPlatform(QWidget& widget) : widget_(&widget) {}
  // Gives the default pointer back.
  ~QtPlatform() override;
  QtPlatform(const QtPlatform&) = delete;
  QtPlatform& operator=(const QtPlatform&) = delete;

  void ShowMessage(std::string_view text, std::string_view title) override;
  void SetMousePointer(MousePointer pointer) override;
  void ClearClipboard() override;
  void SetClipboardText(std::string_view text) override;
  void OpenFile(const std::filesystem::path& file) override;
  void OpenFileWith(const std::filesystem::path& file) override;
  bool IsEscapePressed() override;
  void SetHostStatusText(std::string_view text) override;

 private:
  // While a person is asked.
  template <class Body>
  void WithDefaultPointer(Body body);

  QPointer<QWidget> widget_;
  MousePointer pointer_ = MousePointer::kDefault;
  EscapeWatch escape_;
};

}  // namespace quorvel::qt
