#include "list/RowFacts.h"

#include <algorithm>
#include <iterator>
#include <vector>

#include "list/AlarmList.h"
#include "list/SystemList.h"
#include "util/KeyPrefixes.h"
#include "util/PublicFunctions.h"

namespace quorvel::list {
namespace {

// Where the run stands in the keys of a view: how many fields there are between the prefix and the process.
struct RunPlace {
  std::string_view prefix;
  std::size_t fieldsBefore;
};

constexpr RunPlace kRunPlaces[] = {
    {util::kProcessPrefix, 0},   {util::kUserPrefix, 1},         {util::kAlarmDayPrefix, 2},
    {util::kAlarmUserPrefix, 1}, {util::kAlarmOneUserPrefix, 1}, {util::kAlarmAllPrefix, 1},
};

std::string_view Trimmed(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

}  // namespace

std::optional<std::size_t> ColumnOf(const widgets::ListView& list, std::string_view caption) {
  const auto found = std::ranges::find(list.headers(), caption, &widgets::ColumnHeader::caption);
  if (found == list.headers().end()) return std::nullopt;
  return static_cast<std::size_t>(found - list.headers().begin());
}

AlarmMark AlarmMarkOf(const widgets::ListView& list, std::size_t row) {
  const auto column = ColumnOf(list, kAlarmStateCaption);
  if (!column) return AlarmMark::kNone;
  const std::string state = list.Cell(row, *column);
  if (state == kActiveAlarmText) return AlarmMark::kActive;
  return state == kAcknowledgedAlarmText ? AlarmMark::kAcknowledged : AlarmMark::kNone;
}

std::string AttachmentOf(const widgets::ListView& list, std::size_t row) {
  const auto column = ColumnOf(list, kAttachmentCaption);
  if (!column) return {};
  const std::string cell = list.Cell(row, *column);
  const std::string_view text = Trimmed(cell);
  return text == kNonexistentFile ? std::string() : std::string(text);
}

// A row's key may begin with a number of its own, before that of its node.
std::string RunKeyIn(std::string_view key) {
  constexpr std::size_t kRunFields = 3;  // process, flag, run
  const std::vector<std::string_view> fields = util::SplitKey(key);
  for (const std::size_t prefix : {std::size_t{0}, std::size_t{1}}) {
    if (prefix >= fields.size()) break;
    const auto* const place = std::ranges::find(kRunPlaces, fields[prefix], &RunPlace::prefix);
    if (place == std::end(kRunPlaces)) continue;
    const std::size_t first = prefix + 1 + place->fieldsBefore;
    if (fields.size() < first + kRunFields) return {};
    std::string run(util::kProcessPrefix);
    for (std::size_t i = first; i < first + kRunFields; ++i) run.append(util::kKeySeparator).append(fields[i]);
    return run;
  }
  return {};
}

}  // namespace quorvel::list
