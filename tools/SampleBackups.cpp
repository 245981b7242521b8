#include "tools/SampleBackups.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "tools/SampleNames.h"
#include "tools/SampleParts.h"
#include "tools/SampleRandom.h"
#include "tools/SampleRare.h"

namespace quorvel::tools {
namespace {

using datasource::Flag;
using datasource::kFalse;
using datasource::kTrue;

constexpr std::uint64_t kBackupsStream = 4;
constexpr std::int64_t kDaysPerStationBackup = 7;
constexpr std::int64_t kMostStationBackups = 5000;
constexpr std::int64_t kMostFiles = 100000;  // where nothing else is asked for
constexpr std::int64_t kFilesPerBackup = 9;
constexpr std::int64_t kFailedPerMille = 40;
constexpr Second kServerBackupTime = 2 * kHour + 30 * kMinute;
constexpr Second kMostJitter = 20 * kMinute;
constexpr Second kMostFileSeconds = 20;
constexpr std::int64_t kMostFileKb = 20000;
constexpr std::int64_t kMostBackupKb = 2'000'000'000;

struct SavedFile {
  std::string_view folder;
  std::string_view name;
};
constexpr SavedFile kServerFiles[] = {
    {"D:\\base", "sales.mdf"},     {"D:\\base", "sales.ldf"},   {"D:\\base", "articles.mdf"},
    {"D:\\config", "routers.ini"}, {"D:\\config", "lines.ini"}, {"D:\\out\\prices", "prices.dat"},
    {"D:\\out", "étiquettes.dat"},
};
constexpr SavedFile kTillFiles[] = {
    {"C:\\till\\data", "till.db"},   {"C:\\till\\data", "journal.zip"}, {"C:\\till\\cfg", "till.ini"},
    {"C:\\till\\cfg", "layout.xml"}, {"C:\\till\\log", "till.log"},
};
constexpr SavedFile kScaleFiles[] = {
    {"/var/lib/scales", "labels.db"},
    {"/var/lib/scales", "prices.db"},
    {"/etc/scales", "scales.conf"},
    {"/var/log", "scales.log"},
};
// Full paths as some programs give them, without a path, and names that are hard to show.
constexpr SavedFile kOddFiles[] = {
    {R"(C:\till\data\till.db)", "till.db"},
    {"", "no folder.txt"},
    {"C:\\été | hiver", "Prix | été.dat"},
    {"C:\\a\tb", "tab\there.txt"},
    {"C:\\in", "line 1\r\nline 2"},
    {"C:\\in", ""},
    {"C:\\値札", "値札.dat"},
};

struct BackupKind {
  std::string_view name;
  std::int64_t weight;
  std::span<const SavedFile> files;
};
constexpr BackupKind kServerFull = {"Head office, full", 1, kServerFiles};
constexpr BackupKind kServerChanges = {"Head office, changes", 1, kServerFiles};
constexpr BackupKind kStationKinds[] = {
    {"Till base", 60, kTillFiles}, {"Before rollout 7.2", 15, kTillFiles}, {"Scales", 25, kScaleFiles}};

// Backups as no writer of today leaves them.
struct RareBackup {
  std::string_view name;
  bool withoutDate = false;
  std::optional<Flag> ok{};
};
constexpr RareBackup kRareBackups[] = {{"Sauvegarde « été » | caisse n° 7"},
                                       {"Tab\there"},
                                       {"Line 1\r\nLine 2"},
                                       {kLongLabel},
                                       {""},
                                       {"値札 の保存"},
                                       {"Without a date", true},
                                       {"OK of value 1", false, Flag{1}},
                                       {"Stopped by hand", false, kFalse}};

struct PlannedBackup {
  Second at = 0;
  std::int32_t station = kNoStation;  // index
};

class BackupTeller {
 public:
  BackupTeller(const SamplePlan& plan, SampleRandom& random, HistoryWriter& writer)
      : plan_(plan), random_(random), writer_(writer) {}

  void Tell(const PlannedBackup& backup, std::int64_t fileCount, std::optional<std::size_t> rare) {
    const BackupKind& kind = KindOf(backup);
    const bool fails = rare ? kRareBackups[*rare].ok == kFalse : random_.PerMille(kFailedPerMille);
    TellFiles(rare ? std::span<const SavedFile>(kOddFiles) : kind.files, backup.at, fileCount, fails);
    BackupRow row{.stationId = backup.station + 1, .name = kind.name, .saved = DateAt(backup.at)};
    for (const BackupFileRow& file : files_) row.sizeKb += file.sizeKb;
    const auto isSaved = [](const BackupFileRow& file) { return file.ok == kTrue; };
    row.ok = std::ranges::all_of(files_, isSaved) ? kTrue : kFalse;
    if (rare) MakeRare(kRareBackups[*rare], row);
    const std::int32_t id = writer_.Add(row);
    for (const BackupFileRow& file : files_) writer_.Add(id, file);
  }

