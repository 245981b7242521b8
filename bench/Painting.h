// Waiting until a pane has painted, and counting how often it did.
#pragma once

#include <QApplication>
#include <QEvent>
#include <QObject>
#include <QWidget>
#include <chrono>
#include <cstdio>
#include <cstdlib>

namespace quorvel::bench {

class PaintCounter : public QObject {
 public:
  bool eventFilter(QObject* /*watched*/, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }
  int count = 0;
};

// Where nothing changes nothing is painted: then the benchmark asks for the wrong thing, and ends.
inline void PumpUntilPainted(const PaintCounter& paints) {
  constexpr std::chrono::seconds kPatience{20};
  const auto start = std::chrono::steady_clock::now();
  while (paints.count == 0) {
    QApplication::processEvents();
    if (std::chrono::steady_clock::now() - start < kPatience) continue;
    std::fprintf(stderr, "Nothing was painted\n");
    std::exit(2);
  }
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
