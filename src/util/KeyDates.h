// Dates as fields of node keys, and the periods that such fields name.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/Dates.h"

namespace quorvel::util {

// How exactly a field tells a date, with the length of its text: "2026", "2026/11", "2026/11/20".
enum class DateField : std::size_t { kYear = 4, kMonth = 7, kDay = 10 };

// A date as a field of a key, the same whatever the regional settings; empty for a date that cannot be shown.
std::string FieldOfDate(DateValue date, DateField field);

// Whether a date can be a field: it is not 0, which is none, and can be shown.
bool HasField(DateValue date);

// Whether two dates have the same field, found without making it.
bool HaveSameField(DateValue a, DateValue b, DateField field);

// "23:05:07", the time of day of a date, for nodes whose day stands above them; empty for a date that cannot be shown.
std::string TimeText(DateValue date);

// from <= date < to; holds nothing when it ends before it begins.
struct Period {
  DateValue from = 0;
  DateValue to = 0;

  bool Holds(DateValue date) const { return from <= date && date < to; }
};

// The year, month or day that a field names. Error 13 when it names none, 6 when it ends beyond the year 9999.
Period PeriodOfField(std::string_view field);

// What two periods have in common.
Period Common(const Period& a, const Period& b);

}  // namespace quorvel::util
