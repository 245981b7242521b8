#include "tools/AptHistory.h"

#include <algorithm>
#include <cstddef>
#include <optional>

namespace quorvel::tools {
namespace {

struct ActionKey {
  std::string_view key;
  AptAction action;
};
constexpr ActionKey kActions[] = {
    {"Install", AptAction::kInstall},     {"Reinstall", AptAction::kReinstall}, {"Upgrade", AptAction::kUpgrade},
    {"Downgrade", AptAction::kDowngrade}, {"Remove", AptAction::kRemove},       {"Purge", AptAction::kPurge},
    {"Disappeared", AptAction::kRemove},
};

// apt writes two blanks between date and time.
std::optional<DateValue> ParseDate(std::string_view text) {
  constexpr std::size_t kDateLength = 10;
  std::string date(text);
  if (date.size() > kDateLength + 1 && date[kDateLength + 1] == ' ') date.erase(kDateLength, 1);
  return date.size() > kDateLength ? ParseFixedDate(date) : std::nullopt;
}

// "libc6:amd64 (2.36-9, 2.36-10)" or "libc6:amd64 (2.36-9, automatic)", without the closing bracket.
std::optional<AptChange> ParseChange(AptAction action, std::string_view text) {
  const std::size_t bracket = text.find(" (");
  if (bracket == std::string_view::npos || bracket == 0) return std::nullopt;
  AptChange change{.action = action, .package = std::string(text.substr(0, bracket))};
  std::string_view versions = text.substr(bracket + 2);
  constexpr std::string_view kAutomatic = ", automatic";
  if (versions.ends_with(kAutomatic)) {
    change.automatic = true;
    versions.remove_suffix(kAutomatic.size());
  }
  const std::size_t comma = versions.find(", ");
  const std::string first(versions.substr(0, comma));
  if (comma != std::string_view::npos) {
    change.oldVersion = first;
    change.newVersion = versions.substr(comma + 2);
  } else if (action == AptAction::kRemove || action == AptAction::kPurge) {
    change.oldVersion = first;
  } else {
    change.newVersion = first;
  }
  return change;
}

class Parser {
 public:
  explicit Parser(AptHistory& history) : history_(history) {}

  void Line(std::string_view line) {
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.empty()) return;
    const std::size_t colon = line.find(": ");
    const std::string_view key = line.substr(0, colon);
    const std::string_view value = colon == std::string_view::npos ? "" : line.substr(colon + 2);
    if (!(key == "Start-Date" ? Start(value) : open_ && Field(key, value))) ++history_.skippedLines;
  }

  // Whether the last invocation still lacks its end.
  bool open() const { return open_; }

 private:
  bool Start(std::string_view value) {
    const std::optional<DateValue> date = ParseDate(value);
    open_ = date.has_value();
    if (date) history_.invocations.push_back({.start = *date});
    return open_;
  }

  bool Field(std::string_view key, std::string_view value) {
    AptInvocation& invocation = history_.invocations.back();
    if (key == "End-Date") return End(invocation, value);
    if (key == "Commandline") return Set(invocation.commandLine, value);
    if (key == "Requested-By") return Set(invocation.requestedBy, value);
    if (key == "Error") return Set(invocation.error, value);
    if (key == "Comment") return true;
    const auto* const action = std::ranges::find(kActions, key, &ActionKey::key);
    if (action == std::end(kActions)) return false;
    Changes(action->action, value, invocation);
    return true;
  }

  bool End(AptInvocation& invocation, std::string_view value) {
    const std::optional<DateValue> date = ParseDate(value);
    invocation.end = date.value_or(0);
    if (date) open_ = false;
    return date.has_value();
  }

  static bool Set(std::string& field, std::string_view value) {
    field = value;
    return true;
  }

  void Changes(AptAction action, std::string_view list, AptInvocation& invocation) {
    while (!list.empty()) {
      const std::size_t next = list.find_first_not_of(", ");
      list.remove_prefix(std::min(next, list.size()));
      const std::size_t end = list.find(')');
      const std::optional<AptChange> change =
          end == std::string_view::npos ? std::nullopt : ParseChange(action, list.substr(0, end));
      if (change) {
        invocation.changes.push_back(*change);
      } else if (!list.empty()) {
        ++history_.skippedLines;
      }
      list.remove_prefix(end == std::string_view::npos ? list.size() : end + 1);
    }
  }

  AptHistory& history_;
  bool open_ = false;
};

}  // namespace

void ParseAptHistory(std::span<const std::string> lines, bool whole, AptHistory& history) {
  Parser parser(history);
  for (const std::string& line : lines) parser.Line(line);
  if (parser.open() && !whole) history.invocations.pop_back();
}

}  // namespace quorvel::tools
