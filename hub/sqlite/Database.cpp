#include "hub/sqlite/Database.h"

#include <algorithm>

#include "hub/sqlite/SqliteError.h"

namespace quorvel::hub {
namespace {

constexpr int kWaitMilliseconds = 500;

std::string Utf8Name(const std::filesystem::path& file) {
  // Absolute, because SQLite takes some relative names (":memory:", "file:...") for other things than files.
  const std::u8string name = std::filesystem::absolute(file).u8string();
  return {name.begin(), name.end()};
}

// Each connection is used by one thread, so SQLite's own locks would only cost time.
int OpenFlags(Access access) {
  switch (access) {
    case Access::kReadOnly:
      return SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX;
    case Access::kReadWrite:
      return SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX;
    case Access::kCreate:
      return SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE | SQLITE_OPEN_NOMUTEX;
  }
  return 0;
}

}  // namespace

Database::Database(const std::filesystem::path& file, Access access) : file_(Utf8Name(file)) {
  sqlite3* opened = nullptr;
  const int code = sqlite3_open_v2(file_.c_str(), &opened, OpenFlags(access), nullptr);
  handle_.reset(opened);
  if (code != SQLITE_OK) RaiseSqliteError(sqlite3_extended_errcode(opened), opened, file_);
  sqlite3_extended_result_codes(opened, 1);
  sqlite3_busy_timeout(opened, kWaitMilliseconds);
}

void Database::Execute(std::string_view script) const {
  const std::string text(script);
  const int code = sqlite3_exec(handle_.get(), text.c_str(), nullptr, nullptr, nullptr);
  if (code != SQLITE_OK) RaiseSqliteError(code, handle_.get(), file_);
}

void Database::ReadHeader(std::span<std::byte> bytes) const {
  std::ranges::fill(bytes, std::byte{0});
  sqlite3_file& file = File();
  const int code = file.pMethods->xRead(&file, bytes.data(), static_cast<int>(bytes.size()), 0);
  if (code != SQLITE_OK && code != SQLITE_IOERR_SHORT_READ) RaiseSqliteError(code, nullptr, file_);
}

std::int64_t Database::FileSize() const {
  sqlite3_int64 size = 0;
  sqlite3_file& file = File();
  const int code = file.pMethods->xFileSize(&file, &size);
  if (code != SQLITE_OK) RaiseSqliteError(code, nullptr, file_);
  return size;
}

sqlite3_file& Database::File() const {
  // SQLite's own handle: closing a second one would drop the locks that this process holds on the file.
  sqlite3_file* opened = nullptr;
  sqlite3_file_control(handle_.get(), "main", SQLITE_FCNTL_FILE_POINTER, &opened);
  return *opened;
}

}  // namespace quorvel::hub
