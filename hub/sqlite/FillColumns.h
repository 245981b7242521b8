// Reads the rows of a statement into the columns of a record source, in one pass.
#pragma once

#include <cstddef>
#include <cstdint>
#include <tuple>
#include <type_traits>
#include <utility>

#include "datasource/Column.h"
#include "hub/sqlite/Statement.h"

namespace quorvel::hub {

template <class T>
class ValueBuilder {
 public:
  void Append(const Statement& rows, int column) { values_.push_back(rows.Get<T>(column)); }
  void Repeat() { values_.push_back(values_.back()); }
  datasource::Column<T> Take() {
    values_.shrink_to_fit();
    return datasource::Column<T>(std::move(values_));
  }

 private:
  datasource::GrowingArray<T> values_;
};

class TextBuilder {
 public:
  void Append(const Statement& rows, int column) { texts_.Append(rows.Get<std::string_view>(column)); }
  void Repeat() { texts_.Repeat(); }
  datasource::TextColumn Take() { return texts_.Take(); }

 private:
  datasource::TextColumnBuilder texts_;
};

ValueBuilder<std::int32_t> BuilderFor(const datasource::Column<std::int32_t>&);
ValueBuilder<datasource::Flag> BuilderFor(const datasource::Column<datasource::Flag>&);
ValueBuilder<double> BuilderFor(const datasource::Column<double>&);
TextBuilder BuilderFor(const datasource::TextColumn&);

// Fills `columns`, which stand in the order of the statement's result columns, and gives the number of rows. The first
// `kGrouped` columns hold what belongs to a group of rows that follow each other: as long as the first of them, the
// group's identifier, stays the same, the others are not read again. Nothing changes when reading fails.
template <std::size_t kGrouped = 0, class... Columns>
std::int32_t FillColumns(Statement& rows, Columns&... columns) {
  std::tuple<decltype(BuilderFor(columns))...> builders;
  const auto append = [&]<std::size_t... kIndex>(std::index_sequence<kIndex...>, auto first) {
    (std::get<first + kIndex>(builders).Append(rows, static_cast<int>(first + kIndex)), ...);
  };
  const auto repeat = [&]<std::size_t... kIndex>(std::index_sequence<kIndex...>) {
    (std::get<kIndex>(builders).Repeat(), ...);
  };
  constexpr std::integral_constant<std::size_t, 0> kFirst;
  constexpr std::integral_constant<std::size_t, kGrouped> kFirstOfRow;

  std::size_t count = 0;
  std::int32_t group = 0;
  for (; rows.Step(); ++count) {
    if constexpr (kGrouped > 0) {
      const auto next = rows.Get<std::int32_t>(0);
      if (count > 0 && next == group) {
        repeat(std::make_index_sequence<kGrouped>{});
      } else {
        append(std::make_index_sequence<kGrouped>{}, kFirst);
      }
      group = next;
    }
    append(std::make_index_sequence<sizeof...(Columns) - kGrouped>{}, kFirstOfRow);
  }
  if (!std::in_range<std::int32_t>(count)) throw HubError(SystemError::kOverflow, "More rows than can be counted");
  std::apply([&](auto&... builder) { ((columns = builder.Take()), ...); }, builders);
  return static_cast<std::int32_t>(count);
}

}  // namespace quorvel::hub
