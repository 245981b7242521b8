// Dates, and errors made of other exceptions.
#include "platform/Dates.h"

#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <limits>
#include <new>
#include <stdexcept>
#include <typeinfo>

#include "platform/Error.h"

namespace quorvel {
namespace {

DateValue At(std::string_view text) {
  return ParseFixedDate(text).value();
}

TEST(Dates, CountDaysFromTheEndOf1899WithTheTimeAsAbsoluteFraction) {
  EXPECT_EQ(FormatFixedDateTime(0), "1899-12-30 00:00:00");
  EXPECT_EQ(FormatFixedDateTime(-1.25), "1899-12-29 06:00:00");
  EXPECT_EQ(FormatFixedDateTime(36526.5), "2000-01-01 12:00:00");
  EXPECT_DOUBLE_EQ(At("1899-12-29 06:00:00"), -1.25);
  // A fraction that rounds to midnight belongs to the next day.
  EXPECT_EQ(FormatFixedDateTime(1.9999999), "1900-01-01 00:00:00");
  EXPECT_DOUBLE_EQ(AtTimeOf(-1.75, -7.25), -1.25);
  EXPECT_DOUBLE_EQ(AtTimeOf(46000.75, 0.5), 46000.5) << "the day alone, whatever its time";
}

TEST(Dates, EverySecondOfADaySurvivesTextAndBack) {
  for (int second = 0; second < 86400; second += 7) {
    const CivilTime civil{2026, 3, 29, second / 3600, second / 60 % 60, second % 60};
    ASSERT_EQ(CivilFromDate(DateFromCivil(civil)), civil);
    ASSERT_EQ(At(FormatFixedDateTime(DateFromCivil(civil))), DateFromCivil(civil));
  }
}

TEST(Dates, ThatCannotBeShownGiveNothing) {
  for (const double bad : {std::nan(""), std::numeric_limits<double>::infinity(), 1e300, -657435.0, 2958466.0}) {
    EXPECT_EQ(FormatFixedDateTime(bad), "") << bad;
    EXPECT_THROW(AddInterval(bad, DateInterval::kDays, 1), Error) << bad;
  }
  for (const char* bad : {"", "2026-02-30", "2026-13-01", "2026-11-20 24:00:00", "2026-11-20 1:00:00", "20/11/2026",
                          "0099-01-01", "2026-11-20x05:06:07"}) {
    EXPECT_FALSE(ParseFixedDate(bad)) << bad;
  }
}

TEST(Dates, IntervalsFollowTheCalendar) {
  EXPECT_EQ(AddInterval(At("2026-01-31 08:00:00"), DateInterval::kMonths, 1), At("2026-02-28 08:00:00"));
  EXPECT_EQ(AddInterval(At("2024-03-31"), DateInterval::kMonths, -1), At("2024-02-29"));
  EXPECT_EQ(AddInterval(At("2026-01-15"), DateInterval::kMonths, -13), At("2024-12-15"));
  EXPECT_EQ(AddInterval(At("2026-11-20 23:30:00"), DateInterval::kHours, 1), At("2026-11-21 00:30:00"));
  EXPECT_EQ(AddInterval(At("1899-12-30 01:00:00"), DateInterval::kHours, -2), At("1899-12-29 23:00:00"));
  EXPECT_EQ(AddInterval(At("2026-03-01"), DateInterval::kDays, -1), At("2026-02-28"));
  EXPECT_THROW(AddInterval(At("9999-12-31"), DateInterval::kDays, 1), Error);
  EXPECT_THROW(AddInterval(At("2026-11-20"), DateInterval::kMonths, std::numeric_limits<int>::min()), Error);
}

template <class Exception>
std::int32_t NumberOf(const Exception& exception) {
  try {
    throw exception;
  } catch (...) {
    return CurrentError().number();
  }
}

TEST(Error, IsMadeOfWhateverWasThrown) {
  EXPECT_EQ(NumberOf(Error(-7, "s", "d")), -7);
  EXPECT_EQ(NumberOf(std::bad_alloc()), 7);
  EXPECT_EQ(NumberOf(std::length_error("")), 7);
  EXPECT_EQ(NumberOf(std::out_of_range("")), 9);
  EXPECT_EQ(NumberOf(std::overflow_error("")), 6);
  EXPECT_EQ(NumberOf(std::runtime_error("")), 5);
  EXPECT_EQ(NumberOf(std::bad_cast()), 13);
  EXPECT_EQ(NumberOf(std::filesystem::filesystem_error("", std::make_error_code(std::errc::no_such_file_or_directory))),
            53);
  EXPECT_EQ(NumberOf(42), 5);
  EXPECT_EQ(CurrentError().number(), 0);
}

}  // namespace
}  // namespace quorvel
