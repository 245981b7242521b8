// The Escape key while the program works and handles no input.
#pragma once

#include <QElapsedTimer>
#include <QEvent>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <memory>
#include <utility>
#include <vector>

namespace quorvel::qt {

// Lets the window system tell what happened meanwhile. Clicks, and the wish to close a window, wait in their order
// until the program handles events again; keys other than Escape are for what is on the screen now, and do nothing.
class EscapeWatch final : public QObject {
 public:
  // Whether Escape was pressed since the last call. Looks a few times a second, however often it is asked.
  bool IsPressed();

 protected:
  bool eventFilter(QObject* target, QEvent* event) override;

 private:
  bool Keep(QWidget& target, QEvent& event);
  void LetGo();

  QElapsedTimer lastLook_;
  bool pressed_ = false;
  std::vector<std::pair<QPointer<QWidget>, std::unique_ptr<QEvent>>> waiting_;
};

}  // namespace quorvel::qt
