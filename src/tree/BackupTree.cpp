#include "tree/BackupTree.h"

#include <algorithm>
#include <array>
#include <compare>
#include <unordered_map>
#include <vector>

#include "datasource/Contract.h"
#include "list/BackupFileList.h"
#include "tree/CountedNode.h"
#include "tree/NodeKey.h"
#include "util/PublicOstrana.h"
#include "util/TextOrder.h"

namespace quorvel::tree {
namespace {

using datasource::SavesRecords;
using util::DateField;
using util::FieldOfDate;
using widgets::NodeId;

// Fields of a key, counted from 1.
constexpr std::int32_t kPlaceField = 2;
constexpr std::int32_t kUserField = 3;
constexpr std::int32_t kYearField = 4;
constexpr std::int32_t kDayField = 6;
constexpr std::int32_t kSaveField = 8;
constexpr std::size_t kFolderField = 11;

// What has no date belongs to no year.
bool IsShown(const SavesRecords& rows, std::size_t row, BackupsShown shown) {
  if (shown == BackupsShown::kNone || !util::HasField(rows.dtDate[row])) return false;
  return shown == BackupsShown::kAll || list::IsFailedSave(rows, row) == (shown == BackupsShown::kFailed);
}

Tally TallyOf(const SavesRecords& rows, std::size_t row) {
  return {1, list::IsFailedSave(rows, row) ? 1 : 0};
}

std::string_view BackupIcon(std::string_view key) {
  return util::Identifiant(key, 1) == kStationBackupPrefix ? "BackupStation" : "BackupServer";
}

// The icon tells where the backup was made, so a failure stands out by its weight.
NodeId AddNode(widgets::TreeView& tree, NodeId parent, std::string_view key, std::string_view text,
               std::string_view icon, bool failed) {
  const NodeId node = tree.Add(parent, key, text, icon);
  if (failed) tree.SetLook(node, widgets::SystemColour::kWindowText, true);
  return node;
}

NodeId AddCounted(widgets::TreeView& tree, NodeId parent, std::string_view key, std::string_view name,
                  const Tally& tally) {
  return AddNode(tree, parent, key, CountedText(name, tally), BackupIcon(key), tally.failed > 0);
}

// Calls add(first row, tally) for each stretch of rows that belong together, as far as any of them is shown. A row
// belongs to the stretch that row `first` begins when same(first, row).
template <class Same, class Add>
void ForEachStretch(const SavesRecords& rows, std::size_t count, BackupsShown shown, Same same, Add add) {
  for (std::size_t first = 0; first < count;) {
    Tally tally;
    std::size_t last = first;
    do {
      if (IsShown(rows, last, shown)) tally.Add(TallyOf(rows, last));
      ++last;
    } while (last < count && same(first, last));
    if (tally.count > 0) add(first, tally);
    first = last;
  }
}

// Rows that share a text, wherever they stand.
struct NamedRows {
  std::string_view name;
  Tally tally;
  std::vector<std::size_t> rows;
};

class RowsByName {
 public:
  void Add(std::string_view name, std::size_t row, const Tally& tally) {
    const auto [found, isNew] = places_.try_emplace(name, groups_.size());
    if (isNew) groups_.push_back({name, {}, {}});
    NamedRows& group = groups_[found->second];
    group.tally.Add(tally);
    group.rows.push_back(row);
  }

  std::vector<NamedRows> TakeInOrder() {
    std::ranges::sort(
        groups_, [](const NamedRows& a, const NamedRows& b) { return std::is_lt(util::CompareTexts(a.name, b.name)); });
    return std::move(groups_);
  }

