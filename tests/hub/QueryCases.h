// What every implementation of the record-source contract must do, a case for each query.
#pragma once

#include <memory>
#include <span>
#include <string_view>

#include "datasource/RecordSource.h"

namespace quorvel::test {

// An implementation at work on the small history.
class Installation {
 public:
  virtual ~Installation() = default;
  virtual datasource::RecordSourceFactory& Factory() = 0;
  virtual std::int32_t Connection() const = 0;

  template <class Source>
  std::unique_ptr<Source> Create() {
    return datasource::CreateRecordSource<Source>(Factory(), "");
  }
};

struct QueryCase {
  std::string_view query;
  void (*check)(Installation& at);  // creates the class and sends the query in all ways that matter
};

// Of connections, with the commands of connections and of steps.
std::span<const QueryCase> ConnectionCases();
// Of alarms, backups, user imports and the scheduler's log.
std::span<const QueryCase> LogCases();

// The case of a query, null when there is none.
const QueryCase* CaseOf(std::string_view query);

}  // namespace quorvel::test
