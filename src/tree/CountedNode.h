// Nodes that stand for several records: how many there are, and how many of them need a look.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "list/Classification.h"

namespace quorvel::tree {

struct Tally {
  std::int64_t count = 0;
  std::int64_t failed = 0;

  void Add(const Tally& more) {
    count += more.count;
    failed += more.failed;
  }
};

// "2026/11 (120)", and "2026/11 (120, 3 NOT OK)" when some failed, `failed` being what they are called.
inline std::string CountedText(std::string_view name, const Tally& tally,
                               std::string_view failed = list::kNotOkCaption) {
  std::string text(name);
  text.append(" (").append(std::to_string(tally.count));
  if (tally.failed > 0) text.append(", ").append(std::to_string(tally.failed)).append(" ").append(failed);
  return text.append(")");
}

}  // namespace quorvel::tree
