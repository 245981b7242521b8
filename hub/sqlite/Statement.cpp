#include "hub/sqlite/Statement.h"

#include "datasource/Utf8.h"
#include "hub/sqlite/SqliteError.h"

namespace quorvel::hub {

Statement::Statement(sqlite3* database, const std::string& file, std::string_view sql) : file_(&file) {
  sqlite3_stmt* prepared = nullptr;
  const int code = sqlite3_prepare_v2(database, sql.data(), static_cast<int>(sql.size()), &prepared, nullptr);
  statement_.reset(prepared);
  if (code != SQLITE_OK) RaiseSqliteError(code, database, file);
}

Statement& Statement::Bind(const char* name, std::int32_t value) {
  Check(sqlite3_bind_int(statement_.get(), IndexOf(name), value));
  return *this;
}

Statement& Statement::Bind(const char* name, double value) {
  Check(sqlite3_bind_double(statement_.get(), IndexOf(name), value));
  return *this;
}

Statement& Statement::Bind(const char* name, std::string_view value) {
  // A view of nothing may have no address, which SQLite would take for null.
  const char* const text = value.empty() ? "" : value.data();
  Check(sqlite3_bind_text64(statement_.get(), IndexOf(name), text, value.size(), SQLITE_TRANSIENT, SQLITE_UTF8));
  return *this;
}

std::string Statement::Text(int column) const {
  return datasource::ReplaceInvalidUtf8(Get<std::string_view>(column));
}

int Statement::IndexOf(const char* name) const {
  const int index = sqlite3_bind_parameter_index(statement_.get(), name);
  if (index == 0) throw HubError(SystemError::kInvalidCall, std::string("The statement has no parameter ") + name);
  return index;
}

void Statement::Raise(int code) const {
  RaiseSqliteError(code, sqlite3_db_handle(statement_.get()), *file_);
}

}  // namespace quorvel::hub