 private:
  const BackupKind& KindOf(const PlannedBackup& backup) {
    if (backup.station != kNoStation) return AnyByWeight(kStationKinds, &BackupKind::weight, random_);
    constexpr Second kSunday = 1;  // days are counted from a Saturday
    return backup.at / kDay % 7 == kSunday ? kServerFull : kServerChanges;
  }

  void TellFiles(std::span<const SavedFile> kinds, Second start, std::int64_t count, bool fails) {
    files_.clear();
    names_.clear();
    names_.reserve(static_cast<std::size_t>(count));
    const std::int64_t failing = fails ? random_.Below(count) : -1;
    const std::int64_t most = count == 0 ? 0 : std::min(kMostFileKb, kMostBackupKb / count);
    Second at = start;
    for (std::int64_t i = 0; i < count; ++i) {
      const SavedFile& kind = kinds[static_cast<std::size_t>(i % std::ssize(kinds))];
      at = std::min(plan_.now, at + random_.Below(kMostFileSeconds));
      const bool saved = i != failing;
      files_.push_back({.name = Name(kind, i / std::ssize(kinds)),
                        .path = kind.folder,
                        .saved = DateAt(at),
                        .sizeKb = saved ? 1 + static_cast<std::int32_t>(random_.Below(most)) : 0,
                        .ok = saved ? kTrue : kFalse});
    }
  }

  // Once each file of its kind is there, older versions follow.
  std::string_view Name(const SavedFile& kind, std::int64_t version) {
    if (version == 0) return kind.name;
    return names_.emplace_back(std::string(kind.name) + "." + std::to_string(version));
  }

  static void MakeRare(const RareBackup& rare, BackupRow& row) {
    row.name = rare.name;
    if (rare.withoutDate) row.saved = 0;
    row.ok = rare.ok.value_or(row.ok);
  }

  const SamplePlan& plan_;
  SampleRandom& random_;
  HistoryWriter& writer_;
  std::vector<BackupFileRow> files_;
  std::vector<std::string> names_;  // what the rows of files point into; never grows beyond what was reserved
};

std::int64_t BackupCount(const SampleOptions& options) {
  const std::int64_t stations = std::int64_t{options.stations} * options.days / kDaysPerStationBackup;
  return options.saves ? *options.saves : options.days + std::min(kMostStationBackups, stations);
}

std::vector<PlannedBackup> PlanBackups(const SampleOptions& options, const SamplePlan& plan, SampleRandom& random) {
  std::vector<PlannedBackup> backups(static_cast<std::size_t>(BackupCount(options)));
  const Second today = plan.now - plan.now % kDay;
  const Second first = plan.now - options.days * kDay;
  for (std::int64_t i = 0; i < std::ssize(backups); ++i) {
    PlannedBackup& backup = backups[static_cast<std::size_t>(i)];
    if (i < options.days || plan.stations.empty()) {
      backup.at = today - i % options.days * kDay + kServerBackupTime + random.Below(kMostJitter);
      if (backup.at > plan.now) backup.at = std::max(first, backup.at - kDay);
    } else {
      backup.station = static_cast<std::int32_t>((i - options.days) % std::ssize(plan.stations));
      backup.at = AnyTime(options, plan.now, random);
    }
  }
  std::ranges::stable_sort(backups, {}, &PlannedBackup::at);
  return backups;
}

}  // namespace

void WriteSampleBackups(const SampleOptions& options, const SamplePlan& plan, HistoryWriter& writer) {
  SampleRandom random(options.seed, kBackupsStream);
  const std::vector<PlannedBackup> backups = PlanBackups(options, plan, random);
  const std::int64_t count = std::ssize(backups);
  const std::int64_t files = options.saveFiles.value_or(std::min(count * kFilesPerBackup, std::max(count, kMostFiles)));
  const RareCases rare(plan.rareCases, count, std::ssize(kRareBackups));
  BackupTeller teller(plan, random, writer);
  for (std::int64_t i = 0; i < count; ++i) {
    const std::int64_t share = files * (i + 1) / count - files * i / count;
    teller.Tell(backups[static_cast<std::size_t>(i)], share, rare.At(i));
  }
}

}  // namespace quorvel::tools
