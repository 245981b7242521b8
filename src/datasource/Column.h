// Columns of a record source: immutable blocks that are shared, never copied.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include "datasource/GrowingArray.h"

namespace quorvel::datasource {

// A flag as it comes from a record: true is -1, false 0; other values exist and count as set where a rule says
// non-zero.
using Flag = std::int16_t;
inline constexpr Flag kTrue = -1;
inline constexpr Flag kFalse = 0;

// One value per row. Copies share the block; it lives as long as any of them, whatever the source releases.
template <class T>
class Column {
 public:
  Column() = default;
  explicit Column(std::vector<T> values) { Hold(std::move(values)); }
  explicit Column(GrowingArray<T> values) { Hold(std::move(values)); }
  // Values that lie in a block of any kind, where they stay.
  Column(std::shared_ptr<const void> block, std::span<const T> values) : block_(std::move(block)), values_(values) {}

  std::size_t size() const { return values().size(); }
  // Valid as long as this column or a copy of it lives.
  std::span<const T> values() const { return block_ ? values_ : std::span<const T>(); }
  const T& operator[](std::size_t row) const { return values_[row]; }

 private:
  template <class Block>
  void Hold(Block&& values) {
    auto block = std::make_shared<const Block>(std::forward<Block>(values));
    values_ = std::span(block->data(), block->size());
    block_ = std::move(block);
  }

  std::shared_ptr<const void> block_;
  std::span<const T> values_;  // of the block
};

// One text per row; texts that repeat are stored once. Every text is valid UTF-8.
class TextColumn {
 public:
  // The stored texts, end to end in one arena, and which of them each row shows.
  struct Block {
    Block() { starts.push_back(0); }

    GrowingArray<char> arena;
    GrowingArray<std::size_t> starts;  // text i is arena[starts[i], starts[i + 1])
    GrowingArray<std::uint32_t> rows;  // index of the row's text

    std::string_view text(std::uint32_t index) const {
      return {arena.data() + starts[index], starts[index + 1] - starts[index]};
    }
  };

  TextColumn() = default;
  explicit TextColumn(Block block) : block_(std::make_shared<const Block>(std::move(block))) {}

  std::size_t size() const { return block_ ? block_->rows.size() : 0; }
  // Valid as long as this column or a copy of it lives.
  std::string_view operator[](std::size_t row) const { return block_->text(block_->rows[row]); }
  // Index into the stored texts, per row: equal numbers mean equal texts. In a column whose texts hardly ever repeat,
  // equal texts may have several numbers.
  std::span<const std::uint32_t> rows() const {
    return block_ ? std::span(block_->rows.data(), block_->rows.size()) : std::span<const std::uint32_t>();
  }

 private:
  std::shared_ptr<const Block> block_;
};

// Fills a text column row by row.
class TextColumnBuilder {
 public:
  void Reserve(std::size_t rows) { block_.rows.reserve(rows); }
  // Bytes that are not UTF-8 become the replacement character. `text` must not be one of this builder.
  // std::length_error beyond 2^31 stored texts.
  void Append(std::string_view text) {
    // Rows arrive grouped, so the text before is the likeliest.
    if (IsLast(text)) {
      Repeat();
    } else {
      AppendOther(text);
    }
  }
  // The text of the row before once more. There must be one.
  void Repeat() { block_.rows.push_back(block_.rows.back()); }
  // The column; the builder is empty again.
  TextColumn Take();

 private:
  // Texts in order mostly differ at their ends.
  bool IsLast(std::string_view text) const {
    if (block_.rows.empty()) return false;
    const std::string_view last = block_.text(block_.rows.back());
    return text.size() == last.size() && (text.empty() || (text.back() == last.back() && text == last));
  }
  void AppendOther(std::string_view text);
  std::size_t Stored() const { return block_.starts.size() - 1; }
  std::uint32_t* SlotOf(std::string_view text);
  std::uint32_t Store(std::string_view text);
  void MakeRoom();

  TextColumn::Block block_;
  std::vector<std::uint32_t> slots_;  // open addressing by hash: index of a stored text plus 1, 0 = free
  bool looksForRepeats_ = true;
};

}  // namespace quorvel::datasource
