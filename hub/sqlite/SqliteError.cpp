#include "hub/sqlite/SqliteError.h"

#include <sqlite3.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <system_error>

#include "hub/HubError.h"

namespace quorvel::hub {
namespace {

struct Meaning {
  int code;
  std::int32_t number;
  std::string_view what;
};

constexpr std::int32_t Number(SystemError error) {
  return static_cast<std::int32_t>(error);
}

constexpr Meaning kMeanings[] = {
    {SQLITE_NOMEM, Number(SystemError::kOutOfMemory), "needs more memory than there is"},
    {SQLITE_BUSY, kHistoryLocked, "is locked by another program"},
    {SQLITE_LOCKED, kHistoryLocked, "is locked by another connection"},
    {SQLITE_NOTADB, kNotAHistory, "is not a history"},
    {SQLITE_CORRUPT, kHistoryDamaged, "is damaged"},
    {SQLITE_READONLY, Number(SystemError::kPermissionDenied), "can only be read"},
    {SQLITE_PERM, Number(SystemError::kPermissionDenied), "may not be opened"},
    {SQLITE_CANTOPEN, Number(SystemError::kPathAccess), "cannot be opened"},
    {SQLITE_IOERR, Number(SystemError::kDeviceInput), "cannot be read or written"},
    {SQLITE_FULL, Number(SystemError::kDeviceInput), "cannot grow"},
};
constexpr Meaning kOther = {SQLITE_ERROR, kHistoryFailed, "cannot answer"};

Meaning MeaningOf(int code, int systemCode) {
  const int primary = code & 0xFF;
  if (primary == SQLITE_CANTOPEN && (systemCode == EACCES || systemCode == EPERM)) {
    return {code, Number(SystemError::kPermissionDenied), "may not be opened"};
  }
  const auto* const found = std::ranges::find(kMeanings, primary, &Meaning::code);
  return found == std::end(kMeanings) ? kOther : *found;
}

}  // namespace

void RaiseSqliteError(int code, sqlite3* database, std::string_view file) {
  // A connection that has met no error would answer "not an error".
  const bool told = database != nullptr && (sqlite3_errcode(database) & 0xFF) == (code & 0xFF);
  const int systemCode = told ? sqlite3_system_errno(database) : 0;
  const Meaning meaning = MeaningOf(code, systemCode);
  std::string description = DescribeHistory(file, meaning.what) + ": ";
  description += told ? sqlite3_errmsg(database) : sqlite3_errstr(code);
  description += " (SQLite " + std::to_string(code) + ")";
  if (systemCode != 0) description += ", " + std::generic_category().message(systemCode);
  throw Error(meaning.number, kErrorSource, std::move(description));
}

std::string DescribeHistory(std::string_view file, std::string_view what) {
  return "History \"" + std::string(file) + "\" " + std::string(what);
}

}  // namespace quorvel::hub
