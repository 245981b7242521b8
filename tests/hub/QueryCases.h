// What every implementation of the record-source contract must do, a case for each query.
#pragma once

#include <memory>
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
  void (*ask)(Installation& at);    // creates the class and sends the query once
  void (*check)(Installation& at);  // null while no implementation answers the query
};

// The case of a query, null when there is none.
const QueryCase* CaseOf(std::string_view query);

}  // namespace quorvel::test
