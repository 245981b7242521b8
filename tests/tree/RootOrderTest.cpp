// The order of the first level, as the user arranged it.
#include "tree/RootOrder.h"

#include <gtest/gtest.h>

#include <string>

#include "support/FakeSources.h"

namespace quorvel::tree {
namespace {

using test::StationRows;

std::string SpansText(const std::vector<RowSpan>& spans) {
  std::string text;
  for (const RowSpan span : spans) text += std::to_string(span.first) + "-" + std::to_string(span.last) + " ";
  return text;
}

TEST(RootOrder, ArrangesByWhatStandsAboveOriginAndThenByTheRows) {
  // Rows by process: 1 newest run 5 on two stations, 2 newest run 9 on one, 3 newest run 5 on three, 4 on none.
  StationRows rows;
  rows.Station(1, 5, 7, StationRows::kOk).Station(1, 5, 8, StationRows::kOk).Station(1, 3, 9, StationRows::kOk);
  rows.Station(2, 9, 7, StationRows::kOk);
  rows.Station(3, 5, 7, StationRows::kOk).Station(3, 5, 8, StationRows::kOk).Station(3, 5, 9, StationRows::kOk);
  rows.Station(4, 1, -1, StationRows::kOk);
  const auto arranged = [&](std::string_view groupBy) {
    return SpansText(ArrangeProcesses(rows.Records(), static_cast<std::size_t>(rows.count()), groupBy));
  };
  EXPECT_EQ(arranged("0123"), "0-8 ") << "as the rows come, in one piece";
  EXPECT_EQ(arranged("3210"), "0-8 ") << "the roots' own kind is their name";
  EXPECT_EQ(arranged(""), "0-8 ");
  EXPECT_EQ(arranged("2013"), "3-4 0-3 4-7 7-8 ");
  EXPECT_EQ(arranged("1023"), "4-7 0-3 3-4 7-8 ");
  EXPECT_EQ(arranged("2103"), "3-4 4-7 0-3 7-8 ") << "the second decides between those that the first leaves alike";
  EXPECT_EQ(SpansText(ArrangeProcesses(rows.Records(), 0, "2013")), "");
  // By station the newest of all processes counts, and how many of them there are.
  StationRows parts;
  parts.Station(1, 2, 7, StationRows::kOk).Station(2, 8, 7, StationRows::kOk).Station(3, 1, 8, StationRows::kOk);
  parts.Station(1, 9, 9, StationRows::kOk).Station(1, 4, 9, StationRows::kOk);
  EXPECT_EQ(SpansText(ArrangeStations(parts.Records(), 5, "2013")), "3-5 0-2 2-3 ");
  EXPECT_EQ(SpansText(ArrangeStations(parts.Records(), 5, "3012")), "0-2 2-3 3-5 ");
  EXPECT_EQ(SpansText(ArrangeStations(parts.Records(), 5, "1023")), "0-5 ");
}

}  // namespace
}  // namespace quorvel::tree
