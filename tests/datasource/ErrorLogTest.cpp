// "Ostrana.log" byte for byte, and how errors are shown, logged and passed on.
#include "datasource/ErrorLog.h"

#include <gtest/gtest.h>

#include <fstream>

#include "datasource/ErrorsProcess.h"
#include "support/RecordingPlatform.h"

namespace quorvel::datasource {
namespace {

using test::RecordingPlatform;

const std::string kSeparator(50, '-');
const std::string kHead = "100,30\r\n" + kSeparator + "\r\n";
constexpr std::size_t kLimit = 100 * 1024;

std::string RecordOf(const std::string& codes, const std::string& source, const std::string& description) {
  return "ErrorDate        : 2026-11-20 12:00:00\r\nErrorType        : E\r\n" + codes +
         "ErrorText        : \r\nErrorSource      : \r\n\t" + source + "\r\nErrorDescription : " + description +
         "\r\n" + kSeparator + "\r\n";
}

// A log of exactly `size` bytes: a header, then records of 100 bytes (48 of text and a separator), the last one longer.
std::string LogOf(std::size_t size, const std::string& header = "100,30") {
  std::string log = header + "\r\n" + kSeparator + "\r\n";
  for (int record = 0; log.size() + 200 <= size; ++record) {
    const std::string number = std::to_string(record);
    log += number + std::string(46 - number.size(), '.') + "\r\n" + kSeparator + "\r\n";
  }
  log += std::string(size - log.size() - 54, '!') + "\r\n" + kSeparator + "\r\n";
  return log;
}

class ErrorLogTest : public testing::Test {
 protected:
  void PutLog(const std::string& text) { std::ofstream(platform.folder / "Ostrana.log", std::ios::binary) << text; }
  void Write() { WriteErrorLog(platform, 5, "label", "text", "E", ""); }

  RecordingPlatform platform;
  const std::string written = RecordOf("ErrorCode        : 0\r\nErrorSystem      : 5\r\n", "label", "text");
};

TEST_F(ErrorLogTest, SplitsNumbersOnTheirUnsignedValue) {
  const auto split = [](std::uint32_t number) {
    const ErrorCodes codes = SplitErrorNumber(static_cast<std::int32_t>(number));
    return std::pair(codes.application, codes.system);
  };
  EXPECT_EQ(split(5), std::pair(0, 5));
  EXPECT_EQ(split(0x80040207), std::pair(7, 0));
  EXPECT_EQ(split(0x80040200), std::pair(0, static_cast<std::int32_t>(0x80040200)));
  EXPECT_EQ(split(0x80070005), std::pair(196101, 0));
  EXPECT_EQ(split(0x80004005), std::pair(0, static_cast<std::int32_t>(0x80004005)));
}

TEST_F(ErrorLogTest, BeginsWithTheHeaderAndGrowsByRecords) {
  Write();
  Write();
  EXPECT_EQ(platform.LogText(), kHead + written + written);
  EXPECT_EQ(platform.pointers, (std::vector{MousePointer::kHourglass, MousePointer::kDefault, MousePointer::kHourglass,
                                            MousePointer::kDefault}));
}

TEST_F(ErrorLogTest, KeepsALogAtItsLimit) {
  const std::string log = LogOf(kLimit);
  ASSERT_EQ(log.size(), kLimit);
  PutLog(log);
  Write();
  EXPECT_TRUE(platform.LogText() == log + written);
}

TEST_F(ErrorLogTest, TrimsALogOneByteBeyondItsLimit) {
  const std::string log = LogOf(kLimit + 1);
  ASSERT_EQ(log.size(), kLimit + 1);
  PutLog(log);
  Write();
  // 30 % are 30,720 bytes. The count begins at 8 and the head's separator makes 60; each record adds 100. Record 306
  // passes the mark with its separator, so the cut falls behind the next one.
  const std::size_t cut = log.find("\r\n308.") + 2;
  std::string rest = log.substr(cut);
  rest.resize(rest.size() - kSeparator.size() - 2);  // the line read last is lost
  EXPECT_TRUE(platform.LogText() == kHead + rest + written);
  EXPECT_FALSE(std::filesystem::exists(platform.folder / "Ostrana.log.tmp"));
}

TEST_F(ErrorLogTest, ObeysAHeaderEditedByHandAndRewritesIt) {
  PutLog(LogOf(50 * 1024, "50,10"));
  Write();
  EXPECT_TRUE(platform.LogText() == LogOf(50 * 1024, "50,10") + written) << "50 KB are within a limit of 50";
  const std::string log = LogOf(50 * 1024 + 1, "50,10");
  PutLog(log);
  Write();
  // 10 % are 5,120 bytes: from 60 on, record 50 passes them with its separator.
  std::string rest = log.substr(log.find("\r\n52.") + 2);
  rest.resize(rest.size() - kSeparator.size() - 2);
  EXPECT_TRUE(platform.LogText() == kHead + rest + written);
}

TEST_F(ErrorLogTest, SurvivesHeadersThatAreNone) {
  for (const char* header :
       {"", "x", "-1,-1", "0,100", "99999999999,30", "50,999999999", "-99999999999,99999999999", "50"}) {
    PutLog(LogOf(60 * 1024, header));
    Write();
    const std::string log = platform.LogText();
    EXPECT_TRUE(log.ends_with(written)) << header;
  }
}

TEST_F(ErrorLogTest, GoesOnWhereAStepFails) {
  // A rename that fails leaves the trimmed log under its other name, and the record stands in a log without header.
  const std::string log = LogOf(kLimit + 1);
  PutLog(log);
  platform.renameFails = true;
  Write();
  EXPECT_EQ(platform.LogText(), written);
  EXPECT_GT(std::filesystem::file_size(platform.folder / "Ostrana.log.tmp"), kLimit * 2 / 3);
  // A deletion that fails: the rename puts the trimmed log in its place all the same.
  platform.renameFails = false;
  platform.deleteFails = true;
  std::filesystem::remove(platform.folder / "Ostrana.log.tmp");
  PutLog(log);
  Write();
  EXPECT_TRUE(platform.LogText().starts_with(kHead));
  EXPECT_TRUE(platform.LogText().ends_with(written));
  EXPECT_LT(platform.LogText().size(), kLimit);
  // A folder that is not there, and one that cannot be read since it is none: nothing raised, and the pointer is right.
  std::filesystem::remove_all(platform.folder);
  Write();
  EXPECT_FALSE(std::filesystem::exists(platform.folder));
  std::ofstream(platform.folder) << "no folder";
  Write();
  EXPECT_EQ(platform.pointers.back(), MousePointer::kDefault);
}

class ErrorsProcessTest : public testing::Test {
 protected:
  // What an entry point does with an error that passed two procedures on its way.
  void Meet(std::uint32_t number) {
    Reporting(errors, "Outer", [&] {
      Propagating("Inner", [&] { throw Error(static_cast<std::int32_t>(number), "Hub", "It failed"); });
    });
  }

