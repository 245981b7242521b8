#include "widgets/IconGlyphs.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <span>

#include "widgets/IconAlarms.h"
#include "widgets/IconControls.h"
#include "widgets/IconProcesses.h"
#include "widgets/IconSteps.h"
#include "widgets/IconTasks.h"

namespace quorvel::widgets {
namespace {

struct EntryGroup {
  std::string_view caption;
  std::span<const IconEntry> entries;
};

constexpr EntryGroup kGroups[] = {
    {"Processes and their runs", glyphs::kProcessIcons},
    {"Stations", glyphs::kUserIcons},
    {"Tasks", glyphs::kTaskIcons},
    {"Steps", glyphs::kStepIcons},
    {"Commands", glyphs::kCommandIcons},
    {"Alarms", glyphs::kAlarmIcons},
    {"System log", glyphs::kSystemIcons},
    {"Imports", glyphs::kImportIcons},
    {"Column headers", glyphs::kHeaderIcons},
    {"Detail dialog", glyphs::kDetailIcons},
};

constexpr std::size_t CountEntries() {
  std::size_t count = 0;
  for (const EntryGroup& group : kGroups) count += group.entries.size();
  return count;
}

constexpr std::string_view NameOf(const IconEntry* entry) {
  return entry->name;
}

constexpr auto SortByName() {
  std::array<const IconEntry*, CountEntries()> sorted{};
  std::size_t count = 0;
  for (const EntryGroup& group : kGroups) {
    for (const IconEntry& entry : group.entries) sorted[count++] = &entry;
  }
  std::ranges::sort(sorted, {}, NameOf);
  return sorted;
}

constexpr auto kByName = SortByName();
static_assert(std::ranges::adjacent_find(kByName, {}, NameOf) == kByName.end(), "a name stands twice");

// What a name takes, in the order in which a reader looks for it.
constexpr std::string_view kTaskSuffixes[] = {"", "NotExec", "Global", "NotExecGlobal"};
constexpr std::string_view kStepSuffixes[] = {"", "Global"};

std::span<const std::string_view> SuffixesOf(IconVariants variants) {
  switch (variants) {
    case IconVariants::kTask:
      return kTaskSuffixes;
    case IconVariants::kGlobal:
      return kStepSuffixes;
    case IconVariants::kNone:
      break;
  }
  return std::span(kStepSuffixes).first(1);
}

bool TakeSuffix(std::string_view& text, std::string_view suffix) {
  if (!text.ends_with(suffix)) return false;
  text.remove_suffix(suffix.size());
  return true;
}

const IconEntry* FindEntry(std::string_view name, std::string_view suffix) {
  const auto found = std::ranges::lower_bound(kByName, name, {}, NameOf);
  if (found == kByName.end() || (*found)->name != name) return nullptr;
  const auto suffixes = SuffixesOf((*found)->variants);
  return std::ranges::find(suffixes, suffix) == suffixes.end() ? nullptr : *found;
}

}  // namespace

std::optional<IconPicture> FindIcon(std::string_view key) {
  std::string_view name = key;
  const bool global = TakeSuffix(name, "Global");
  const bool notExecuted = TakeSuffix(name, "NotExec");
  const IconEntry* const entry = FindEntry(name, key.substr(name.size()));
  if (entry == nullptr) return std::nullopt;
  IconPicture picture = entry->picture;
  picture.quiet = notExecuted;
  if (notExecuted) picture.lowerLeft = &glyphs::kNotExecutedMark;
  if (global) picture.upperRight = &glyphs::kGlobalMark;
  return picture;
}

std::vector<IconGroup> IconGroups() {
  std::vector<IconGroup> groups;
  for (const EntryGroup& group : kGroups) {
    IconGroup& named = groups.emplace_back(IconGroup{group.caption, {}});
    for (const IconEntry& entry : group.entries) {
      for (const std::string_view suffix : SuffixesOf(entry.variants)) {
        named.keys.push_back(std::string(entry.name).append(suffix));
      }
    }
  }
  return groups;
}

std::vector<std::string> IconKeys() {
  std::vector<std::string> keys;
  for (IconGroup& group : IconGroups()) std::ranges::move(group.keys, std::back_inserter(keys));
  return keys;
}

}  // namespace quorvel::widgets
