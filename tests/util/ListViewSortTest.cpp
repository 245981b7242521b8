// Sorting by a column: what a merge sort with the compare routines makes of the rows, and what is seen of it.
#include "util/ListViewSort.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <compare>
#include <functional>
#include <iterator>
#include <limits>
#include <memory>
#include <numeric>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "platform/Error.h"
#include "support/RecordingPlatform.h"
#include "util/PublicOstrana.h"
#include "util/StableOrder.h"
#include "util/TextOrder.h"

namespace quorvel::util {
namespace {

using testing::ElementsAre;
using widgets::ColumnTag;
using widgets::ListView;
using widgets::SortOrder;

// Rows of one cell each, as texts; `Known...` tell besides what the text was made from.
class Texts : public widgets::RowSource {
 public:
  explicit Texts(std::vector<std::string> cells) : cells_(std::move(cells)) {}
  std::size_t Count() const override { return cells_.size(); }
  void AppendKey(std::size_t row, std::string& out) const override { out += std::to_string(row); }
  void AppendCell(std::size_t row, std::size_t /*column*/, std::string& out) const override { out += cells_[row]; }
  std::string_view Icon(std::size_t /*row*/) const override { return {}; }

 protected:
  std::vector<std::string> cells_;
};

class KnownTexts : public Texts {
 public:
  using Texts::Texts;
  std::optional<std::string_view> TextOf(std::size_t row, std::size_t /*column*/) const override { return cells_[row]; }
};

class KnownDates : public Texts {
 public:
  KnownDates(std::vector<DateValue> dates, std::vector<std::string> cells)
      : Texts(std::move(cells)), dates_(std::move(dates)) {}
  std::optional<DateValue> DateOf(std::size_t row, std::size_t /*column*/) const override { return dates_[row]; }

 private:
  std::vector<DateValue> dates_;
};

// Knows every second number alone.
class KnownNumbers : public Texts {
 public:
  KnownNumbers(std::vector<std::int32_t> numbers, std::vector<std::string> cells)
      : Texts(std::move(cells)), numbers_(std::move(numbers)) {}
  std::optional<std::int32_t> NumberOf(std::size_t row, std::size_t /*column*/) const override {
    return row % 2 == 0 ? std::optional(numbers_[row]) : std::nullopt;
  }

