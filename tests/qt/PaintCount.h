// Counts how often a widget is painted.
#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>
#include <utility>

namespace quorvel::test {

class PaintCount : public QObject {
 public:
  explicit PaintCount(QWidget& widget) { widget.installEventFilter(this); }
  // Since the last time, once all that is due was done.
  int Take() {
    QCoreApplication::processEvents();
    return std::exchange(count_, 0);
  }

 protected:
  bool eventFilter(QObject* /*widget*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count_;
    return false;
  }

 private:
  int count_ = 0;
};

}  // namespace quorvel::test
