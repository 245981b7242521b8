#include "list/BackupFileList.h"

#include <numeric>
#include <vector>

#include "list/Classification.h"
#include "util/KeyPrefixes.h"

namespace quorvel::list {
namespace {

using datasource::SavesRecords;

class FileRows : public RecordRows<SavesRecords> {
 public:
  // `files`: the rows of `records` that are shown.
  FileRows(const SavesRecords& records, std::vector<std::uint32_t> files, std::string nodeKey, const Platform& platform)
      : RecordRows(records, static_cast<std::int32_t>(files.size()), std::move(nodeKey), platform),
        files_(std::move(files)) {}

  void AppendKey(std::size_t row, std::string& out) const override {
    AppendIdKey(static_cast<std::int32_t>(files_[row]) + 1, out);
  }

  CellValue CellOf(std::size_t row, std::size_t column) const override {
    const std::size_t file = files_[row];
    switch (column) {
      case 0:
        return records().strName[file];
      case 1:
        return records().lngSizeKb[file];
      case 2:
        return records().dtDate[file];
      case 3:
        return records().strPath[file];
      default:
        return IsFailedSave(records(), file) ? kUserNotOkCaption : kUserOkCaption;
    }
  }

  std::string_view Icon(std::size_t /*row*/) const override { return FileIcon(nodeKey()); }
  widgets::RowLook Look(std::size_t row) const override { return ErrorLook(IsFailedSave(records(), files_[row])); }

 private:
  std::vector<std::uint32_t> files_;
};

std::vector<std::uint32_t> FilesIn(const SavesRecords& records, std::size_t count,
                                   std::optional<std::string_view> folder) {
  std::vector<std::uint32_t> files(count);
  std::iota(files.begin(), files.end(), 0U);
  if (folder) std::erase_if(files, [&](std::uint32_t row) { return records.strPath[row] != *folder; });
  return files;
}

}  // namespace

std::string_view FileIcon(std::string_view key) {
  const bool ofStation = util::Identifiant(key, 1) == util::kStationBackupPrefix;
  return ofStation ? "FileManagementStation" : "FileManagementServer";
}

Headers BackupFileListHeaders() {
  constexpr widgets::Twips kFileWidth = 3600;
  return {TextHeader("File", kFileWidth), NumberHeader("Size (KB)", kWideNumber), DateHeader("Date"),
          TextHeader("Path", kReportWidth), TextHeader("Result")};
}

Rows BackupFileListRows(const SavesRecords& records, std::int32_t count, std::optional<std::string_view> folder,
                        std::string_view nodeKey, const Platform& platform) {
  if (count < 1) return nullptr;
  const auto rowCount = static_cast<std::size_t>(count);
  datasource::RequireColumns("GetSaveFiles", records, rowCount);
  return std::make_shared<WholeRows<FileRows>>(records, FilesIn(records, rowCount, folder), std::string(nodeKey),
                                               platform);
}

}  // namespace quorvel::list
