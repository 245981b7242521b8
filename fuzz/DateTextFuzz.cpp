// Dates as text, as calendar terms and as fields of keys: each form comes back from the other.
#include <cmath>
#include <cstring>
#include <limits>
#include <optional>
#include <string>

#include "fuzz/Check.h"
#include "platform/Dates.h"
#include "util/KeyDates.h"

namespace quorvel::fuzz {
namespace {

// Two dates that are shown alike.
bool Alike(DateValue a, DateValue b) {
  return FormatFixedDateTime(a) == FormatFixedDateTime(b);
}

void TextIsReadAsWritten(std::string_view text) {
  const std::optional<DateValue> date = ParseFixedDate(text);
  if (!date) return;
  std::string written = FormatFixedDateTime(*date);
  Check(!written.empty(), "what can be read can be shown");
  Check(ParseFixedDate(written) == date, "a date comes back from its text");
  Check(ParseFixedDate(FormatFixedDate(*date)) == DatePart(*date), "its day too");
  Check(written.starts_with(text.substr(0, FormatFixedDate(*date).size())), "it was written so");
}

void FormsFitTogether(DateValue date) {
  DateTimeBuffer buffer;
  const std::string written = FormatFixedDateTime(date);
  const std::optional<CivilTime> civil = CivilFromDate(date);
  Check(written.empty() == !civil, "what has calendar terms can be shown");
  Check(FormatFixedDateTime(date, buffer) == written, "both ways of writing write the same");
  if (!civil) return;
  Check(CivilFromDate(DateFromCivil(*civil)) == civil, "calendar terms come back from the date");
  const std::optional<DateValue> read = ParseFixedDate(written);
  Check(read && Alike(*read, date), "a date comes back from its text, at its nearest second");
  Check(SecondsBetween(date, *read) == 0, "no second lies between");
  Check(TimePart(date) >= 0 && TimePart(date) < 1, "a time of day is less than a day");
  Check(written.ends_with(util::TimeText(date)), "the time of day is the end of the text");
}

void FieldsNamePeriods(DateValue date) {
  using util::DateField;
  if (!util::HasField(date)) return;
  for (const DateField field : {DateField::kYear, DateField::kMonth, DateField::kDay}) {
    const std::string text = util::FieldOfDate(date, field);
    Check(text.size() == static_cast<std::size_t>(field), "a field has its length");
    MayRefuse([&] {
      const util::Period period = util::PeriodOfField(text);
      const DateValue shown = ParseFixedDate(FormatFixedDateTime(date)).value();
      // Before day zero a later time of day is a smaller number, and no period holds it.
      if (shown >= 0) Check(period.Holds(shown), "a date lies in the period that its field names");
      Check(util::HaveSameField(period.from, date, field), "which begins with that field");
    });
  }
}

void ArithmeticStaysInTheCalendar(DateValue date, std::int32_t count) {
  for (const DateInterval interval : {DateInterval::kMonths, DateInterval::kDays, DateInterval::kHours}) {
    MayRefuse([&] {
      const DateValue later = AddInterval(date, interval, count);
      Check(CivilFromDate(later).has_value(), "what is not refused can be shown");
      const std::int64_t seconds = SecondsBetween(date, later).value();
      Check(count == 0 ? seconds == 0 : (seconds > 0) == (count > 0), "later is later");
    });
  }
}

template <class Value>
Value TakeValue(std::string_view& bytes) {
  Value value{};
  std::memcpy(&value, bytes.data(), std::min(sizeof value, bytes.size()));
  bytes.remove_prefix(std::min(sizeof value, bytes.size()));
  return value;
}

// The fuzzer finds numbers far from any calendar by itself; half of them are brought near.
DateValue NearTheCalendar(DateValue date) {
  return std::isfinite(date) ? std::fmod(date, 4'000'000) : date;
}

}  // namespace
}  // namespace quorvel::fuzz

// The whole as text; as two dates and a number.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvel::fuzz;  // NOLINT(google-build-using-namespace): the target is part of it
  std::string_view bytes = TextOf(data, size);
  TextIsReadAsWritten(bytes);
  MayRefuse([&] { static_cast<void>(quorvel::util::PeriodOfField(bytes)); });
  const auto first = TakeValue<double>(bytes);
  const auto second = NearTheCalendar(TakeValue<double>(bytes));
  const auto count = TakeValue<std::int32_t>(bytes);
  for (const double date : {first, second}) {
    FormsFitTogether(date);
    FieldsNamePeriods(date);
    ArithmeticStaysInTheCalendar(date, count);
  }
  const auto way = quorvel::SecondsBetween(first, second);
  const auto back = quorvel::SecondsBetween(second, first);
  Check(way.has_value() == back.has_value() && (!way || *way == -*back), "it is as far there as back");
  return 0;
}
