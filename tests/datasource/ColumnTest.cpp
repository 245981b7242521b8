// Columns, the texts in them, and the contract as data.
#include "datasource/Column.h"

#include <gtest/gtest.h>

#include <map>
#include <set>
#include <string>

#include "datasource/AlarmsLog.h"
#include "datasource/CommandLog.h"
#include "datasource/Contract.h"
#include "datasource/ProcessLog.h"
#include "datasource/Quorvel.h"
#include "datasource/Saves.h"
#include "datasource/StepLog.h"
#include "datasource/TaskSchedulerLog.h"
#include "datasource/UsersImport.h"
#include "datasource/Utf8.h"

namespace quorvel::datasource {
namespace {

TEST(ColumnTest, EqualTextsAreStoredOnce) {
  TextColumnBuilder builder;
  constexpr std::size_t kRows = 1000;
  constexpr std::size_t kDistinct = 300;  // more than the hash table begins with
  for (std::size_t row = 0; row < kRows; ++row) builder.Append("text " + std::to_string(row % kDistinct));
  builder.Append("");
  builder.Repeat();
  const TextColumn column = builder.Take();
  ASSERT_EQ(column.size(), kRows + 2);
  for (std::size_t row = 0; row < kRows; ++row) {
    EXPECT_EQ(column[row], "text " + std::to_string(row % kDistinct));
    EXPECT_EQ(column.rows()[row], column.rows()[row % kDistinct]);
  }
  EXPECT_EQ(column[kRows], "");
  EXPECT_EQ(column[kRows + 1], "");
  const std::set<std::uint32_t> distinct(column.rows().begin(), column.rows().end());
  EXPECT_EQ(distinct.size(), kDistinct + 1);

  // The builder starts again and leaves the column that it gave alone.
  builder.Append("other");
  EXPECT_EQ(builder.Take()[0], "other");
  EXPECT_EQ(column[0], "text 0");
}

// Beyond some ten thousand texts only those are looked for that do repeat; every row keeps its text either way.
TEST(ColumnTest, TextsThatHardlyEverRepeatAreKeptToo) {
  constexpr std::size_t kRows = 60'000;
  TextColumnBuilder differing;
  TextColumnBuilder repeating;
  const auto text = [](std::size_t row) {
    return row % 1000 == 0 ? "bad \xFF " : "text " + std::to_string(row / 2 * 2);
  };
  for (std::size_t row = 0; row < kRows; ++row) {
    differing.Append(std::to_string(row));
    repeating.Append(text(row * 3 % 9'000));
  }
  differing.Repeat();
  differing.Append("");
  const TextColumn all = differing.Take();
  const TextColumn few = repeating.Take();
  ASSERT_EQ(all.size(), kRows + 2);
  for (std::size_t row = 0; row < kRows; ++row) {
    ASSERT_EQ(all[row], std::to_string(row));
    ASSERT_EQ(few[row], ReplaceInvalidUtf8(text(row * 3 % 9'000)));
  }
  EXPECT_EQ(all[kRows], all[kRows - 1]);
  EXPECT_EQ(all[kRows + 1], "");
  const std::set<std::uint32_t> stored(few.rows().begin(), few.rows().end());
  EXPECT_LT(stored.size(), 9'000U / 3 + 1);

  TextColumnBuilder twice;
  for (std::size_t row = 0; row < kRows; ++row) twice.Append(std::to_string(row / 2));
  twice.Append("0");
  EXPECT_EQ(twice.Take().rows().back(), 0U) << "a text of long ago is found where texts do repeat";

  // The builder looks for repeats again.
  for (int row = 0; row < 4; ++row) differing.Append(row % 2 == 0 ? "one" : "other");
  EXPECT_EQ(differing.Take().rows().back(), 1U);
}

TEST(ColumnTest, CopiesShareTheBlockAndOutliveItsMaker) {
  Column<std::int32_t> copy;
  EXPECT_EQ(copy.size(), 0U);
  EXPECT_TRUE(copy.values().empty());
  {
    const Column<std::int32_t> made({1, 2, 3});
    copy = made;
    EXPECT_EQ(copy.values().data(), made.values().data());
  }
  EXPECT_EQ(copy[2], 3);
  const Column<std::int32_t> taken = std::move(copy);
  EXPECT_EQ(copy.size(), 0U);  // NOLINT(bugprone-use-after-move): a column that was moved from is an empty one
  EXPECT_EQ(taken.values().back(), 3);
  EXPECT_EQ(TextColumn().size(), 0U);
}

TEST(GrowingArrayTest, HoldsItsValuesHoweverItGrows) {
  // Larger than what is kept with small blocks, and twice: the second one may get the memory of the first.
  constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz";
  for (const std::size_t first : {0U, 5U}) {
    GrowingArray<char> bytes;
    std::string expected;
    for (std::size_t length = 0; expected.size() < std::size_t{5} << 20U; length = (length + 1) % 200) {
      const std::string text(length, kLetters[(first + length) % kLetters.size()]);
      bytes.append(text.data(), text.size());
      bytes.push_back('.');
      expected += text + '.';
    }
    const auto holds = [&] { return std::string_view(bytes.data(), bytes.size()) == expected; };
    EXPECT_TRUE(holds());
    bytes.shrink_to_fit();
    EXPECT_TRUE(holds());
    bytes.reserve(4 * bytes.size());
    EXPECT_TRUE(holds());
  }
}

TEST(Utf8Test, EachByteThatDoesNotBelongIsReplaced) {
  struct Case {
    std::string text, shown;
  };
  const std::string bad = "\uFFFD";
  const Case cases[] = {
      {"", ""},
      {"Été 日本 😀", "Été 日本 😀"},
      {"a\xFF"
       "b",
       "a" + bad + "b"},
      {"12345678\xC3", "12345678" + bad},           // cut off
      {"\xC0\xAF", bad + bad},                      // overlong
      {"\xE0\x9F\xBF", bad + bad + bad},            // overlong
      {"\xED\xA0\x80", bad + bad + bad},            // surrogate
      {"\xF4\x90\x80\x80", bad + bad + bad + bad},  // above U+10FFFF
      {"\xE6\x97\xE6\x97\xA5", bad + bad + "日"},   // begun twice
      {std::string("a\0b", 3), std::string("a\0b", 3)},
  };
  for (const auto& [text, shown] : cases) {
    EXPECT_EQ(ReplaceInvalidUtf8(text), shown);
    EXPECT_EQ(IsValidUtf8(text), text == shown);
    TextColumnBuilder builder;
    builder.Append(text);
    builder.Append(text);
    const TextColumn column = builder.Take();
    EXPECT_EQ(column[0], shown);
    EXPECT_EQ(column.rows()[0], column.rows()[1]);
  }
}

TEST(ContractTest, RequireColumnsNamesTheColumnThatIsShort) {
  ProcessLogRecords records;
  records.lngProcessLogId = Column<std::int32_t>({1, 2});
  try {
    RequireColumns("GetProcessLogsByName", records, 2);
    FAIL();
  } catch (const Error& error) {
    EXPECT_EQ(error.number(), static_cast<std::int32_t>(SystemError::kIndexOutOfRange));
    EXPECT_EQ(error.description(), "GetProcessLogsByName: column lngProcessId holds 0 of 2 rows");
  }
  EXPECT_NO_THROW(RequireColumns("GetProcessLogsByName", ProcessLogRecords(), 0));
  EXPECT_NO_THROW(RequireColumns("GetProcessLogDetail", records, 2)) << "promises no column";
  EXPECT_THROW(RequireColumns("NoQuery", records, 0), Error);
}

template <class Source, class Records>
void AddColumns(std::map<std::string_view, std::set<std::string_view>>& columns) {
  const Records records;
  Records::ForEachColumn(records,
                         [&](std::string_view name, const auto&) { columns[Source::kClassIdentifier].insert(name); });
}

TEST(ContractTest, EachPromisedColumnIsAColumnOfItsClass) {
  std::map<std::string_view, std::set<std::string_view>> columns;
  AddColumns<ProcessLog, ProcessLogRecords>(columns);
  AddColumns<Quorvel, TaskRunRecords>(columns);
  AddColumns<StepLog, StepLogRecords>(columns);
  AddColumns<CommandLog, CommandLogRecords>(columns);
  AddColumns<AlarmsLog, AlarmsLogRecords>(columns);
  AddColumns<Saves, SavesRecords>(columns);
  AddColumns<UsersImport, UsersImportRecords>(columns);
  AddColumns<TaskSchedulerLog, TaskSchedulerLogRecords>(columns);
  std::set<std::string_view> queries;
  for (const QueryContract& query : Queries()) {
    EXPECT_TRUE(queries.insert(query.query).second) << query.query << " stands twice";
    for (const std::string_view column : query.columns) {
      EXPECT_TRUE(columns[query.classIdentifier].contains(column)) << query.query << " promises " << column;
    }
  }
  EXPECT_EQ(queries.size(), 24U);
}

}  // namespace
}  // namespace quorvel::datasource
