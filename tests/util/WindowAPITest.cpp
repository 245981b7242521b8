// Operating systems by their version records, and the interactive user as the families tell it.
#include "util/WindowAPI.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "platform/Error.h"
#include "support/RecordingPlatform.h"

namespace quorvel::util {
namespace {

using enum SystemPlatform;

// A system that says what the test wants; a call without an answer fails.
class OtherSystem : public test::RecordingPlatform {
 public:
  explicit OtherSystem(SystemVersion version) : version_(std::move(version)) {}
  SystemVersion OperatingSystem() const override { return version_; }
  std::optional<Account> CurrentAccount() const override { return account(); }
  std::optional<std::string> CurrentUser() const override { return user(); }

  std::function<std::optional<Account>()> account;
  std::function<std::optional<std::string>()> user;

 private:
  SystemVersion version_;
};

struct Known {
  SystemVersion version;
  std::int32_t code;
  const char* name;
};

TEST(WindowAPI, TellsSystemsByTheirVersionRecord) {
  const Known systems[] = {
      {{kWin32s, 3, 10, 0, ""}, 120, "Windows3.10"},
      {{kWindows9x, 4, 0, 950, ""}, 220, "Windows 95"},
      {{kWindows9x, 4, 0, 1111, "B"}, 220, "Windows 95"},
      {{kWindows9x, 4, 0, 1111, "C"}, 230, "Windows 95 OSR2"},
      {{kWindows9x, 4, 0, 1111, " C"}, 220, "Windows 95"},
      {{kWindows9x, 4, 10, 1998, "C"}, 240, "Windows 98"},
      {{kWindows9x, 4, 10, 2222, "A "}, 250, "Windows 98 Se"},
      {{kWindows9x, 4, 90, 3000, "A"}, 260, "Windows Millennium"},
      {{kWindows9x, 4, 91, 3000, ""}, 0, ""},
      {{kWindowsNt, 3, 51, 1057, "Service Pack 5"}, 520, "Windows NT 3.51, BuildNumber 1057 : Service Pack 5"},
      {{kWindowsNt, 4, 0, 1381, ""}, 540, "Windows NT 4.0, BuildNumber 1381 : "},
      {{kWindowsNt, 5, 0, 2195, ""}, 600, "Windows 2000 5.0, BuildNumber 2195 : "},
      {{kWindowsNt, 5, 1, 2600, ""}, 800, "Windows XP 5.1, BuildNumber 2600 : "},
      {{kWindowsNt, 5, 2, 3790, ""}, 1000, "Windows 2003 5.2, BuildNumber 3790 : "},
      {{kWindowsNt, 6, 3, 9600, ""}, 1200, "Windows Vista 6.3, BuildNumber 9600 : "},
      {{kWindowsNt, 10, 0, 19045, ""}, 0, ""},
      {{kWindowsNt, 0, 0, 0, ""}, 0, ""},
      {{static_cast<SystemPlatform>(3), 4, 0, 0, ""}, 0, ""},
  };
  for (const Known& system : systems) {
    const OSInfos infos = OSInfosOf(system.version, false);
    EXPECT_EQ(infos.name, system.name);
    EXPECT_EQ(infos.code, system.code) << system.name;
    EXPECT_EQ(GetOSInfos(OtherSystem(system.version), false), system.code) << system.name;
  }
}

TEST(WindowAPI, FamilyCountsForAllItsVersions) {
  for (const std::uint32_t version : {0U, 3U, 6U, 10U, 4294967295U}) {
    EXPECT_EQ(GetOSInfos(OtherSystem({kWin32s, version, 0, 0, ""}), true), 100);
    EXPECT_EQ(GetOSInfos(OtherSystem({kWindows9x, version, 0, 0, ""}), true), 200);
    EXPECT_EQ(GetOSInfos(OtherSystem({kWindowsNt, version, 0, 0, ""}), true), 500);
    EXPECT_FALSE(IsOsNT(OtherSystem({kWindows9x, version, 0, 0, ""})));
    EXPECT_TRUE(IsOsNT(OtherSystem({kWindowsNt, version, 0, 0, ""})));
  }
  EXPECT_EQ(GetOSInfos(OtherSystem({static_cast<SystemPlatform>(3), 0, 0, 0, ""}), true), 0);
}

TEST(WindowAPI, FamilyDecidesWhichNameIsAskedFor) {
  OtherSystem nt({kWindowsNt, 10, 0, 19045, ""});
  nt.account = [] { return Account{"DOM", "user"}; };
  EXPECT_EQ(VBGetUserNameEx(nt), "DOM\\user");
  nt.account = [] { return std::nullopt; };
  EXPECT_EQ(VBGetUserNameEx(nt), "");
  OtherSystem older({kWindows9x, 4, 10, 2222, ""});
  older.user = [] { return "user"; };
  EXPECT_EQ(VBGetUserNameEx(older), std::string("user\0", 5));
  older.user = [] { return std::nullopt; };
  EXPECT_EQ(VBGetUserNameEx(older), "");
}

TEST(WindowAPI, ErrorsOfTheSystemCarryTheLabels) {
  class Refusing : public test::RecordingPlatform {
   public:
    SystemVersion OperatingSystem() const override { throw Error(SystemError::kInvalidCall, "no version"); }
  };
  try {
    VBGetUserNameEx(Refusing());
    FAIL() << "there is no version to go by";
  } catch (const Error& error) {
    EXPECT_EQ(error.number(), 5);
    EXPECT_EQ(error.source(),
              "Ostrana: WindowAPI.VBGetUserNameEx\r\n\tOstrana: WindowAPI.IsOsNT\r\n\t"
              "Ostrana: WindowAPI.GetOSInfos\r\n\tQuorvel");
  }
}

#ifndef _WIN32
std::string FirstLineOf(const char* command) {
  const std::unique_ptr<FILE, int (*)(FILE*)> pipe(popen(command, "r"), pclose);
  char line[256] = "";
  if (pipe == nullptr || std::fgets(line, sizeof line, pipe.get()) == nullptr) return {};
  const std::string text = line;
  return text.substr(0, text.find('\n'));
}

TEST(WindowAPI, ElsewhereTheHostStandsForTheDomain) {
  const test::RecordingPlatform platform;
  EXPECT_TRUE(IsOsNT(platform));
  EXPECT_EQ(GetOSInfos(platform, false), 0);
  EXPECT_EQ(VBGetUserNameEx(platform), FirstLineOf("uname -n") + "\\" + FirstLineOf("id -un"));
}
#endif

}  // namespace
}  // namespace quorvel::util
