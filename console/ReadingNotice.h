// Says in the status bar what is being read, when that takes long.
#pragma once

#include <QElapsedTimer>
#include <QLabel>
#include <QObject>
#include <QTimer>

#include "hub/Progress.h"

namespace quorvel::console {

// A request is what happens between two looks of Qt at its events: as long as one lasts, the window answers nobody.
class ReadingNotice final : public QObject {
 public:
  // Writes into `panel`, which must outlive the notice.
  explicit ReadingNotice(QLabel& panel);

  // A request begins, unless one is going on. Where nobody says so, it begins with its first query.
  void Begin();

  // A query is at work. After 300 ms of the request the panel says so; it alone is painted, and no input is handled.
  void Show(const hub::QueryProgress& progress);

 private:
  void End();

  QLabel& panel_;
  QTimer end_;           // runs out as soon as Qt looks at its events
  QElapsedTimer since_;  // when the request began; not valid between requests
};

}  // namespace quorvel::console
