#include "scenario/Values.h"

#include <charconv>
#include <optional>
#include <sstream>
#include <system_error>
#include <utility>

#include "scenario/Script.h"

namespace quorvel::scenario {
namespace {

constexpr std::size_t kHexadecimalDigits = 8;
constexpr std::size_t kDateWidth = 11;  // of "2026-11-20 " in front of a time

template <class Number, class... Form>
Number Parse(std::string_view text, const char* what, Form... form) {
  Number number{};
  const auto [end, code] = std::from_chars(text.data(), text.data() + text.size(), number, form...);
  if (code != std::errc() || end != text.data() + text.size()) {
    throw ScriptError("Not " + std::string(what) + ": " + std::string(text));
  }
  return number;
}

}  // namespace

std::int32_t NumberOf(std::string_view text) {
  return Parse<std::int32_t>(text, "a whole number");
}

float DecimalOf(std::string_view text) {
  return Parse<float>(text, "a number");
}

bool FlagOf(std::string_view text) {
  if (text != "0" && text != "1") throw ScriptError("Neither 0 nor 1: " + std::string(text));
  return text == "1";
}

DateValue DateOf(std::string_view text) {
  const std::optional<DateValue> date = ParseFixedDate(text);
  if (!date) throw ScriptError("Not a date: " + std::string(text));
  return *date;
}

DateValue TimeOf(std::string_view text) {
  const std::string time = std::string(text) + (text.size() == 5 ? ":00" : "");
  return TimePart(DateOf("1900-01-01 " + time));
}

std::int32_t ErrorNumberOf(std::string_view text) {
  if (text.size() != kHexadecimalDigits) return NumberOf(text);
  return static_cast<std::int32_t>(Parse<std::uint32_t>(text, "an error number", 16));
}

std::string ErrorNumberText(std::int32_t number) {
  if (number >= 0) return std::to_string(number);
  std::ostringstream text;
  text << std::hex << std::uppercase << static_cast<std::uint32_t>(number);
  return std::move(text).str();
}

std::string TimeText(DateValue date) {
  return FormatFixedDateTime(TimePart(date)).substr(kDateWidth);
}

}  // namespace quorvel::scenario