 private:
  std::unordered_map<std::string_view, std::size_t> places_;
  std::vector<NamedRows> groups_;
};

// What the children of a root, a year and a month are.
DateField PeriodBelow(std::string_view key) {
  constexpr std::array kPeriods{DateField::kYear, DateField::kMonth, DateField::kDay};
  return kPeriods.at(util::SplitKey(key).size() - kUserField);
}

void AddBackup(const SavesRecords& rows, std::size_t row, NodeId name, widgets::TreeView& tree) {
  const bool failed = list::IsFailedSave(rows, row);
  const std::string time = util::TimeText(rows.dtDate[row]);
  const std::string key = MakeKey(tree.Key(name), rows.lngSaveId[row], time, failed ? "0" : "1");
  std::string text = time + " (" + std::to_string(rows.lngSizeKb[row]) + " KB)";
  if (failed) text.append(" : ").append(list::kNotOkCaption);
  tree.SetPlaceholder(AddNode(tree, name, key, text, BackupIcon(key), failed), true);
}

std::size_t RequireRows(std::string_view query, const SavesRecords& rows, std::int32_t count) {
  const auto rowCount = static_cast<std::size_t>(std::max(count, 0));
  if (rowCount > 0) datasource::RequireColumns(query, rows, rowCount);
  return rowCount;
}

}  // namespace

void AppendBackupRoots(const SavesRecords& rows, std::int32_t count, BackupPlace place, BackupsShown shown,
                       widgets::TreeView& tree) {
  const std::size_t rowCount = RequireRows("GetSaves", rows, count);
  const bool onServer = place == BackupPlace::kServer;
  const std::string above =
      MakeKey(onServer ? kServerBackupPrefix : kStationBackupPrefix, static_cast<std::int32_t>(place));
  const auto sameUser = [&](std::size_t first, std::size_t row) {
    return rows.lngUserId[first] == rows.lngUserId[row];
  };
  tree.InBatch([&] {
    ForEachStretch(rows, rowCount, shown, sameUser, [&](std::size_t first, const Tally& tally) {
      const std::string_view name = onServer ? "Server" : list::NamedStation(rows.strUserName[first]);
      const NodeId root = AddCounted(tree, NodeId::kNone, MakeKey(above, rows.lngUserId[first]), name, tally);
      tree.SetPlaceholder(root, true);
    });
  });
}

void AppendBackupPeriods(const SavesRecords& rows, std::int32_t count, BackupsShown shown, const Platform& platform,
                         NodeId node, widgets::TreeView& tree) {
  const std::size_t rowCount = RequireRows("GetSaves", rows, count);
  const std::string above(tree.Key(node));
  const DateField level = PeriodBelow(above);
  const auto samePeriod = [&](std::size_t first, std::size_t row) {
    return util::HaveSameField(rows.dtDate[first], rows.dtDate[row], level);
  };
  tree.InBatch([&] {
    ForEachStretch(rows, rowCount, shown, samePeriod, [&](std::size_t first, const Tally& tally) {
      constexpr std::int32_t kShortDate = 1;
      const std::string field = FieldOfDate(rows.dtDate[first], level);
      const std::string text =
          level == DateField::kDay ? util::strFormatDateTime(platform, rows.dtDate[first], kShortDate) : field;
      tree.SetPlaceholder(AddCounted(tree, node, MakeKey(above, field), text, tally), true);
    });
  });
}

void AppendBackupsOfDay(const SavesRecords& rows, std::int32_t count, BackupsShown shown, NodeId day,
                        widgets::TreeView& tree) {
  const std::size_t rowCount = RequireRows("GetSaves", rows, count);
  RowsByName names;
  for (std::size_t row = 0; row < rowCount; ++row) {
    if (IsShown(rows, row, shown)) names.Add(rows.strName[row], row, TallyOf(rows, row));
  }
  const std::string above(tree.Key(day));
  tree.InBatch([&] {
    for (const NamedRows& each : names.TakeInOrder()) {
      const NodeId name =
          AddCounted(tree, day, MakeKey(above, FieldOfName(each.name)), list::NamedOrNot(each.name), each.tally);
      for (const std::size_t row : each.rows) AddBackup(rows, row, name, tree);
    }
  });
}

void AppendBackupFolders(const SavesRecords& rows, std::int32_t count, NodeId backup, widgets::TreeView& tree) {
  const std::size_t rowCount = RequireRows("GetSaveFiles", rows, count);
  RowsByName folders;
  for (std::size_t row = 0; row < rowCount; ++row) {
    const std::string_view folder = rows.strPath[row];
    if (!folder.empty()) folders.Add(folder, row, TallyOf(rows, row));
  }
  const std::string above(tree.Key(backup));
  tree.InBatch([&] {
    for (const NamedRows& each : folders.TakeInOrder()) {
      AddNode(tree, backup, MakeKey(above, FieldOfName(each.name)), CountedText(each.name, each.tally),
              list::FileIcon(above), each.tally.failed > 0);
    }
  });
}

BackupsOfNode ReadBackupKey(std::string_view key, const util::Period& filter) {
  util::Period period = filter;
  for (std::int32_t field = kYearField; field <= kDayField; ++field) {
    const std::string_view named = util::Identifiant(key, field);
    if (!named.empty()) period = util::Common(period, util::PeriodOfField(named));
  }
  return {.onStation = util::IdentifiantNumber(key, kPlaceField),
          .user = util::IdentifiantNumber(key, kUserField),
          .period = period};
}

std::int32_t SaveOfKey(std::string_view key) {
  return util::IdentifiantNumber(key, kSaveField);
}

std::optional<std::string> FolderOfKey(std::string_view key) {
  const std::vector<std::string_view> fields = util::SplitKey(key);
  if (fields.size() < kFolderField) return std::nullopt;
  return NameOfField(fields[kFolderField - 1]);
}

std::string_view CaptionOfSubNodes(std::string_view key) {
  constexpr std::array<std::string_view, 5> kCaptions{"Years", "Months", "Days", "Backups", "Executions"};
  const std::size_t fields = util::SplitKey(key).size();
  const std::size_t level = fields - kUserField;
  return fields >= kUserField && level < kCaptions.size() ? kCaptions[level] : std::string_view();
}

}  // namespace quorvel::tree
