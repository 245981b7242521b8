#include "console/ReadingNotice.h"

#include <algorithm>

#include "console_core/ReadingWords.h"
#include "qt/Convert.h"
#include "qt/Guard.h"

namespace quorvel::console {
namespace {

constexpr int kShortRequest = 300;  // milliseconds, in which nobody begins to wonder

}  // namespace

ReadingNotice::ReadingNotice(QLabel& panel) : panel_(panel) {
  // Room for the longest text from the beginning: while a request goes on, nothing is laid out.
  int width = 0;
  for (const Reading& reading : Readings()) {
    width = std::max(width, panel_.fontMetrics().horizontalAdvance(qt::ToQt(WordsFor(reading.query))));
  }
  const QMargins margins = panel_.contentsMargins();
  panel_.setMinimumWidth(width + margins.left() + margins.right() + 2 * panel_.margin());
  end_.setSingleShot(true);
  end_.setInterval(0);
  qt::On(&end_, &QTimer::timeout, this, [this](auto&&...) { End(); });
}

void ReadingNotice::Begin() {
  if (since_.isValid()) return;
  since_.start();
  end_.start();
}

void ReadingNotice::Show(const hub::QueryProgress& progress) {
  Begin();
  if (!since_.hasExpired(kShortRequest)) return;
  const QString words = qt::ToQt(WordsFor(progress.query));
  if (words.isEmpty() || words == panel_.text()) return;
  panel_.setText(words);
  panel_.repaint();
}

void ReadingNotice::End() {
  since_.invalidate();
  panel_.clear();
}

}  // namespace quorvel::console
