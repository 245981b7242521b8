#include "datasource/Column.h"

#include <functional>
#include <stdexcept>

#include "datasource/Utf8.h"

namespace quorvel::datasource {
namespace {

constexpr std::size_t kFirstSlots = 64;
constexpr std::size_t kMostTexts = std::size_t{1} << 31;

}  // namespace

void TextColumnBuilder::Append(std::string_view text) {
  // Rows arrive grouped, so the text before is the likeliest.
  if (!block_.rows.empty() && block_.text(block_.rows.back()) == text) {
    block_.rows.push_back(block_.rows.back());
    return;
  }
  block_.rows.push_back(IsValidUtf8(text) ? IndexOf(text) : IndexOf(ReplaceInvalidUtf8(text)));
}

std::uint32_t TextColumnBuilder::IndexOf(std::string_view text) {
  const std::size_t count = block_.starts.size() - 1;
  if (slots_.size() < 2 * (count + 1)) Grow();
  const std::size_t mask = slots_.size() - 1;
  for (std::size_t slot = std::hash<std::string_view>{}(text)&mask;; slot = (slot + 1) & mask) {
    if (slots_[slot] == 0) {
      if (count >= kMostTexts) throw std::length_error("Too many texts in one column");
      block_.arena.append(text);
      block_.starts.push_back(block_.arena.size());
      slots_[slot] = static_cast<std::uint32_t>(count + 1);
      return static_cast<std::uint32_t>(count);
    }
    if (block_.text(slots_[slot] - 1) == text) return slots_[slot] - 1;
  }
}

void TextColumnBuilder::Grow() {
  slots_.assign(slots_.empty() ? kFirstSlots : slots_.size() * 2, 0);
  const std::size_t mask = slots_.size() - 1;
  for (std::uint32_t index = 0; index + 1 < block_.starts.size(); ++index) {
    std::size_t slot = std::hash<std::string_view>{}(block_.text(index)) & mask;
    while (slots_[slot] != 0) slot = (slot + 1) & mask;
    slots_[slot] = index + 1;
  }
}

TextColumn TextColumnBuilder::Take() {
  slots_.clear();
  return TextColumn(std::exchange(block_, {}));
}

}  // namespace quorvel::datasource
