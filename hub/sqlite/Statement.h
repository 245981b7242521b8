// One prepared statement of SQLite.
#pragma once

#include <sqlite3.h>

#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <string_view>

#include "hub/HubError.h"

namespace quorvel::hub {

// Made by Database::Prepare, which it must not outlive. Failures raise the errors of SqliteError.h.
class Statement {
 public:
  Statement(sqlite3* database, const std::string& file, std::string_view sql);

  // Gives the parameter of that name (":run") its value. Error 5 when the statement has no such parameter.
  Statement& Bind(const char* name, std::int32_t value);
  Statement& Bind(const char* name, double value);
  Statement& Bind(const char* name, std::string_view value);

  // Goes to the next row; false after the last one.
  bool Step() {
    const int code = sqlite3_step(statement_.get());
    if (code == SQLITE_ROW) return true;
    if (code != SQLITE_DONE) Raise(code);
    return false;
  }

  // For the calls of SQLite itself; this statement keeps it.
  sqlite3_stmt* handle() const { return statement_.get(); }

  // Makes the statement ready to be bound and run anew; parameters keep their values.
  void Reset() { sqlite3_reset(statement_.get()); }

  // The value of a result column (from 0) in the present row. Null reads as 0 or "". Whole numbers that do not fit
  // raise error 6.
  template <class T>
  T Get(int column) const;

  // A text as valid UTF-8.
  std::string Text(int column) const;

 private:
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };

  int IndexOf(const char* name) const;
  void Check(int code) const {
    if (code != SQLITE_OK) Raise(code);
  }
  [[noreturn]] void Raise(int code) const;
  template <class T>
  T Whole(int column) const;

  const std::string* file_;
  std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

template <class T>
T Statement::Whole(int column) const {
  const sqlite3_int64 value = sqlite3_column_int64(statement_.get(), column);
  if (value < std::numeric_limits<T>::min() || value > std::numeric_limits<T>::max()) {
    throw HubError(SystemError::kOverflow, std::string("Overflow in ") + sqlite3_column_name(statement_.get(), column));
  }
  return static_cast<T>(value);
}

template <>
inline std::int32_t Statement::Get<std::int32_t>(int column) const {
  return Whole<std::int32_t>(column);
}

template <>
inline std::int16_t Statement::Get<std::int16_t>(int column) const {
  return Whole<std::int16_t>(column);
}

template <>
inline double Statement::Get<double>(int column) const {
  return sqlite3_column_double(statement_.get(), column);
}

// Valid until the next step.
template <>
inline std::string_view Statement::Get<std::string_view>(int column) const {
  sqlite3_value* const value = sqlite3_column_value(statement_.get(), column);
  const unsigned char* const text = sqlite3_value_text(value);
  if (text == nullptr) return {};
  const auto size = static_cast<std::size_t>(sqlite3_value_bytes(value));
  return {reinterpret_cast<const char*>(text), size};
}

}  // namespace quorvel::hub
