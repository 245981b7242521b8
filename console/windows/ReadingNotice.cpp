#include "console_windows/ReadingNotice.h"

#include "console_core/ReadingWords.h"

namespace quorvel::console {

void ReadingNotice::Begin() {
  if (since_) return;
  since_ = std::chrono::steady_clock::now();
  PostMessageW(window_, message_, 0, 0);
}

void ReadingNotice::Show(const hub::QueryProgress& progress) {
  constexpr std::chrono::milliseconds kShortRequest(300);  // in which nobody begins to wonder
  Begin();
  if (std::chrono::steady_clock::now() - *since_ < kShortRequest) return;
  std::string words = WordsFor(progress.query);
  if (words.empty() || words == shown_) return;
  shown_ = std::move(words);
  bar_.ShowReading(shown_);
}

void ReadingNotice::End() {
  since_.reset();
  if (shown_.empty()) return;
  shown_.clear();
  bar_.ShowReading("");
}

}  // namespace quorvel::console
