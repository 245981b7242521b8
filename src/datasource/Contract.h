// The contract with the data-access component, as data: every query with its release and the columns that it fills.
#pragma once

#include <span>
#include <string_view>

#include "datasource/RecordSource.h"

namespace quorvel::datasource {

struct QueryContract {
  std::string_view classIdentifier;
  std::string_view query;
  std::string_view release;                   // "" where the result needs none
  std::span<const std::string_view> columns;  // each holds lngCount values after the query
  std::string_view interfaceIdentity;         // published by the component for the class
};

// Every query of the ten classes, in the order of the classes.
std::span<const QueryContract> Queries();

// The contract of one query; error 5 when it has none.
const QueryContract& ContractOf(std::string_view query);

// Raises error 9 when a column that `query` promises does not hold `count` values: a component that leaves one out must
// not be read past its end.
template <class Records>
void RequireColumns(std::string_view query, const Records& records, std::size_t count) {
  const QueryContract& contract = ContractOf(query);
  Records::ForEachColumn(records, [&](std::string_view name, const auto& column) {
    for (const std::string_view promised : contract.columns) {
      if (promised == name && column.size() != count) {
        throw Error(SystemError::kIndexOutOfRange, std::string(query) + ": column " + std::string(name) + " holds " +
                                                       std::to_string(column.size()) + " of " + std::to_string(count) +
                                                       " rows");
      }
    }
  });
}

}  // namespace quorvel::datasource
