#include "tools/CommandLine.h"

#include <gtest/gtest.h>

#include <array>

#include "platform/Error.h"

namespace quorvel::tools {
namespace {

constexpr Option kOptions[] = {{"count", "N", "how many"}, {"when", "DATE", "a day"}, {"force", "", "no questions"}};

TEST(CommandLine, ReadsValuesInBothForms) {
  const auto arguments = std::to_array<const char*>({"--count", "12", "--when=2026-11-20", "--force"});
  const CommandLine line(arguments, kOptions);
  EXPECT_EQ(line.Number("count", 0, 100), 12);
  EXPECT_EQ(line.Date("when"), 46346);
  EXPECT_TRUE(line.Has("force"));
  EXPECT_EQ(line.Text("output"), std::nullopt);
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
  const auto refused = [](std::initializer_list<const char*> arguments) {
    try {
      const CommandLine line(std::span(arguments.begin(), arguments.size()), kOptions);
      line.Number("count", 0, 100);
      line.Date("when");
      return std::string();
    } catch (const Error& error) {
      return error.description();
    }
  };
  EXPECT_EQ(refused({"--colour", "red"}), "--colour is not an option");
  EXPECT_EQ(refused({"sample.db"}), "\"sample.db\" is not an option");
  EXPECT_EQ(refused({"--count"}), "--count needs a value");
  EXPECT_EQ(refused({"--force=yes"}), "--force takes no value");
  EXPECT_EQ(refused({"--count", "101"}), "--count must be a whole number from 0 to 100");
  EXPECT_EQ(refused({"--count=1e3"}), "--count must be a whole number from 0 to 100");
  EXPECT_EQ(refused({"--when", "2026-02-30"}), "--when must be a date, for example 2026-11-20T12:00:00");
}

}  // namespace
}  // namespace quorvel::tools
