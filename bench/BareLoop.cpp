#include "BareLoop.h"

#include <sqlite3.h>

#include "Measure.h"
#include "hub/sqlite/HistoryFile.h"

namespace quorvel::bench {
namespace {

// What was read goes somewhere that the compiler has to write to.
volatile std::int64_t g_read = 0;

std::int64_t ReadColumn(sqlite3_stmt* rows, int column, char type) {
  switch (type) {
    case 'i':
      return sqlite3_column_int(rows, column);
    case 'd':
      return static_cast<std::int64_t>(sqlite3_column_double(rows, column));
    default:
      return sqlite3_column_text(rows, column)[0] + sqlite3_column_bytes(rows, column);
  }
}

}  // namespace

BareLoop::BareLoop(const std::filesystem::path& history)
    : database_(hub::OpenHistory(history, hub::Access::kReadWrite)) {}

double BareLoop::Run(std::string_view sql, std::initializer_list<Parameter> parameters, std::string_view types,
                     std::int32_t rows) const {
  std::int32_t count = 0;
  const double seconds = Seconds([&] {
    hub::Statement statement = database_->Prepare(sql);
    for (const Parameter& parameter : parameters) {
      std::visit([&](const auto& value) { statement.Bind(parameter.name, value); }, parameter.value);
    }
    sqlite3_stmt* const each = statement.handle();
    for (; sqlite3_step(each) == SQLITE_ROW; ++count) {
      std::int64_t read = 0;
      for (int column = 0; column < static_cast<int>(types.size()); ++column) {
        read += ReadColumn(each, column, types[static_cast<std::size_t>(column)]);
      }
      g_read = read;
    }
  });
  if (count != rows) throw hub::HubError(SystemError::kInvalidCall, "The history has another number of rows");
  return seconds;
}

}  // namespace quorvel::bench
