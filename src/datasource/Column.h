// Columns of a record source: immutable blocks that are shared, never copied.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

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
  explicit Column(std::vector<T> values) : block_(std::make_shared<const std::vector<T>>(std::move(values))) {}

  std::size_t size() const { return block_ ? block_->size() : 0; }
  // Valid as long as this column or a copy of it lives.
  std::span<const T> values() const { return block_ ? std::span<const T>(*block_) : std::span<const T>(); }
  const T& operator[](std::size_t row) const { return (*block_)[row]; }

 private:
  std::shared_ptr<const std::vector<T>> block_;
};

// One text per row; equal texts are stored once. Every text is valid UTF-8.
class TextColumn {
 public:
  // The distinct texts, end to end in one arena, and which of them each row shows.
  struct Block {
    std::string arena;
    std::vector<std::size_t> starts{0};  // text i is arena[starts[i], starts[i + 1])
    std::vector<std::uint32_t> rows;     // index of the row's text

    std::string_view text(std::uint32_t index) const {
      return std::string_view(arena).substr(starts[index], starts[index + 1] - starts[index]);
    }
  };

  TextColumn() = default;
  explicit TextColumn(Block block) : block_(std::make_shared<const Block>(std::move(block))) {}

  std::size_t size() const { return block_ ? block_->rows.size() : 0; }
  // Valid as long as this column or a copy of it lives.
  std::string_view operator[](std::size_t row) const { return block_->text(block_->rows[row]); }
  // Index into the distinct texts, per row: equal numbers mean equal texts.
  std::span<const std::uint32_t> rows() const {
    return block_ ? std::span<const std::uint32_t>(block_->rows) : std::span<const std::uint32_t>();
  }

 private:
  std::shared_ptr<const Block> block_;
};

// Fills a text column row by row.
class TextColumnBuilder {
 public:
  void Reserve(std::size_t rows) { block_.rows.reserve(rows); }
  // Bytes that are not UTF-8 become the replacement character. std::length_error beyond 2^31 distinct texts.
  void Append(std::string_view text);
  // The text of the row before once more. There must be one.
  void Repeat() { block_.rows.push_back(block_.rows.back()); }
  // The column; the builder is empty again.
  TextColumn Take();

 private:
  std::uint32_t IndexOf(std::string_view text);
  void Grow();

  TextColumn::Block block_;
  std::vector<std::uint32_t> slots_;  // open addressing by hash: index of a distinct text plus 1, 0 = free
};

}  // namespace quorvel::datasource
