#include "list/ImportList.h"

#include "list/Classification.h"
#include "util/KeyNames.h"

namespace quorvel::list {
namespace {

class ImportRows : public RecordRows<datasource::UsersImportRecords> {
 public:
  using RecordRows::RecordRows;

  // The name tells the users of a run apart, in whatever order they come the next time.
  void AppendKey(std::size_t row, std::string& out) const override {
    AppendIdKey(records().lngImportLogId[row], out);
    out.append(util::kKeySeparator).append(util::FieldOfName(records().strUserName[row]));
  }

  CellValue CellOf(std::size_t row, std::size_t column) const override {
    switch (column) {
      case 0:
        return records().strUserName[row];
      case 1:
        return records().lngBatchNumber[row];
      case 2:
        return records().dtDate[row];
      case 3:
        return IsNobody(row) ? CellValue(std::string_view()) : ResultCaption(false, IsOk(row), !IsOk(row));
      default:
        return records().strReport[row];
    }
  }

  std::string_view Icon(std::size_t row) const override {
    if (IsNobody(row)) return "User_NoExecute";
    return IsOk(row) ? "User_Ok" : "User_NoOk";
  }
  widgets::RowLook Look(std::size_t row) const override { return ErrorLook(!IsOk(row)); }

 private:
  // The row of a run that imported nobody: it names no user, and nothing failed.
  bool IsNobody(std::size_t row) const { return records().strUserName[row].empty() && IsOk(row); }
  // Whatever is not recorded as done failed.
  bool IsOk(std::size_t row) const { return records().bResultOk[row] == datasource::kTrue; }
};

}  // namespace

Headers ImportListHeaders() {
  return {TextHeader("Imported user", kNameWidth), NumberHeader("Batch"), DateHeader("Date"), TextHeader("Status"),
          TextHeader("Report", kReportWidth)};
}

Rows ImportListRows(const datasource::UsersImportRecords& records, std::int32_t count, std::string_view nodeKey,
                    const Platform& platform) {
  return MakeRows<ImportRows>("GetUsersImportByProcess", records, count, nodeKey, platform);
}

}  // namespace quorvel::list
