// The tree of user imports: names, the processes that ran under each, and their runs.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "datasource/UsersImport.h"
#include "platform/Platform.h"
#include "widgets/TreeView.h"

namespace quorvel::tree {

// Appends names and their processes for the rows of GetUsersImports of the import `importId` to `tree`, one pass, in
// their order; nothing for an import of 0 or less. A name and, below it, a process come up once, wherever the rows
// return to them. Processes get a placeholder for their runs. Error 9 when a column lacks rows.
void AppendImportNodes(const datasource::UsersImportRecords& rows, std::int32_t count, std::int32_t importId,
                       widgets::TreeView& tree);

// What the node of a process of an import, or of a run of it, stands for, as the query wants it.
struct ImportPart {
  std::int32_t import = 0;
  std::string name;
  std::int32_t process = 0;
  std::int32_t run = -1;  // -1 = all runs
};

// Reads the key of such a node. Errors 13 and 6 for fields that are no numbers.
ImportPart ReadImportKey(std::string_view key);

// Appends a node for each run in the rows of GetUsersImportByProcess under `process`; rows of a run follow one another.
// `platform` formats the dates. Error 9 as above.
void AppendImportRuns(const datasource::UsersImportRecords& rows, std::int32_t count, const Platform& platform,
                      widgets::NodeId process, widgets::TreeView& tree);

}  // namespace quorvel::tree
