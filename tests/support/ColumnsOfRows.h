// Columns from rows that a test writes down as structs.
#pragma once

#include <algorithm>
#include <iterator>
#include <string>
#include <type_traits>
#include <vector>

#include "support/FakeSources.h"

namespace quorvel::test {

// The column of what `member`, a member or a function, gives of each row.
template <class Row, class Member>
auto ColumnOf(const std::vector<Row>& rows, Member member) {
  std::vector<std::remove_cvref_t<std::invoke_result_t<Member, const Row&>>> values;
  std::ranges::transform(rows, std::back_inserter(values), member);
  if constexpr (std::is_same_v<decltype(values), std::vector<std::string>>) {
    return MakeTexts(values);
  } else {
    return MakeColumn(std::move(values));
  }
}

}  // namespace quorvel::test
