#include "hub/sqlite/HistoryFile.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <system_error>

#include "hub/HubError.h"
#include "hub/RecordHub.h"
#include "hub/schema/HistorySchema.h"
#include "hub/sqlite/SqliteError.h"

namespace quorvel::hub {
namespace {

// Places in the header of a SQLite file.
constexpr std::size_t kHeaderBytes = 100;
constexpr std::size_t kPageSizeAt = 16;
constexpr std::size_t kJournalModeAt = 18;
constexpr std::size_t kPagesAt = 28;
constexpr std::size_t kUserVersionAt = 60;
constexpr std::size_t kApplicationIdAt = 68;
constexpr char kMagic[16] = "SQLite format 3";

constexpr const char* kMapWholeFile = "PRAGMA mmap_size = 2147418112";

using Header = std::array<std::byte, kHeaderBytes>;

std::uint32_t BigEndian(const Header& header, std::size_t at, std::size_t bytes = 4) {
  std::uint32_t value = 0;
  for (std::size_t i = at; i < at + bytes; ++i) value = value << 8U | std::to_integer<std::uint32_t>(header[i]);
  return value;
}

[[noreturn]] void Refuse(std::int32_t number, const Database& database, std::string_view what) {
  throw Error(number, kErrorSource, DescribeHistory(database.file(), what));
}

// Looks at the header alone: even reading another program's database by statements might write beside it.
void RequireHistory(const Database& database) {
  Header header;
  database.ReadHeader(header);
  if (std::memcmp(header.data(), kMagic, sizeof kMagic) != 0) {
    RaiseSqliteError(SQLITE_NOTADB, nullptr, database.file());
  }
  const std::uint32_t version = BigEndian(header, kUserVersionAt);
  if (BigEndian(header, kApplicationIdAt) != kHistoryApplicationId || version == 0) {
    Refuse(kNotAHistory, database, "is not a history: it is a database of another program");
  }
  if (version != kHistoryVersion) {
    Refuse(kOtherVersion, database,
           std::string(version > kHistoryVersion ? "is of a newer" : "is of an older") + " version: its schema is " +
               std::to_string(version) + ", known is " + std::to_string(kHistoryVersion));
  }
}

// SQLite itself finds out about missing pages, but takes a last page that is cut off for a whole one.
void RequireLastPage(const Database& database) {
  constexpr std::byte kWriteAhead{2};
  constexpr std::int64_t kLargestPage = 65536;  // does not fit, so it is written as 1
  Header header;
  database.ReadHeader(header);
  if (header[kJournalModeAt] == kWriteAhead) return;  // pages may stand in the other file
  const std::uint32_t pageSize = BigEndian(header, kPageSizeAt, 2);
  const std::int64_t pages = BigEndian(header, kPagesAt);
  if (database.FileSize() < pages * (pageSize == 1 ? kLargestPage : pageSize)) {
    RaiseSqliteError(SQLITE_CORRUPT, nullptr, database.file());
  }
}

void RequireFile(const std::filesystem::path& file) {
  std::error_code code;
  const std::filesystem::file_status status = std::filesystem::status(file, code);
  if (status.type() == std::filesystem::file_type::not_found) {
    throw HubError(SystemError::kFileNotFound, DescribeHistory(file.string(), "does not exist"));
  }
  if (std::filesystem::is_directory(status)) {
    throw HubError(SystemError::kPathAccess, DescribeHistory(file.string(), "is a folder"));
  }
}

}  // namespace

std::unique_ptr<Database> OpenHistory(const std::filesystem::path& file, Access access) {
  RequireFile(file);
  auto database = std::make_unique<Database>(file, access);
  RequireHistory(*database);
  database->Execute(kMapWholeFile);
  // The first statement that reads finds out about locks and missing pages. No writer changes the size meanwhile.
  database->Execute("BEGIN; SELECT count(*) FROM sqlite_schema");
  RequireLastPage(*database);
  database->Execute("COMMIT");
  return database;
}

void CreateHistory(const std::filesystem::path& file) {
  if (std::filesystem::exists(std::filesystem::symlink_status(file))) {
    throw HubError(SystemError::kFileExists, DescribeHistory(file.string(), "exists already"));
  }
  try {
    const Database database(file, Access::kCreate);
    database.Execute("BEGIN EXCLUSIVE");
    database.Execute(HistorySchema());
    database.Execute("COMMIT");
  } catch (const Error&) {
    std::error_code ignored;
    std::filesystem::remove(file, ignored);
    throw;
  }
}

}  // namespace quorvel::hub
