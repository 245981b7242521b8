// What a query answered, as text and as values, for the cases of queries.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <iomanip>
#include <sstream>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "datasource/Contract.h"

namespace quorvel::test {

using Ids = std::vector<std::int32_t>;

// A line for each row: the promised columns in member order, joined by "|". The others must be empty.
template <class Source>
std::string Rows(std::string_view query, const Source& source) {
  const auto count = static_cast<std::size_t>(source.lngCount());
  datasource::RequireColumns(query, source.Records(), count);
  const auto promised = datasource::ContractOf(query).columns;
  std::vector<std::ostringstream> lines(count);
  std::remove_cvref_t<decltype(source.Records())>::ForEachColumn(
      source.Records(), [&](std::string_view name, const auto& column) {
        if (std::ranges::find(promised, name) == promised.end()) {
          EXPECT_EQ(column.size(), 0U) << name;
          return;
        }
        for (std::size_t row = 0; row < count; ++row) lines[row] << std::setprecision(12) << column[row] << '|';
      });
  std::string text;
  for (const std::ostringstream& line : lines) text += line.str() + '\n';
  return text;
}

inline Ids All(const datasource::Column<std::int32_t>& column) {
  return {column.values().begin(), column.values().end()};
}

}  // namespace quorvel::test
