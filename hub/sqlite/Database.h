// One open database of SQLite.
#pragma once

#include <sqlite3.h>

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <span>
#include <string>
#include <string_view>

#include "hub/sqlite/Statement.h"

namespace quorvel::hub {

enum class Access { kReadOnly, kReadWrite, kCreate };

// Failures raise the errors of SqliteError.h. Where another program holds a lock, calls wait half a second for it.
class Database {
 public:
  // Opens the file, which with kCreate alone is made when it is missing. Nothing is read or locked yet.
  Database(const std::filesystem::path& file, Access access);
  ~Database() = default;
  Database(const Database&) = delete;
  Database(Database&&) = delete;
  Database& operator=(const Database&) = delete;
  Database& operator=(Database&&) = delete;

  // Prepares one statement. This database must outlive it.
  Statement Prepare(std::string_view sql) const { return {handle_.get(), file_, sql}; }

  // Runs a script of statements that have no parameters; their rows are dropped.
  void Execute(std::string_view script) const;

  // Undoes the open transaction; without one, nothing happens.
  void Rollback() const noexcept { sqlite3_exec(handle_.get(), "ROLLBACK", nullptr, nullptr, nullptr); }

  // Calls `work` with `context` each time that a statement has done so many steps; never with a null `work`. A result
  // other than 0 ends the statement with an error.
  void CallWhileWorking(int steps, int (*work)(void*), void* context) const {
    sqlite3_progress_handler(handle_.get(), steps, work, context);
  }

  // Changed rows of the last statement that wrote.
  int changes() const { return sqlite3_changes(handle_.get()); }

  // Reads the first bytes of the file, past all locks; what lies behind its end reads as 0.
  void ReadHeader(std::span<std::byte> bytes) const;

  // Bytes of the file.
  std::int64_t FileSize() const;

  bool readOnly() const { return sqlite3_db_readonly(handle_.get(), "main") != 0; }
  // UTF-8, absolute.
  const std::string& file() const { return file_; }

 private:
  sqlite3_file& File() const;

  struct Close {
    void operator()(sqlite3* database) const { sqlite3_close_v2(database); }
  };

  std::string file_;
  std::unique_ptr<sqlite3, Close> handle_;
};

}  // namespace quorvel::hub