 private:
  std::vector<std::int32_t> numbers_;
};

// Regional settings whose dates end with the minute.
class RegionalPlatform : public test::RecordingPlatform {
 public:
  std::string FormatDate(DateValue date, DateFormat format) const override {
    const std::string fixed = RecordingPlatform::FormatDate(date, format);
    return fixed.empty() ? "" : "on " + fixed.substr(0, 16);
  }
  std::optional<DateValue> ParseDate(std::string_view text) const override {
    return RecordingPlatform::ParseDate(std::string(text.substr(3)) + ":00");
  }
  bool HasFixedDates() const override { return false; }
};

std::vector<std::string> Keys(const ListView& list) {
  std::vector<std::string> keys;
  for (std::size_t row = 0; row < list.Count(); ++row) keys.push_back(list.Key(row));
  return keys;
}

using CompareRoutine = std::function<std::int32_t(std::size_t, std::size_t, std::int32_t)>;

// The merge sort to the letter.
std::vector<std::size_t> MergeSorted(const std::vector<std::size_t>& rows, const CompareRoutine& compare) {
  if (rows.size() < 2) return rows;
  const auto middle = rows.begin() + static_cast<std::ptrdiff_t>(rows.size() / 2);
  const std::vector<std::size_t> left = MergeSorted({rows.begin(), middle}, compare);
  const std::vector<std::size_t> right = MergeSorted({middle, rows.end()}, compare);
  std::vector<std::size_t> merged;
  auto l = left.begin();
  auto r = right.begin();
  while (l != left.end() && r != right.end()) merged.push_back(compare(*l, *r, 1) <= 0 ? *l++ : *r++);
  merged.insert(merged.end(), l, left.end());
  merged.insert(merged.end(), r, right.end());
  return merged;
}

std::vector<std::string> ExpectedAfterClick(const Platform& platform, const ListView& list, SortOrder order,
                                            const CompareRoutine& compare) {
  const CustomSort sort(platform, list, order);
  std::vector<std::size_t> rows(list.Count());
  std::iota(rows.begin(), rows.end(), std::size_t{0});
  std::vector<std::string> keys;
  for (const std::size_t row : MergeSorted(rows, compare)) keys.push_back(list.Key(row));
  return keys;
}

// Clicks on the header time and again.
void ExpectSortedAsCompared(const Platform& platform, std::shared_ptr<const widgets::RowSource> rows, ColumnTag tag) {
  const CompareRoutine compare = tag == ColumnTag::kDates ? CompareDates : CompareNumbers;
  ListView list("list");
  list.SetHeaders({{.caption = "Column", .tag = tag}});
  list.SetSortKey(-1);
  list.SetRows(std::move(rows));
  for (const SortOrder order : {SortOrder::kAscending, SortOrder::kDescending, SortOrder::kAscending}) {
    const std::vector<std::string> expected = ExpectedAfterClick(platform, list, order, compare);
    ListViewSortColumn(platform, list, 1);
    ASSERT_EQ(list.sortOrder(), order);
    ASSERT_EQ(Keys(list), expected);
  }
}

DateValue AnyDate(std::mt19937& random) {
  constexpr DateValue kOdd[] = {0, -1.25, -1.75, -0.5, 1e-9, 1e300, 46346.999999, 46347};
  const DateValue second = 46346 + static_cast<DateValue>(random() % 120) / 86400;
  switch (random() % 4) {
    case 0:
      return kOdd[random() % std::size(kOdd)];
    case 1:
      return second + 4e-6;  // a third of a second later
    case 2:
      return std::numeric_limits<DateValue>::quiet_NaN();
    default:
      return second;
  }
}

void ExpectDatesSortedAsCompared(const Platform& platform) {
  std::mt19937 random(3);
  for (std::size_t count : {0U, 1U, 2U, 3U, 50U, 400U}) {
    std::vector<DateValue> dates(count);
    std::ranges::generate(dates, [&] { return AnyDate(random); });
    std::vector<std::string> cells;
    for (const DateValue date : dates) cells.push_back(strFormatDateTime(platform, date, kDateAndTime));
    ExpectSortedAsCompared(platform, std::make_shared<Texts>(cells), ColumnTag::kDates);
    ExpectSortedAsCompared(platform, std::make_shared<KnownDates>(dates, cells), ColumnTag::kDates);
  }
}

TEST(ListViewSort, DatesComeAsTheCompareRoutineSaysWithTheTextOrWithout) {
  ExpectDatesSortedAsCompared(test::RecordingPlatform());
  ExpectDatesSortedAsCompared(RegionalPlatform());
}

TEST(ListViewSort, NumbersComeAsTheCompareRoutineSays) {
  const test::RecordingPlatform platform;
  std::mt19937 random(4);
  for (std::size_t count : {2U, 3U, 50U, 400U}) {
    std::vector<std::int32_t> numbers(count);
    std::ranges::generate(numbers, [&] {
      return random() % 5 == 0 ? std::numeric_limits<std::int32_t>::min() + static_cast<std::int32_t>(random() % 2)
                               : static_cast<std::int32_t>(random() % 20) - 10;
    });
    std::vector<std::string> cells;
    for (const std::int32_t number : numbers) cells.push_back(number == 0 ? "" : std::to_string(number));
    ExpectSortedAsCompared(platform, std::make_shared<Texts>(cells), ColumnTag::kNumbers);
    ExpectSortedAsCompared(platform, std::make_shared<KnownNumbers>(numbers, cells), ColumnTag::kNumbers);
  }
}

TEST(ListViewSort, ResultsAreNeverNegative) {
  const test::RecordingPlatform platform;
  ListView list("list");
  list.SetHeaders({{.caption = "Column"}});
  list.SetRows(std::make_shared<Texts>(std::vector<std::string>{"2", "10", "", "", "2026-11-20", "2026-11-21"}));
  EXPECT_EQ(CompareNumbers(1, 0, 1), 0) << "no list is being sorted";
  {
    const CustomSort sort(platform, list, SortOrder::kAscending);
    EXPECT_EQ(CompareNumbers(1, 0, 1), 0);
    EXPECT_EQ(CompareNumbers(0, 1, 1), 2);
    EXPECT_EQ(CompareDates(5, 4, 1), 0);
    EXPECT_EQ(CompareDates(2, 4, 1), 2) << "an empty cell is before all dates";
    EXPECT_EQ(CompareNumbers(0, 1, 0), 1) << "no column, no value";
  }
  {
    const CustomSort sort(platform, list, SortOrder::kDescending);
    EXPECT_EQ(CompareNumbers(1, 0, 1), 2);
    EXPECT_EQ(CompareNumbers(0, 1, 1), 0);
    EXPECT_EQ(CompareDates(2, 3, 1), 1);
  }
  EXPECT_EQ(CompareDates(0, 1, 1), 0) << "forgotten with the sort";
}

class SortedList : public testing::Test {
 protected:
  void Fill(std::vector<std::string> cells) { list.SetRows(std::make_shared<Texts>(std::move(cells))); }
  std::string Arrows() const {
    std::string arrows;
    for (const widgets::ColumnHeader& header : list.headers()) arrows += header.icon + "|";
    return arrows;
  }
  Error ErrorOfClick(std::size_t column) {
    try {
      ListViewSortColumn(platform, list, column);
    } catch (const Error& error) {
      return error;
    }
    return {0, "", "no error"};
  }

