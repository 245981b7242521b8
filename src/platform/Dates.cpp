#include "platform/Dates.h"

#include <array>
#include <charconv>
#include <chrono>
#include <cmath>
#include <cstring>

#include "platform/Error.h"

namespace quorvel {
namespace {

using std::chrono::days;
using std::chrono::sys_days;
using std::chrono::year_month_day;

constexpr sys_days kDayZero{std::chrono::year{1899} / 12 / 30};
constexpr std::int64_t kSecondsPerDay = 86400;

constexpr std::int64_t DayNumber(int year, unsigned month, unsigned day) {
  return (sys_days{std::chrono::year{year} / std::chrono::month{month} / std::chrono::day{day}} - kDayZero).count();
}

constexpr std::int64_t kFirstDay = DayNumber(100, 1, 1);
constexpr std::int64_t kLastDay = DayNumber(9999, 12, 31);

// A date split at the second: whole days since day zero and seconds of that day.
struct DaySeconds {
  std::int64_t day;
  std::int64_t second;
};

std::optional<DaySeconds> Split(DateValue date) {
  // Not true of a number that is none either.
  if (!(date > static_cast<double>(kFirstDay - 1) && date < static_cast<double>(kLastDay + 1))) return std::nullopt;
  const auto day = static_cast<std::int64_t>(date);
  const double time = std::fabs(date - static_cast<double>(day)) * static_cast<double>(kSecondsPerDay);
  // Never negative, so this rounds as lround does, without a call for every date of a million rows.
  DaySeconds result{day, static_cast<std::int64_t>(time + 0.5)};  // NOLINT(bugprone-incorrect-roundings)
  if (result.second == kSecondsPerDay) result = {result.day + 1, 0};
  if (result.day > kLastDay) return std::nullopt;
  return result;
}

DateValue Join(std::int64_t day, std::int64_t second) {
  const double fraction = static_cast<double>(second) / static_cast<double>(kSecondsPerDay);
  return static_cast<double>(day) + (day < 0 ? -fraction : fraction);
}

DateValue JoinChecked(std::int64_t day, std::int64_t second) {
  if (day < kFirstDay || day > kLastDay) throw Error(SystemError::kOverflow, "Date outside the years 100 to 9999");
  return Join(day, second);
}

year_month_day Calendar(std::int64_t day) {
  return year_month_day{kDayZero + days{day}};
}

std::int64_t AddMonths(std::int64_t day, std::int32_t count) {
  const year_month_day from = Calendar(day);
  const std::int64_t months =
      std::int64_t{static_cast<int>(from.year())} * 12 + static_cast<unsigned>(from.month()) - 1 + count;
  const std::int64_t year = months >= 0 ? months / 12 : (months - 11) / 12;
  if (year < 100 || year > 9999) throw Error(SystemError::kOverflow, "Date outside the years 100 to 9999");
  const auto month = static_cast<unsigned>(months - year * 12) + 1;
  const auto last = std::chrono::year{static_cast<int>(year)} / std::chrono::month{month} / std::chrono::last;
  const unsigned dayOfMonth = std::min(static_cast<unsigned>(from.day()), static_cast<unsigned>(last.day()));
  return DayNumber(static_cast<int>(year), month, dayOfMonth);
}

// "00" to "99".
constexpr std::array<std::array<char, 2>, 100> kTwoDigits = [] {
  std::array<std::array<char, 2>, 100> all{};
  for (std::size_t number = 0; number < all.size(); ++number) {
    all[number] = {static_cast<char>('0' + number / 10), static_cast<char>('0' + number % 10)};
  }
  return all;
}();

// Reads exactly `width` digits at `position`.
std::optional<int> Digits(std::string_view text, std::size_t position, std::size_t width) {
  if (text.size() < position + width) return std::nullopt;
  int value = 0;
  for (const char c : text.substr(position, width)) {
    if (c < '0' || c > '9') return std::nullopt;
    value = value * 10 + (c - '0');
  }
  return value;
}

}  // namespace

std::optional<CivilTime> CivilFromDate(DateValue date) {
  const std::optional<DaySeconds> split = Split(date);
  if (!split) return std::nullopt;
  const year_month_day calendar = Calendar(split->day);
  const auto second = static_cast<int>(split->second);
  return CivilTime{static_cast<int>(calendar.year()),
                   static_cast<unsigned>(calendar.month()),
                   static_cast<unsigned>(calendar.day()),
                   second / 3600,
                   second / 60 % 60,
                   second % 60};
}

DateValue DateFromCivil(const CivilTime& civil) {
  return Join(DayNumber(civil.year, civil.month, civil.day),
              std::int64_t{civil.hour} * 3600 + std::int64_t{civil.minute} * 60 + civil.second);
}

std::optional<std::int64_t> SecondsBetween(DateValue from, DateValue to) {
  const std::optional<DaySeconds> first = Split(from);
  const std::optional<DaySeconds> last = Split(to);
  if (!first || !last) return std::nullopt;
  return (last->day - first->day) * kSecondsPerDay + last->second - first->second;
}

DateValue DatePart(DateValue date) {
  const std::optional<DaySeconds> split = Split(date);
  return split ? static_cast<double>(split->day) : 0;
}

DateValue TimePart(DateValue date) {
  const std::optional<DaySeconds> split = Split(date);
  return split ? Join(0, split->second) : 0;
}

DateValue AtTimeOf(DateValue day, DateValue time) {
  const DaySeconds dayPart = Split(day).value_or(DaySeconds{0, 0});
  const DaySeconds timePart = Split(time).value_or(DaySeconds{0, 0});
  return Join(dayPart.day, timePart.second);
}

DateValue AddInterval(DateValue date, DateInterval interval, std::int32_t count) {
  const std::optional<DaySeconds> split = Split(date);
  if (!split) throw Error(SystemError::kInvalidCall, "Not a date that can be shown");
  switch (interval) {
    case DateInterval::kMonths:
      return JoinChecked(AddMonths(split->day, count), split->second);
    case DateInterval::kDays:
      return JoinChecked(split->day + count, split->second);
    case DateInterval::kHours:
      break;
  }
  const std::int64_t seconds = split->day * kSecondsPerDay + split->second + std::int64_t{count} * 3600;
  const std::int64_t day = seconds >= 0 ? seconds / kSecondsPerDay : (seconds - kSecondsPerDay + 1) / kSecondsPerDay;
  return JoinChecked(day, seconds - day * kSecondsPerDay);
}

std::string FormatFixedDate(DateValue date) {
  DateTimeBuffer buffer;
  const std::string_view text = FormatFixedDateTime(date, buffer);
  return std::string(text.substr(0, text.find(' ')));
}

std::string FormatFixedDateTime(DateValue date) {
  DateTimeBuffer buffer;
  return std::string(FormatFixedDateTime(date, buffer));
}

std::string_view FormatFixedDateTime(DateValue date, DateTimeBuffer& buffer) {
  const std::optional<CivilTime> civil = CivilFromDate(date);
  if (!civil) return {};
  // Looked up, not computed: a list formats two dates for every row that it shows or copies.
  std::string_view("0000-00-00 00:00:00").copy(buffer.data(), buffer.size());
  const auto put = [&buffer](std::size_t first, unsigned value) {
    std::memcpy(buffer.data() + first, kTwoDigits[value].data(), 2);
  };
  const auto year = static_cast<unsigned>(civil->year);
  put(0, year / 100);
  put(2, year % 100);
  put(5, civil->month);
  put(8, civil->day);
  put(11, static_cast<unsigned>(civil->hour));
  put(14, static_cast<unsigned>(civil->minute));
  put(17, static_cast<unsigned>(civil->second));
  return {buffer.data(), buffer.size()};
}

std::optional<DateValue> ParseFixedDate(std::string_view text) {
  if (text.size() != 10 && text.size() != 19) return std::nullopt;
  if (text[4] != '-' || text[7] != '-') return std::nullopt;
  const auto year = Digits(text, 0, 4);
  const auto month = Digits(text, 5, 2);
  const auto day = Digits(text, 8, 2);
  if (!year || !month || !day) return std::nullopt;
  CivilTime civil{*year, static_cast<unsigned>(*month), static_cast<unsigned>(*day), 0, 0, 0};
  const year_month_day calendar{std::chrono::year{civil.year}, std::chrono::month{civil.month},
                                std::chrono::day{civil.day}};
  if (civil.year < 100 || !calendar.ok()) return std::nullopt;
  if (text.size() == 19) {
    if ((text[10] != ' ' && text[10] != 'T') || text[13] != ':' || text[16] != ':') return std::nullopt;
    const auto hour = Digits(text, 11, 2);
    const auto minute = Digits(text, 14, 2);
    const auto second = Digits(text, 17, 2);
    if (!hour || !minute || !second || *hour > 23 || *minute > 59 || *second > 59) return std::nullopt;
    civil.hour = *hour;
    civil.minute = *minute;
    civil.second = *second;
  }
  return DateFromCivil(civil);
}

}  // namespace quorvel
