// The list of the scheduler's own log, which stands without a tree.
#pragma once

#include <cstdint>
#include <string_view>

#include "datasource/TaskSchedulerLog.h"
#include "list/ListParts.h"

namespace quorvel::list {

// The column of the file that belongs to an entry.
inline constexpr std::string_view kAttachmentCaption = "Attachment";
// Stands in the place of an attachment whose file is gone.
inline constexpr std::string_view kNonexistentFile = "Nonexistent file";

Headers SystemListHeaders();

// A row for each row of GetTaskSchedulerLogs; its key is "HSYS|" and the row's identifier. Whether an attachment is
// still there is looked up when its cell is asked for, once for each file and list: the files of a million rows are no
// reason to wait for the first screen. Error 9 when a column lacks rows.
Rows SystemListRows(const datasource::TaskSchedulerLogRecords& records, std::int32_t count, const Platform& platform);

}  // namespace quorvel::list
