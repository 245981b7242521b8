// What the record sources over SQLite have in common.
#pragma once

#include <cstdint>
#include <memory>
#include <string_view>
#include <utility>

#include "hub/sqlite/Connections.h"

namespace quorvel::hub {

// Out statuses of queries.
inline constexpr std::int32_t kStatusOk = 0;
inline constexpr std::int32_t kStatusMissing = 1;
inline constexpr std::int32_t kStatusNoPeriod = 2;

// True when the statement, which takes one identifier as ":id", answers with a row.
inline bool Exists(const Database& database, std::string_view sql, std::int32_t id) {
  return database.Prepare(sql).Bind(":id", id).Step();
}

// `Interface` is the class of the contract, `RecordsType` its columns.
template <class Interface, class RecordsType>
class SourceBase : public Interface {
 public:
  explicit SourceBase(std::shared_ptr<const Connections> connections) : connections_(std::move(connections)) {}

  std::int32_t lngCount() const final { return count_; }
  const RecordsType& Records() const final { return records_; }

 protected:
  // Drops the last result and gives the connection for the next one, that of the query of this name.
  const Database& Begin(std::int32_t connection, std::string_view query) {
    Release(connection);
    connections_->progress().Begin(query);
    return connections_->At(connection);
  }

  // The connection for a change, which leaves the last result.
  const Database& At(std::int32_t connection) const { return connections_->At(connection); }

  // What each release does.
  void Release(std::int32_t connection) {
    records_ = {};
    count_ = 0;
    static_cast<void>(At(connection));
  }

  RecordsType records_;
  std::int32_t count_ = 0;

 private:
  std::shared_ptr<const Connections> connections_;
};

}  // namespace quorvel::hub
