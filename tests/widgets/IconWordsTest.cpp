// What icons show, in words.
#include "widgets/IconWords.h"

#include <gtest/gtest.h>

#include "widgets/IconGlyphs.h"

namespace quorvel::widgets {
namespace {

TEST(IconWords, SayOutcomeAndPlace) {
  EXPECT_EQ(IconWords("ProcessNONOK"), "Not OK");
  EXPECT_EQ(IconWords("User_WaitingCom"), "Waiting for a connection");
  EXPECT_EQ(IconWords("AlarmFromStation"), "Active, station");
  EXPECT_EQ(IconWords("AlarmFromServerIsAcquitted"), "Acknowledged, server");
  EXPECT_EQ(IconWords("FTPServerNotExecGlobal"), "Not executed, all stations, server");
  EXPECT_EQ(IconWords("Process"), "");
  EXPECT_EQ(IconWords("no such icon"), "");
}

TEST(IconWords, TellApartWhateverOnlyBadgesTellApart) {
  const auto keys = IconKeys();
  for (const std::string& a : keys) {
    for (const std::string& b : keys) {
      if (a == b || FindIcon(a)->base.data() != FindIcon(b)->base.data()) continue;
      EXPECT_NE(IconWords(a), IconWords(b)) << a << " and " << b;
    }
  }
}

}  // namespace
}  // namespace quorvel::widgets
