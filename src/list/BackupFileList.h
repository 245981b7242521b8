// The list behind a backup, or behind one of its folders: the files in it.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "datasource/Saves.h"
#include "list/ListParts.h"

namespace quorvel::list {

// Whether a backup, or a file of one, failed: whatever is not recorded as done did.
inline bool IsFailedSave(const datasource::SavesRecords& rows, std::size_t row) {
  return rows.bResultOk[row] != datasource::kTrue;
}

// Icon of the files and folders of a backup by a key that begins as the backup's does; lives forever.
std::string_view FileIcon(std::string_view key);

Headers BackupFileListHeaders();

// A row for each row of GetSaveFiles, or for those whose path is `folder` alone; its key is the file's number among all
// rows, counted from 1, "|", `nodeKey`. Files have no identifier of their own. Error 9 when a column lacks rows.
Rows BackupFileListRows(const datasource::SavesRecords& records, std::int32_t count,
                        std::optional<std::string_view> folder, std::string_view nodeKey, const Platform& platform);

}  // namespace quorvel::list
