#include "tree/ImportTree.h"

#include <unordered_map>
#include <unordered_set>

#include "datasource/Contract.h"
#include "tree/NodeKey.h"
#include "tree/RunNode.h"

namespace quorvel::tree {
namespace {

using datasource::UsersImportRecords;
using widgets::NodeId;

// Walks the rows and keeps which names and which of their processes are there. Rows mostly come grouped, so hardly any
// name is looked up, but those that do not must not cost a search through all names.
class ImportTreeBuilder {
 public:
  ImportTreeBuilder(const UsersImportRecords& rows, std::int32_t importId, widgets::TreeView& tree)
      : rows_(rows), importKey_(MakeKey(util::kImportPrefix, importId)), tree_(tree) {}

  void Build(std::size_t count) {
    for (std::size_t row = 0; row < count; ++row) {
      const bool otherName = row == 0 || rows_.strName[row] != rows_.strName[row - 1];
      if (otherName) GoToName(rows_.strName[row]);
      const bool otherProcess = otherName || rows_.lngProcessId[row] != rows_.lngProcessId[row - 1];
      if (otherProcess && processes_.insert(ProcessOfName(rows_.lngProcessId[row])).second) AddProcess(row);
    }
  }

 private:
  void GoToName(std::string_view text) {
    const auto [found, isNew] = names_.try_emplace(text, NodeId::kNone);
    nameKey_ = MakeKey(importKey_, FieldOfName(text));
    if (isNew) found->second = tree_.Add(NodeId::kNone, nameKey_, text, "UserImport");
    name_ = found->second;
  }

  void AddProcess(std::size_t row) {
    const std::int32_t process = rows_.lngProcessId[row];
    const std::string key = MakeKey(nameKey_, process);
    const NodeId node = process == 0
                            ? tree_.Add(name_, key, "Manual", "ImportManualServer")
                            : tree_.Add(name_, key, "Processes: " + std::string(rows_.strProcessName[row]), "Process");
    tree_.SetPlaceholder(node, true);
  }

  std::uint64_t ProcessOfName(std::int32_t process) const {
    constexpr int kBitsOfProcess = 32;
    return (static_cast<std::uint64_t>(name_) << kBitsOfProcess) | static_cast<std::uint32_t>(process);
  }

  const UsersImportRecords& rows_;
  std::string importKey_;
  widgets::TreeView& tree_;
  std::unordered_map<std::string_view, NodeId> names_;
  std::unordered_set<std::uint64_t> processes_;
  std::string nameKey_;
  NodeId name_ = NodeId::kNone;
};

}  // namespace

void AppendImportNodes(const UsersImportRecords& rows, std::int32_t count, std::int32_t importId,
                       widgets::TreeView& tree) {
  if (count <= 0 || importId <= 0) return;
  const auto rowCount = static_cast<std::size_t>(count);
  datasource::RequireColumns("GetUsersImports", rows, rowCount);
  tree.InBatch([&] { ImportTreeBuilder(rows, importId, tree).Build(rowCount); });
}

ImportPart ReadImportKey(std::string_view key) {
  constexpr std::int32_t kRunField = 5;
  ImportPart part{.import = util::IdentifiantNumber(key, 2),
                  .name = NameOfField(util::Identifiant(key, 3)),
                  .process = util::IdentifiantNumber(key, 4)};
  if (!util::Identifiant(key, kRunField).empty()) part.run = util::IdentifiantNumber(key, kRunField);
  return part;
}

void AppendImportRuns(const UsersImportRecords& rows, std::int32_t count, const Platform& platform, NodeId process,
                      widgets::TreeView& tree) {
  if (count <= 0) return;
  const auto rowCount = static_cast<std::size_t>(count);
  datasource::RequireColumns("GetUsersImportByProcess", rows, rowCount);
  const std::string processKey(tree.Key(process));
  tree.InBatch([&] {
    for (std::size_t row = 0; row < rowCount; ++row) {
      if (row > 0 && rows.lngImportLogId[row] == rows.lngImportLogId[row - 1]) continue;
      tree.Add(process, MakeKey(processKey, rows.lngImportLogId[row]),
               BatchText(platform, rows.dtDate[row], rows.lngBatchNumber[row]), "ProcessOk");
    }
  });
}

}  // namespace quorvel::tree
