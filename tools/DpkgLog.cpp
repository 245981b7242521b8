#include "tools/DpkgLog.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>

namespace quorvel::tools {
namespace {

constexpr std::size_t kDateLength = 19;
constexpr std::string_view kPackageVerbs[] = {"install",   "upgrade",  "remove",   "purge",
                                              "configure", "trigproc", "disappear"};
constexpr std::string_view kOtherVerbs[] = {"startup", "conffile"};

bool IsOneOf(std::span<const std::string_view> verbs, std::string_view verb) {
  return std::ranges::find(verbs, verb) != verbs.end();
}

// The next word, taken away from `text`.
std::string_view TakeWord(std::string_view& text) {
  const std::size_t end = std::min(text.find(' '), text.size());
  const std::string_view word = text.substr(0, end);
  text.remove_prefix(std::min(end + 1, text.size()));
  return word;
}

bool ParseLine(std::string_view line, DpkgLog& log) {
  if (line.size() <= kDateLength + 1 || line[kDateLength] != ' ') return false;
  const std::optional<DateValue> date = ParseFixedDate(line.substr(0, kDateLength));
  std::string_view rest = line.substr(kDateLength + 1);
  const std::string_view text = rest;
  const std::string_view verb = TakeWord(rest);
  if (!date) return false;
  if (IsOneOf(kOtherVerbs, verb)) return true;
  const bool isStatus = verb == "status";
  if (!isStatus && !IsOneOf(kPackageVerbs, verb)) return false;
  const std::string_view state = isStatus ? TakeWord(rest) : "";
  const std::string_view package = TakeWord(rest);
  if (package.empty()) return false;
  log.records.push_back({*date, std::string(package), std::string(state), std::string(text)});
  return true;
}

}  // namespace

void ParseDpkgLog(std::span<const std::string> lines, DpkgLog& log) {
  for (const std::string& line : lines) {
    if (!line.empty() && !ParseLine(line, log)) ++log.skippedLines;
  }
}

void SortByDate(DpkgLog& log) {
  std::ranges::stable_sort(log.records, {}, &DpkgRecord::date);
}

}  // namespace quorvel::tools
