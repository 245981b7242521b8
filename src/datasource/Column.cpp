#include "datasource/Column.h"

#include <functional>
#include <stdexcept>

#include "datasource/Utf8.h"

namespace quorvel::datasource {
namespace {

constexpr std::size_t kFirstSlots = 64;
constexpr std::size_t kMostTexts = std::size_t{1} << 31;
// So many texts are looked up whatever comes. A table of more of them no longer fits the processor's caches, and pays
// only where texts repeat.
constexpr std::size_t kAlwaysLookedUp = std::size_t{1} << 14;

}  // namespace

void TextColumnBuilder::AppendOther(std::string_view text) {
  std::uint32_t* const slot = SlotOf(text);
  if (slot != nullptr && *slot != 0) return block_.rows.push_back(*slot - 1);
  // Stored texts are valid, so that only new ones need a look.
  if (!IsValidUtf8(text)) return Append(ReplaceInvalidUtf8(text));
  const std::uint32_t index = Store(text);
  if (slot != nullptr) *slot = index + 1;
  block_.rows.push_back(index);
}

// The place of a text in the table, or the free one that it would take; null when repeats are not looked for.
std::uint32_t* TextColumnBuilder::SlotOf(std::string_view text) {
  if (!looksForRepeats_) return nullptr;
  if (slots_.size() < 2 * (Stored() + 1)) {
    MakeRoom();
    if (!looksForRepeats_) return nullptr;
  }
  const std::size_t mask = slots_.size() - 1;
  std::size_t slot = std::hash<std::string_view>{}(text)&mask;
  while (slots_[slot] != 0 && block_.text(slots_[slot] - 1) != text) slot = (slot + 1) & mask;
  return &slots_[slot];
}

void TextColumnBuilder::MakeRoom() {
  if (Stored() >= kAlwaysLookedUp && block_.rows.size() < 2 * Stored()) {
    looksForRepeats_ = false;
    slots_ = {};
    return;
  }
  slots_.assign(slots_.empty() ? kFirstSlots : slots_.size() * 2, 0);
  const std::size_t mask = slots_.size() - 1;
  for (std::uint32_t index = 0; index < Stored(); ++index) {
    std::size_t slot = std::hash<std::string_view>{}(block_.text(index)) & mask;
    while (slots_[slot] != 0) slot = (slot + 1) & mask;
    slots_[slot] = index + 1;
  }
}

std::uint32_t TextColumnBuilder::Store(std::string_view text) {
  const std::size_t index = Stored();
  if (index >= kMostTexts) throw std::length_error("Too many texts in one column");
  block_.arena.append(text.data(), text.size());
  block_.starts.push_back(block_.arena.size());
  return static_cast<std::uint32_t>(index);
}

TextColumn TextColumnBuilder::Take() {
  slots_ = {};
  looksForRepeats_ = true;
  TextColumn::Block block = std::exchange(block_, {});
  block.arena.shrink_to_fit();
  block.starts.shrink_to_fit();
  block.rows.shrink_to_fit();
  return TextColumn(std::move(block));
}

}  // namespace quorvel::datasource
