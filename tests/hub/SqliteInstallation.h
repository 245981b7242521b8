// The hub over SQLite, at work on the small history.
#pragma once

#include "hub/QueryCases.h"
#include "hub/RecordHub.h"
#include "support/SmallHistory.h"

namespace quorvel::test {

class SqliteInstallation final : public Installation {
 public:
  datasource::RecordSourceFactory& Factory() override { return hub_; }
  std::int32_t Connection() const override { return connection_; }
  hub::RecordHub& hub() { return hub_; }

 private:
  SmallHistory history_;
  hub::RecordHub hub_;
  std::int32_t connection_ = hub_.OpenConnection(history_.url());
};

}  // namespace quorvel::test
