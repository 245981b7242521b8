#include "tree/RootOrder.h"

#include <algorithm>
#include <span>

namespace quorvel::tree {
namespace {

using datasource::ProcessLogRecords;

// A root, and what it goes by.
struct Root {
  RowSpan rows;
  DateValue newest = 0;
  std::size_t others = 0;  // stations that a process reached, processes that ran on a station
};

// The criteria before the one at which the order of the rows settles it.
std::vector<RootCriterion> CriteriaBefore(std::string_view groupBy, RootCriterion ownKind) {
  std::vector<RootCriterion> criteria;
  for (const char digit : groupBy) {
    const auto criterion = static_cast<RootCriterion>(digit - '0');
    if (criterion == RootCriterion::kOrigin || criterion == ownKind) break;
    criteria.push_back(criterion);
  }
  return criteria;
}

bool ComesBefore(const Root& left, const Root& right, std::span<const RootCriterion> criteria) {
  for (const RootCriterion criterion : criteria) {
    if (criterion == RootCriterion::kDate) {
      if (left.newest != right.newest) return left.newest > right.newest;
    } else if (left.others != right.others) {
      return left.others > right.others;
    }
  }
  return false;
}

// A root for each stretch of rows that name the same one; `describe` says what it goes by.
template <class Describe>
std::vector<RowSpan> Arrange(std::span<const std::int32_t> names, std::span<const RootCriterion> criteria,
                             Describe describe) {
  if (criteria.empty()) return {{0, names.size()}};
  std::vector<Root> roots;
  for (std::size_t first = 0; first < names.size();) {
    Root root{.rows = {first, first + 1}};
    while (root.rows.last < names.size() && names[root.rows.last] == names[first]) ++root.rows.last;
    describe(root);
    roots.push_back(root);
    first = root.rows.last;
  }
  std::ranges::stable_sort(roots,
                           [&](const Root& left, const Root& right) { return ComesBefore(left, right, criteria); });
  std::vector<RowSpan> spans;
  spans.reserve(roots.size());
  for (const Root& root : roots) spans.push_back(root.rows);
  return spans;
}

}  // namespace

std::vector<RowSpan> ArrangeProcesses(const ProcessLogRecords& rows, std::size_t count, std::string_view groupBy) {
  return Arrange(rows.lngProcessId.values().first(count), CriteriaBefore(groupBy, RootCriterion::kProcess),
                 [&](Root& root) {
                   // Its newest run comes first, a row for each station.
                   root.newest = rows.dtStartDate[root.rows.first];
                   const std::int32_t run = rows.lngProcessLogId[root.rows.first];
                   for (std::size_t row = root.rows.first; row < root.rows.last; ++row) {
                     if (rows.lngProcessLogId[row] != run) break;
                     if (rows.lngUserId[row] >= 0) ++root.others;
                   }
                 });
}

std::vector<RowSpan> ArrangeStations(const ProcessLogRecords& rows, std::size_t count, std::string_view groupBy) {
  return Arrange(rows.lngUserId.values().first(count), CriteriaBefore(groupBy, RootCriterion::kUser), [&](Root& root) {
    for (std::size_t row = root.rows.first; row < root.rows.last; ++row) {
      root.newest = std::max(root.newest, rows.dtStartDate[row]);
      if (row == root.rows.first || rows.lngProcessId[row] != rows.lngProcessId[row - 1]) ++root.others;
    }
  });
}

}  // namespace quorvel::tree
