// Lines of a script become words, data becomes printable, and both ways fit together.
#include "scenario/Script.h"

#include <gmock/gmock.h>

#include "platform/Error.h"
#include "scenario/Values.h"

namespace quorvel::scenario {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(ScriptTest, WordsAreWhatBlanksAndQuotesLeave) {
  EXPECT_THAT(SplitWords("  expand\tLPROC|12 \r"), ElementsAre("expand", "LPROC|12"));
  EXPECT_THAT(SplitWords(R"(option cboState "In progress" # as text)"),
              ElementsAre("option", "cboState", "In progress"));
  EXPECT_THAT(SplitWords(R"(option txtDuring "")"), ElementsAre("option", "txtDuring", ""));
  EXPECT_THAT(SplitWords(R"(sql "'#1' \"x\"" a#b)"), ElementsAre("sql", "'#1' \"x\"", "a#b"));
  EXPECT_THAT(SplitWords(R"(account DOM\user \t\\n\)"), ElementsAre("account", R"(DOM\user)", "\t\\n\\"));
  EXPECT_THAT(SplitWords("  # nothing else"), IsEmpty());
  EXPECT_THROW(SplitWords("sql \"SELECT 1"), ScriptError);
  EXPECT_THROW(SplitWords(R"("a"b)"), ScriptError);
}

TEST(ScriptTest, WhatIsPrintedCanBeTyped) {
  const std::string data = "a\tb\r\nc\\d \"e\" 日本 \\t";
  EXPECT_EQ(Escaped(data), R"(a\tb\r\nc\\d "e" 日本 \\t)");
  EXPECT_THAT(SplitWords("\"" + Escaped("a\tb\r\nc\\d \\t") + "\""), ElementsAre("a\tb\r\nc\\d \\t"));
  EXPECT_EQ(EscapedLines("one\r\n\r\ntwo"), "one\\r\\n\n\\r\\n\ntwo\n");
  EXPECT_EQ(EscapedLines(""), "");
}

TEST(ScriptTest, ErrorNumbersOfComponentsAreHexadecimal) {
  EXPECT_EQ(ErrorNumberOf("80040204"), ComponentError(4));
  EXPECT_EQ(ErrorNumberText(kConcurrentUpdate), "8004020D");
  EXPECT_EQ(ErrorNumberOf("35601"), 35601);
  EXPECT_EQ(ErrorNumberText(13), "13");
  EXPECT_THROW(ErrorNumberOf("8004020G"), ScriptError);
}

TEST(ScriptTest, ValuesOfAnotherFormAreRefused) {
  EXPECT_EQ(TimeText(TimeOf("23:05")), "23:05:00");
  EXPECT_EQ(TimeText(46346.25), "06:00:00");
  EXPECT_THROW(TimeOf("24:00"), ScriptError);
  EXPECT_THROW(DateOf("20.11.2026"), ScriptError);
  EXPECT_THROW(NumberOf("12x"), ScriptError);
  EXPECT_THROW(NumberOf("2147483648"), ScriptError);
  EXPECT_THROW(FlagOf("2"), ScriptError);
}

}  // namespace
}  // namespace quorvel::scenario