  RecordingPlatform platform;
  ErrorsProcess errors{platform};
};

TEST_F(ErrorsProcessTest, ShowsAndLogsTheChainOnce) {
  Meet(0x80040207);
  EXPECT_EQ(platform.messages,
            std::vector<std::string>{"Error - Vendrix Ostrana: - Source: \r\n\tOuter\r\n\tInner\r\n\tHub\r\n\r\n"
                                     "- Number: -2147220985\r\n\r\n- Description: It failed"});
  EXPECT_EQ(platform.LogText(), kHead + RecordOf("ErrorCode        : 7\r\nErrorSystem      : 0\r\n",
                                                 "Outer\r\n\tInner\r\n\tHub", "It failed"));
}

TEST_F(ErrorsProcessTest, TreatsTwoNumbersApart) {
  Meet(0x80040204);
  EXPECT_TRUE(platform.messages.empty());
  Meet(0x8004020D);
  EXPECT_EQ(platform.messages, std::vector<std::string>{
                                   "Error - Vendrix Ostrana: Update impossible at this moment because another user is "
                                   "modifying the same data.\r\nPlease try again later."});
  EXPECT_EQ(platform.LogText(), "");
}

TEST_F(ErrorsProcessTest, KeepsWhatTheErrorCarriesAndStillShowsWhenTheLogFails) {
  try {
    Propagating("Label", [] { throw Error(13, "Hub", "Wrong", "help.chm", 42); });
    FAIL();
  } catch (const Error& error) {
    EXPECT_EQ(error.number(), 13);
    EXPECT_EQ(error.source(), "Label\r\n\tHub");
    EXPECT_EQ(error.helpFile(), "help.chm");
    EXPECT_EQ(error.helpContext(), 42);
  }
  std::filesystem::remove_all(platform.folder);
  std::ofstream(platform.folder) << "no folder";
  Meet(5);
  EXPECT_EQ(platform.messages.size(), 1U);
  EXPECT_EQ(Logging(errors, "Label", 3, []() -> int { throw std::bad_alloc(); }), 3);
  EXPECT_EQ(platform.messages.size(), 1U);
}

}  // namespace
}  // namespace quorvel::datasource