  test::RecordingPlatform platform;
  ListView list{"list"};
};

TEST_F(SortedList, ArrowsShowWhatTheEyeSees) {
  list.SetHeaders({{.caption = "Name"}, {.caption = "Start", .tag = ColumnTag::kDates}, {.caption = "Status"}});
  Fill({"2026-11-20", "2026-11-22", "2026-11-21"});
  ListViewSortColumn(platform, list, 2);
  EXPECT_EQ(Arrows(), "|descendingD||");
  EXPECT_THAT(Keys(list), ElementsAre("1", "2", "0")) << "the latest first, though the order is ascending";
  EXPECT_FALSE(list.sorted());
  ListViewSortColumn(platform, list, 2);
  EXPECT_EQ(Arrows(), "|ascendingD||");
  EXPECT_EQ(list.sortOrder(), SortOrder::kDescending);
  ListViewSortColumn(platform, list, 3);
  EXPECT_EQ(Arrows(), "||ascending|");
  EXPECT_TRUE(list.sorted());
  ListViewSortColumn(platform, list, 3);
  EXPECT_EQ(Arrows(), "||descending|");
  EXPECT_THAT(Keys(list), ElementsAre("1", "2", "0"));
  ListViewSortColumn(platform, list, 1);
  EXPECT_EQ(list.sortOrder(), SortOrder::kAscending) << "another column begins anew";
}

TEST_F(SortedList, TextIgnoresLetterCaseAndKeepsEqualRowsInPlace) {
  list.SetHeaders({{.caption = "Number"}, {.caption = "Name"}});
  Fill({"école", "b", "Zoo", "", "B", "École", "Éa", "b", "a\xC3", "zoo, long text that no buffer cuts: 2",
        "Zoo, long text that no buffer cuts: 1"});
  ListViewSortColumn(platform, list, 2);
  EXPECT_THAT(Keys(list), ElementsAre("3", "8", "4", "1", "7", "2", "10", "9", "6", "5", "0"));
  ListViewSortColumn(platform, list, 2);
  EXPECT_THAT(Keys(list), ElementsAre("0", "5", "6", "9", "10", "2", "1", "7", "4", "8", "3"));
}

TEST_F(SortedList, CellThatDoesNotConvertLeavesAllAsItWas) {
  list.SetHeaders({{.caption = "Name"},
                   {.caption = "Start", .tag = ColumnTag::kDates},
                   {.caption = "Batch", .tag = ColumnTag::kNumbers}});
  Fill({"3", "1", "2"});
  ListViewSortColumn(platform, list, 3);
  const std::vector<std::string> before = Keys(list);
  const Error noDate = ErrorOfClick(2);
  EXPECT_EQ(noDate.number(), 13);
  EXPECT_EQ(noDate.source(),
            "ListViewSort.ListViewSortColumn\r\n\tListViewSort.CompareDates\r\n\t"
            "ListViewSort.ListView_GetItemDate\r\n\tQuorvel");
  EXPECT_EQ(Keys(list), before);
  EXPECT_EQ(list.sortKey(), 2);
  EXPECT_EQ(Arrows(), "||descendingD|");
  Fill({"1", "12.5"});
  EXPECT_EQ(ErrorOfClick(3).number(), 13);
  Fill({"1", "2147483648"});
  EXPECT_EQ(ErrorOfClick(3).number(), 6);
  Fill({"nothing to compare it with"});
  EXPECT_EQ(ErrorOfClick(3).number(), 0);
  EXPECT_EQ(ErrorOfClick(0).number(), 9);
  EXPECT_EQ(ErrorOfClick(4).number(), 9);
}

TEST_F(SortedList, CellCountsWithItsFirstTwentyOneCharacters) {
  list.SetHeaders({{.caption = "Batch", .tag = ColumnTag::kNumbers}});
  const std::string blanks(19, ' ');
  Fill({" 7" + blanks + "x", "7" + blanks + " x"});
  EXPECT_EQ(ListView_GetItemNumber(list, 0, 1), 7);
  Fill({" 7" + std::string(18, ' ') + "x"});
  EXPECT_THROW(ListView_GetItemNumber(list, 0, 1), Error);
  Fill({"\u00e9" + blanks + "12"});
  try {
    ListView_GetItemNumber(list, 0, 1);
    FAIL() << "a letter is no number";
  } catch (const Error& error) {
    EXPECT_EQ(error.description(), "Not a whole number: \"\u00e9" + blanks + "1\"") << "characters, not bytes";
  }
  EXPECT_THROW(ListView_GetItemNumber(list, 1, 1), Error);
}

TEST_F(SortedList, RowIsMarkedByTwoFlags) {
  list.SetHeaders({{.caption = "Name"}});
  Fill({"a"});
  SetListViewFullRowState(list, 0, false, true);
  EXPECT_EQ(list.Look(0), (widgets::RowLook{widgets::SystemColour::kGrayText, true}));
  SetListViewFullRowState(list, 0, true, false);
  EXPECT_EQ(list.Look(0), widgets::RowLook{});
  EXPECT_THROW(SetListViewFullRowState(list, 1, true, true), Error);
}

TEST(StableOrder, IsWhatAStableSortFinds) {
  std::mt19937_64 random(9);
  for (const int bits : {1, 11, 12, 33, 64}) {
    std::vector<std::int64_t> keys(3000);
    std::ranges::generate(keys, [&] { return static_cast<std::int64_t>(random()) >> (64 - bits); });
    std::vector<std::uint32_t> expected(keys.size());
    std::iota(expected.begin(), expected.end(), 0U);
    std::ranges::stable_sort(expected, {}, [&](std::uint32_t place) { return keys[place]; });
    ASSERT_EQ(StableOrder(keys), expected) << bits;
  }
  EXPECT_THAT(StableOrder({7}), ElementsAre(0));
  EXPECT_TRUE(StableOrder({}).empty());
}

// Pieces of texts, each with its small letters.
constexpr std::pair<std::string_view, std::string_view> kPieces[] = {
    {"a", "a"}, {"A", "a"}, {"b", "b"}, {"é", "é"}, {"É", "é"},
    {"ÿ", "ÿ"}, {"Ÿ", "ÿ"}, {"ő", "ő"}, {"Ő", "ő"}, {"я", "я"},
    {"Я", "я"}, {"Ω", "ω"}, {"ω", "ω"}, {"€", "€"}, {"😀", "😀"},
    {" ", " "}, {"1", "1"}, {"", ""},   {"z", "z"}, {"Copied ", "copied "},
};

void ExpectRanked(const std::vector<std::string>& texts, std::mt19937& random,
                  const std::function<std::strong_ordering(std::size_t, std::size_t)>& compare) {
  const std::vector<std::int64_t> ranks = RankTexts(std::vector<std::string_view>(texts.begin(), texts.end()));
  for (std::size_t i = 0; i < 4 * texts.size(); ++i) {
    const std::size_t a = random() % texts.size();
    const std::size_t b = random() % texts.size();
    ASSERT_EQ(ranks[a] <=> ranks[b], compare(a, b)) << texts[a] << " and " << texts[b];
    ASSERT_EQ(CompareTexts(texts[a], texts[b]), compare(a, b)) << texts[a] << " and " << texts[b];
  }
}

TEST(TextOrder, RanksAsComparingSmallLettersDoes) {
  std::mt19937 random(11);
  for (const std::size_t most : {2U, 4U, 12U, 60U}) {
    std::vector<std::string> texts(2000, most == 60 ? "the same for all of them: É " : "");
    std::vector<std::string> small(2000, most == 60 ? "the same for all of them: é " : "");
    for (std::size_t i = 0; i < texts.size(); ++i) {
      for (std::size_t pieces = random() % most; pieces > 0; --pieces) {
        const auto& [text, lower] = kPieces[random() % (most == 12 ? 2 : std::size(kPieces))];
        texts[i] += text;
        small[i] += lower;
      }
    }
    ExpectRanked(texts, random, [&](std::size_t a, std::size_t b) {
      return small[a] == small[b] ? texts[a] <=> texts[b] : small[a] <=> small[b];
    });
  }
}

TEST(TextOrder, RanksAnyBytesAsItComparesThem) {
  constexpr char kBytes[] = {'\0', 'A', 'a', '\xC3', '\x89', '\xA9', '\xE2'};
  std::mt19937 random(12);
  std::vector<std::string> texts(3000, "x");
  for (std::string& text : texts) {
    for (std::size_t bytes = random() % 12; bytes > 0; --bytes) text += kBytes[random() % std::size(kBytes)];
  }
  ExpectRanked(texts, random, [&](std::size_t a, std::size_t b) { return CompareTexts(texts[a], texts[b]); });
}

}  // namespace
}  // namespace quorvel::util
