// Keys, stored codes, dates as text, and the clipboard.
#include "util/PublicFunctions.h"

#include <gtest/gtest.h>

#include "platform/Error.h"
#include "support/RecordingPlatform.h"
#include "util/PublicOstrana.h"

namespace quorvel::util {
namespace {

TEST(Identifiant, ReadsFieldsFromOne) {
  EXPECT_EQ(Identifiant("A|B|C", 1), "A");
  EXPECT_EQ(Identifiant("A|B|C", 3), "C");
  EXPECT_EQ(Identifiant("A|B|C", 4), "");
  EXPECT_EQ(Identifiant("A|B|C", 0), "");
  EXPECT_EQ(Identifiant("A||C", 2), "");
  EXPECT_EQ(Identifiant("A||C", 3), "C");
  EXPECT_EQ(Identifiant("A|", 2), "");
  EXPECT_EQ(Identifiant("A|", 3), "");
  EXPECT_EQ(Identifiant("", 1), "");
  EXPECT_EQ(Identifiant("A", 2147483647), "");
  // Separators are looked for as text, and leave their tail behind when they are longer than one character.
  EXPECT_EQ(Identifiant("oneXtwoxthree", 3, "x"), "three");
  EXPECT_EQ(Identifiant("one--two", 2, "--"), "-two");
  EXPECT_EQ(Identifiant("one", 1, ""), "");
}

TEST(Identifiant, GivesNumbersOrAnError) {
  EXPECT_EQ(IdentifiantNumber("LPROC|12|-7", 3), -7);
  const auto numberOfError = [](std::string_view key) {
    try {
      IdentifiantNumber(key, 2);
    } catch (const Error& error) {
      return error.number();
    }
    return 0;
  };
  EXPECT_EQ(numberOfError("LPROC"), 13);
  EXPECT_EQ(numberOfError("LPROC|12x"), 13);
  EXPECT_EQ(numberOfError("LPROC|99999999999"), 6);
}

TEST(IsKeyNode, WantsAsManyFieldsAndTheSamePrefix) {
  const auto matches = [](std::string_view key, std::vector<std::string_view> pattern) {
    return IsKeyNode(SplitKey(key), pattern);
  };
  EXPECT_TRUE(matches("LPROC|12", {"LPROC", "?"}));
  EXPECT_TRUE(matches("LPROC|", {"LPROC", "?"})) << "an empty field is a field";
  EXPECT_FALSE(matches("LPROC|12|0", {"?", "?", "?", "?"}));
  EXPECT_FALSE(matches("lproc|12", {"LPROC", "?"}));
  EXPECT_FALSE(matches("", {"?"}));
}

TEST(PublicOstrana, TurnsCodesAndDatesIntoText) {
  EXPECT_EQ(strGetTypeTaskName("Synchro"), "Standard transfer");
  EXPECT_EQ(strGetTypeTaskName("FileManagementStation"), "Station file management");
  EXPECT_EQ(strGetTypeTaskName("synchro"), "");
  EXPECT_EQ(strGetTypeTaskName(""), "");
  EXPECT_EQ(strGetExecuteWhereName("Communication"), "Connection");
  EXPECT_EQ(strGetExecuteWhereName("Elsewhere"), "");

  const test::RecordingPlatform platform;
  EXPECT_EQ(strFormatDateTime(platform, 0, kDateAndTime), "");
  EXPECT_EQ(strFormatDateTime(platform, -1.25, kDateAndTime), "1899-12-29 06:00:00");
  EXPECT_EQ(strFormatDateTime(platform, -1.25, 1), "1899-12-29");
  EXPECT_EQ(strFormatDateTime(platform, 1e300, kDateAndTime), "");
}

class PlainRows : public widgets::RowSource {
 public:
  std::size_t Count() const override { return 3; }
  void AppendKey(std::size_t row, std::string& out) const override { out += std::to_string(row); }
  void AppendCell(std::size_t row, std::size_t column, std::string& out) const override {
    if (column != 1) out += std::string(1, static_cast<char>('a' + row)) + std::to_string(column);
  }
  std::string_view Icon(std::size_t) const override { return ""; }
};

TEST(CopyListView, CopiesTheHeaderAndTheSelectedRowsAlone) {
  test::RecordingPlatform platform;
  platform.clipboard = "before";
  widgets::ListView list("lvMotherList");
  list.SetHeaders({{.caption = "Name"}, {.caption = "Report"}, {.caption = "Status"}});
  list.SetRows(std::make_shared<PlainRows>());
  m_CopyListView(platform, list);
  EXPECT_EQ(platform.clipboard, "Name\tReport\tStatus\r\n");
  widgets::RowRanges rows;
  rows.Add({0, 1});
  rows.Add({2, 3});
  list.SetSelection(rows);
  m_CopyListView(platform, list);
  EXPECT_EQ(platform.clipboard, "Name\tReport\tStatus\r\na0\t\ta2\r\nc0\t\tc2\r\n");
}

class HostileRows final : public PlainRows {
 public:
  std::size_t Count() const override { return 4; }
  void AppendCell(std::size_t row, std::size_t column, std::string& out) const override {
    constexpr std::string_view kCells[4][3] = {
        {"a\tb", "", "say \"no\""}, {"one\r\ntwo", "\"x\" y", "z"}, {"7\"", "\"", "|"}, {"\n", "it's", "\t"}};
    out += kCells[row][column];
  }
};

TEST(CopyListView, CellsThatWouldBreakRowsAreQuoted) {
  test::RecordingPlatform platform;
  widgets::ListView list("lvMotherList");
  list.SetHeaders({{.caption = "A"}, {.caption = "B"}, {.caption = "C"}});
  list.SetRows(std::make_shared<HostileRows>());
  list.SetSelection(widgets::RowRanges(widgets::RowRange{0, 4}));
  m_CopyListView(platform, list);
  EXPECT_EQ(platform.clipboard,
            "A\tB\tC\r\n"
            "\"a\tb\"\t\tsay \"no\"\r\n"
            "\"one\r\ntwo\"\t\"\"\"x\"\" y\"\tz\r\n"
            "7\"\t\"\"\"\"\t|\r\n"
            "\"\n\"\tit's\t\"\t\"\r\n");
}

class ManyRows final : public PlainRows {
 public:
  std::size_t Count() const override { return 1'000; }
  void AppendCell(std::size_t row, std::size_t column, std::string& out) const override {
    const bool odd = row == 777 && column == 1;
    out += (odd ? "\"" : "say \"no\"\x1f") + std::to_string(row * column);
  }
};

TEST(CopyListView, OneOddCellAmongManyLeavesTheOthersAsTheyAre) {
  test::RecordingPlatform platform;
  widgets::ListView list("lvMotherList");
  list.SetHeaders({{.caption = "A"}, {.caption = "B"}});
  list.SetRows(std::make_shared<ManyRows>());
  widgets::RowRanges selected;
  std::string expected = "A\tB\r\n";
  for (std::size_t first = 0; first < 997; first += 100) {
    selected.Add({first, first + 99});
    for (std::size_t row = first; row < first + 99; ++row) {
      const std::string second = list.Cell(row, 1);
      expected += list.Cell(row, 0) + "\t" + (row == 777 ? "\"\"" + second + "\"" : second) + "\r\n";
    }
  }
  list.SetSelection(selected);
  m_CopyListView(platform, list);
  EXPECT_EQ(platform.clipboard, expected);
}

}  // namespace
}  // namespace quorvel::util
