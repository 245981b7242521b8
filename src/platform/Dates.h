// Dates as the record sources give them, and the calendar arithmetic that the viewer does with them.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace quorvel {

// Days since 1899-12-30 in local time; the fraction, taken without sign, is the time of day. 0 means that there is no
// date. -1.25 is 1899-12-29 06:00.
using DateValue = double;

// A point of local time in calendar terms.
struct CivilTime {
  int year = 1899;
  unsigned month = 12;  // 1 to 12
  unsigned day = 30;    // 1 to 31
  int hour = 0;
  int minute = 0;
  int second = 0;

  friend bool operator==(const CivilTime&, const CivilTime&) = default;
};

// The intervals a period can be given in, in the row order of `cboDuringUnit`.
enum class DateInterval : std::int32_t { kMonths = 0, kDays = 1, kHours = 2 };

// The calendar form of a date, rounded to the second. Empty when it cannot be shown: not a number, infinite, or outside
// the years 100 to 9999.
std::optional<CivilTime> CivilFromDate(DateValue date);

// The date of a calendar form, whose fields must be in range.
DateValue DateFromCivil(const CivilTime& civil);

// The whole days of a date: its midnight. Dates that cannot be shown come back as 0.
DateValue DatePart(DateValue date);

// The time of day of a date as a fraction of a day, 0 <= fraction < 1.
DateValue TimePart(DateValue date);

// The day of one date at the time of day of another. Either counts as 0 when it cannot be shown.
DateValue AtTimeOf(DateValue day, DateValue time);

// The date `count` intervals later (earlier when negative). Months are calendar months, cut to the month's last day.
// Error 6 when the result leaves the years 100 to 9999, 5 when `date` itself cannot be shown.
DateValue AddInterval(DateValue date, DateInterval interval, std::int32_t count);

// The seconds from one date to another, each taken at its nearest second, as it is shown. Empty when either cannot be
// shown.
std::optional<std::int64_t> SecondsBetween(DateValue from, DateValue to);

// "2026-11-20" and "2026-11-20 23:05:07": the form used where no regional settings exist. Empty for a date that cannot
// be shown.
std::string FormatFixedDate(DateValue date);
std::string FormatFixedDateTime(DateValue date);

// The same for many dates: date and time in `buffer`, as a view of it, or an empty one.
using DateTimeBuffer = std::array<char, 19>;
std::string_view FormatFixedDateTime(DateValue date, DateTimeBuffer& buffer);

// Reads either fixed form (a "T" may stand for the blank). Empty when the text is no such date.
std::optional<DateValue> ParseFixedDate(std::string_view text);

}  // namespace quorvel
