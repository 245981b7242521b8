// Waiting until a pane has painted, and counting how often it did.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QObject>
#include <QWidget>

namespace quorvel::bench {

class PaintCounter : public QObject {
 public:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }
  int count = 0;
};

inline void PumpUntilPainted(const PaintCounter& paints) {
  while (paints.count == 0) QApplication::processEvents();
  QApplication::processEvents();
}

// A pane on the screen as it is in use: it showed something before, so that its scroll bars are there.
template <class Pane>
void ShowInUse(Pane& pane, PaintCounter& paints) {
  pane.resize(900, 700);
  pane.viewport()->installEventFilter(&paints);
  pane.show();
  PumpUntilPainted(paints);
  paints.count = 0;
}

}  // namespace quorvel::bench
