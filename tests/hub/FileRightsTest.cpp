// What a file's rights, which only an ordinary user feels, do to opening it.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>

#include "hub/RecordHub.h"
#include "support/SmallHistory.h"

namespace quorvel::test {
namespace {

namespace fs = std::filesystem;

std::string Read(const fs::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

// Runs `check` in a child process that is nobody's, and wants it to give true.
bool HoldsForNobody(const std::function<bool()>& check) {
  constexpr uid_t kNobody = 65534;
  const pid_t child = fork();
  if (child == 0) _exit(seteuid(geteuid() == 0 ? kNobody : geteuid()) == 0 && check() ? 0 : 1);
  int status = 1;
  return waitpid(child, &status, 0) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
}

TEST(FileRightsTest, AreRespected) {
  const SmallHistory history;
  fs::permissions(history.file().parent_path(), fs::perms{0555});
  fs::permissions(history.file(), fs::perms{0444});
  const std::string before = Read(history.file());
  EXPECT_TRUE(HoldsForNobody([&] {
    hub::RecordHub hub;
    return hub.OpenConnection(history.url()) == 1;
  })) << "a file that cannot be written is opened for reading";
  EXPECT_EQ(Read(history.file()), before);

  fs::permissions(history.file(), fs::perms{0000});
  EXPECT_TRUE(HoldsForNobody([&] {
    hub::RecordHub hub;
    try {
      hub.OpenConnection(history.url());
    } catch (const Error& error) {
      return error.number() == static_cast<std::int32_t>(SystemError::kPermissionDenied) &&
             error.description().find("(SQLite 14), Permission denied") != std::string::npos;
    }
    return false;
  }));
}

}  // namespace
}  // namespace quorvel::test
