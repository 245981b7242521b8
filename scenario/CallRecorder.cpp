#include "scenario/CallRecorder.h"

#include <cstddef>
#include <optional>

#include "platform/Error.h"
#include "scenario/Script.h"
#include "scenario/Values.h"

namespace quorvel::scenario {

void CallRecorder::Run(std::string_view name, std::string_view arguments, const std::function<void()>& call,
                       std::int32_t* status) {
  std::string line = std::string(name).append("(").append(arguments).append(")");
  try {
    const std::optional<std::int32_t> wanted = faults_.Use(name);
    call();
    if (wanted && status != nullptr) *status = *wanted;
  } catch (...) {
    Note(line + " error " + ErrorNumberText(CurrentError().number()));
    throw;
  }
  if (status != nullptr) line.append(" -> ").append(std::to_string(*status));
  Note(std::move(line));
}

std::int32_t CallRecorder::AddConnection(std::int32_t index) {
  indices_.push_back(index);
  return static_cast<std::int32_t>(indices_.size());
}

std::int32_t CallRecorder::IndexOf(std::int32_t connection) const {
  const auto place = static_cast<std::size_t>(connection) - 1;  // none for 0 and below
  return place < indices_.size() ? indices_[place] : connection;
}

std::string ArgumentText(std::int32_t value) {
  return std::to_string(value);
}

std::string ArgumentText(DateValue value) {
  return value == 0 ? "0" : FormatFixedDateTime(value);
}

std::string ArgumentText(bool value) {
  return value ? "True" : "False";
}

std::string ArgumentText(std::string_view value) {
  return '"' + Escaped(value) + '"';
}

std::string ArgumentText(std::span<const std::int32_t> values) {
  std::string text = "[";
  for (const std::int32_t value : values) text.append(text.size() > 1 ? " " : "").append(std::to_string(value));
  return text + "]";
}

}  // namespace quorvel::scenario
