// The tree of backups: where they were made, year, month, day, name, the backups themselves, and their folders.
//
// The number of fields of a key tells the level. Each is loaded from the rows of one query, but names and backups,
// which come together:
//
//   3  the server, or a station       GetSaves, all of the server or of stations
//   4, 5, 6  year, month, day         GetSaves, those of the node above
//   7, 10  name, backup               GetSaves, those of the day
//   11  folder                        GetSaveFiles of the backup
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "datasource/Saves.h"
#include "platform/Platform.h"
#include "util/KeyDates.h"
#include "widgets/TreeView.h"

namespace quorvel::tree {

// Which backups a tree shows. GetSaves does not filter by outcome.
enum class BackupsShown { kAll, kOk, kFailed, kNone };

// Where backups were made, with the values of GetSaves.
enum class BackupPlace : std::int32_t { kServer = 0, kStations = 1 };

// Backups without a date are in no tree. Nodes below tell how many backups they stand for, and stand out when one of
// them failed; one without any that is shown is not there. All but the names and folders get a placeholder. Error 9
// when a column lacks rows.

// Appends the server, or a root for each station.
void AppendBackupRoots(const datasource::SavesRecords& rows, std::int32_t count, BackupPlace place, BackupsShown shown,
                       widgets::TreeView& tree);

// Appends the years of a root, the months of a year or the days of a month. `platform` formats the days.
void AppendBackupPeriods(const datasource::SavesRecords& rows, std::int32_t count, BackupsShown shown,
                         const Platform& platform, widgets::NodeId node, widgets::TreeView& tree);

// Appends the names under a day, in the order of names, and under each its backups in the order of the rows.
void AppendBackupsOfDay(const datasource::SavesRecords& rows, std::int32_t count, BackupsShown shown,
                        widgets::NodeId day, widgets::TreeView& tree);

// Appends the folders of a backup, in the order of their paths, with the number of their files. Files without a folder
// have no node.
void AppendBackupFolders(const datasource::SavesRecords& rows, std::int32_t count, widgets::NodeId backup,
                         widgets::TreeView& tree);

// What GetSaves is asked for the node of a root, year, month or day.
struct BackupsOfNode {
  std::int32_t onStation = 0;
  std::int32_t user = 0;
  util::Period period;
};

// Reads the key of such a node; its period is cut to `filter`, the one that the tree was built for. Errors 13 and 6 for
// fields that are no numbers or dates.
BackupsOfNode ReadBackupKey(std::string_view key, const util::Period& filter);

// The backup that the key of a backup, or of its folder, stands for. Errors 13 and 6 as above.
std::int32_t SaveOfKey(std::string_view key);

// The folder that a key stands for; nothing for the key of the whole backup.
std::optional<std::string> FolderOfKey(std::string_view key);

// What the children of a node are, as the caption of their list; "" below the names. Lives forever.
std::string_view CaptionOfSubNodes(std::string_view key);

}  // namespace quorvel::tree
