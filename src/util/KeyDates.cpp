#include "util/KeyDates.h"

#include <algorithm>
#include <iterator>
#include <optional>

#include "platform/Error.h"

namespace quorvel::util {
namespace {

// How long what a field names lasts.
struct FieldLength {
  DateField field;
  DateInterval interval;
  std::int32_t count;
};

constexpr FieldLength kFieldLengths[] = {
    {DateField::kYear, DateInterval::kMonths, 12},
    {DateField::kMonth, DateInterval::kMonths, 1},
    {DateField::kDay, DateInterval::kDays, 1},
};

}  // namespace

std::string FieldOfDate(DateValue date, DateField field) {
  DateTimeBuffer buffer;
  std::string text(FormatFixedDateTime(date, buffer).substr(0, static_cast<std::size_t>(field)));
  std::ranges::replace(text, '-', '/');
  return text;
}

bool HasField(DateValue date) {
  constexpr DateValue kFirst = -657'434;  // 0100-01-01
  constexpr DateValue kLast = 2'958'465;  // 9999-12-31
  return date != 0 && date >= kFirst && date < kLast + 1 - 1.0 / 86'400;
}

bool HaveSameField(DateValue a, DateValue b, DateField field) {
  if (a == b) return true;
  const std::optional<CivilTime> first = CivilFromDate(a);
  const std::optional<CivilTime> second = CivilFromDate(b);
  if (!first || !second) return !first && !second;
  return first->year == second->year && (field == DateField::kYear || first->month == second->month) &&
         (field != DateField::kDay || first->day == second->day);
}

std::string TimeText(DateValue date) {
  DateTimeBuffer buffer;
  const std::string_view text = FormatFixedDateTime(date, buffer);
  return std::string(text.substr(std::min(text.size(), text.find(' ') + 1)));
}

Period PeriodOfField(std::string_view field) {
  constexpr std::string_view kFirstDay = "0000-01-01";
  const auto* const length = std::ranges::find(kFieldLengths, DateField{field.size()}, &FieldLength::field);
  std::optional<DateValue> from;
  if (length != std::end(kFieldLengths)) {
    std::string text(field);
    std::ranges::replace(text, '/', '-');
    from = ParseFixedDate(text.append(kFirstDay.substr(text.size())));
  }
  // Written with other separators it names none either: keys are compared as they stand.
  if (!from || FieldOfDate(*from, length->field) != field) {
    throw Error(SystemError::kTypeMismatch, "\"" + std::string(field) + "\" is no year, month or day");
  }
  return {*from, AddInterval(*from, length->interval, length->count)};
}

Period Common(const Period& a, const Period& b) {
  return {std::max(a.from, b.from), std::min(a.to, b.to)};
}

}  // namespace quorvel::util
