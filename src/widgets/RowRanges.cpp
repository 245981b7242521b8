#include "widgets/RowRanges.h"

#include <algorithm>

namespace quorvel::widgets {

void RowRanges::Add(RowRange range) {
  if (range.first >= range.last) return;
  const auto begin = std::ranges::lower_bound(ranges_, range.first, {}, &RowRange::last);
  const auto end = std::ranges::upper_bound(begin, ranges_.end(), range.last, {}, &RowRange::first);
  if (begin != end) {
    range.first = std::min(range.first, begin->first);
    range.last = std::max(range.last, std::prev(end)->last);
  }
  ranges_.insert(ranges_.erase(begin, end), range);
}

void RowRanges::Remove(RowRange range) {
  if (range.first >= range.last) return;
  std::vector<RowRange> kept;
  kept.reserve(ranges_.size() + 1);
  for (const RowRange& each : ranges_) {
    if (each.first < range.first) kept.push_back({each.first, std::min(each.last, range.first)});
    if (each.last > range.last) kept.push_back({std::max(each.first, range.last), each.last});
  }
  ranges_ = std::move(kept);
}

bool RowRanges::Contains(std::size_t row) const {
  const auto found = std::ranges::upper_bound(ranges_, row, {}, &RowRange::last);
  return found != ranges_.end() && found->first <= row;
}

std::size_t RowRanges::Count() const {
  std::size_t count = 0;
  for (const RowRange& range : ranges_) count += range.last - range.first;
  return count;
}

}  // namespace quorvel::widgets
