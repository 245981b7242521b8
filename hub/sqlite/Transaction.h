// Writing in one transaction.
#pragma once

#include "hub/HubError.h"
#include "hub/sqlite/Database.h"

namespace quorvel::hub {

// Runs `work` in a transaction that is undone when it throws. Error 70 when the history can only be read; where another
// writer holds it, the error that tells people to try again later.
template <class Work>
void InTransaction(const Database& database, Work work) {
  try {
    database.Execute("BEGIN IMMEDIATE");
    work();
    database.Execute("COMMIT");
  } catch (...) {
    database.Rollback();
    const Error error = CurrentError();
    if (error.number() != kHistoryLocked) throw;
    throw Error(kConcurrentUpdate, error.source(), error.description());
  }
}

}  // namespace quorvel::hub
