// Files that are no history, or cannot be read: a clear error, and the file stays as it was.
#include <gmock/gmock.h>

#include <fstream>
#include <functional>
#include <iterator>
#include <string>

#include "hub/RecordHub.h"
#include "hub/sqlite/Database.h"
#include "support/SmallHistory.h"

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::HasSubstr;

std::string Read(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

void Write(const fs::path& file, std::string_view bytes) {
  std::ofstream(file, std::ios::binary) << bytes;
}

std::ptrdiff_t FilesBeside(const fs::path& file) {
  return std::distance(fs::directory_iterator(file.parent_path()), fs::directory_iterator());
}

Error Caught(const std::function<void()>& action) {
  try {
    action();
  } catch (const Error& error) {
    return error;
  }
  return {0, "", "no error"};
}

Error Number(SystemError number) {
  return hub::HubError(number, {});
}

// Opening `url` over `file` fails with that number and with text that holds `reason`; nothing on disk changes.
void ExpectRefused(const fs::path& file, const std::string& url, std::int32_t number, const std::string& reason) {
  const std::string before = Read(file);
  const std::ptrdiff_t filesBefore = FilesBeside(file);
  hub::RecordHub hub;
  const Error error = Caught([&] { hub.OpenConnection(url); });
  EXPECT_EQ(error.number(), number);
  EXPECT_THAT(error.description(), AllOf(HasSubstr(file.string()), HasSubstr(reason)));
  EXPECT_EQ(Read(file), before);
  EXPECT_EQ(FilesBeside(file), filesBefore);
}

TEST(OpeningTest, OtherFilesAreRefused) {
  const SmallHistory history;
  const fs::path file = history.file().parent_path() / "other";
  const auto refused = [&](std::int32_t number, const std::string& reason) {
    ExpectRefused(file, "sqlite:" + file.string(), number, reason);
  };
  for (const std::string& text : {std::string(), std::string("x"), std::string(5000, 'x')}) {
    Write(file, text);
    refused(hub::kNotAHistory, "file is not a database (SQLite 26)");
  }

  fs::remove(file);
  // Left in write-ahead mode with unfinished business beside it, which reading by statements would clean up.
  hub::Database(file, hub::Access::kCreate).Execute("PRAGMA journal_mode = WAL; CREATE TABLE t (x)");
  Write(file.string() + "-wal", "left over");
  refused(hub::kNotAHistory, "another program");
}

TEST(OpeningTest, OtherVersionsAndTruncatedHistoriesAreRefused) {
  const SmallHistory history;
  const std::string whole = Read(history.file());
  for (const std::size_t size : {std::size_t{100}, std::size_t{4096}, whole.size() / 2, whole.size() - 1}) {
    Write(history.file(), whole.substr(0, size));
    ExpectRefused(history.file(), history.url(), hub::kHistoryDamaged, "malformed (SQLite 11)");
  }
  Write(history.file(), whole);
  history.Sql("PRAGMA user_version = 3");
  ExpectRefused(history.file(), history.url(), hub::kOtherVersion, "newer version: its schema is 3, known is 2");
  history.Sql("PRAGMA user_version = 1");
  ExpectRefused(history.file(), history.url(), hub::kOtherVersion, "older version: its schema is 1, known is 2");
}

TEST(OpeningTest, MissingFileIsNotCreated) {
  const TemporaryFolder folder;
  hub::RecordHub hub;
  const std::string missing = (folder.path() / "none.db").string();
  const Error error = Caught([&] { hub.OpenConnection("sqlite:" + missing); });
  EXPECT_EQ(error.number(), Number(SystemError::kFileNotFound).number());
  EXPECT_THAT(error.description(), HasSubstr(missing));
  EXPECT_FALSE(fs::exists(missing));
  EXPECT_EQ(Caught([&] { hub.OpenConnection("sqlite:" + folder.path().string()); }).number(),
            Number(SystemError::kPathAccess).number());
  for (const char* const url : {"", "sqlite:", "postgres:x", "none.db"}) {
    EXPECT_EQ(Caught([&] { hub.OpenConnection(url); }).number(), Number(SystemError::kInvalidCall).number()) << url;
  }
}

TEST(OpeningTest, LockedHistoryIsRefusedAndReadableAfterwards) {
  const SmallHistory history;
  {
    const hub::Database other(history.file(), hub::Access::kReadWrite);
    other.Execute("BEGIN EXCLUSIVE; DELETE FROM label");
    hub::RecordHub hub;
    const Error error = Caught([&] { hub.OpenConnection(history.url()); });
    EXPECT_EQ(error.number(), hub::kHistoryLocked);
    EXPECT_THAT(error.description(), AllOf(HasSubstr(history.file().string()), HasSubstr("(SQLite 5)")));
    other.Rollback();
    EXPECT_EQ(hub.OpenConnection(history.url()), 1);
  }
  EXPECT_EQ(FilesBeside(history.file()), 1);
}

TEST(OpeningTest, CreatingKeepsWhatIsThere) {
  const TemporaryFolder folder;
  const fs::path file = folder.path() / "new.db";
  Write(file, "mine");
  EXPECT_EQ(Caught([&] { hub::CreateHistory(file); }).number(), Number(SystemError::kFileExists).number());
  EXPECT_EQ(Read(file), "mine");
  const Error error = Caught([&] { hub::CreateHistory(folder.path() / "no folder" / "new.db"); });
  EXPECT_EQ(error.number(), Number(SystemError::kPathAccess).number());
}

}  // namespace
}  // namespace quorvel::test
