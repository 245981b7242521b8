// What a host hears of the queries that it waits for.
#pragma once

#include <chrono>
#include <functional>
#include <string_view>

namespace quorvel::hub {

// The query that runs now.
struct QueryProgress {
  std::string_view query;               // its name in the contract; lives forever
  std::chrono::milliseconds elapsed{};  // since it began
};

// Called from within the query, so it must not ask a record source or the hub of anything. What it raises is dropped:
// an answer is not lost because nobody could be told of it.
using ProgressCallback = std::function<void(const QueryProgress&)>;

}  // namespace quorvel::hub
