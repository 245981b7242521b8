// A set of rows, kept as ranges: a million selected rows cost as much as one.
#pragma once

#include <cstddef>
#include <span>
#include <vector>

namespace quorvel::widgets {

// Rows first <= row < last.
struct RowRange {
  std::size_t first = 0;
  std::size_t last = 0;
  friend bool operator==(const RowRange&, const RowRange&) = default;
};

class RowRanges {
 public:
  RowRanges() = default;
  explicit RowRanges(RowRange range) { Add(range); }

  void Add(RowRange range);
  void Remove(RowRange range);
  void Clear() { ranges_.clear(); }

  bool Contains(std::size_t row) const;
  std::size_t Count() const;
  bool empty() const { return ranges_.empty(); }
  // Ascending, disjoint, not touching each other.
  std::span<const RowRange> ranges() const { return ranges_; }

  friend bool operator==(const RowRanges&, const RowRanges&) = default;

 private:
  std::vector<RowRange> ranges_;
};

}  // namespace quorvel::widgets
