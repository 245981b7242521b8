#include "list/CommandList.h"

#include <algorithm>
#include <iterator>

#include "list/Classification.h"

namespace quorvel::list {
namespace {

using datasource::CommandLogRecords;

constexpr Classified kCommandOutcomes[] = {
    {"CommandStart", kInProgressCaption},
    {"CommandOk", kUserOkCaption},
    {"CommandNONOK", kUserNotOkCaption},
    {"Command", ""},
};

bool IsFileTransfer(std::int32_t kind) {
  return kind >= 88 && kind <= 90;
}

const Classified& ClassifyCommand(const CommandLogRecords& rows, std::size_t row) {
  const bool inProgress = rows.bInProgress[row] != 0;
  bool ok = rows.bResultOk[row] != 0;
  bool notOk = rows.bResultNotOk[row] != 0;
  if (IsFileTransfer(rows.lngKind[row])) {
    notOk = IsFilesTransferLogError(rows.lngKind[row], rows.lngResult[row]);
    ok = !notOk;
  }
  return *std::ranges::find(kCommandOutcomes, ResultCaption(inProgress, ok, notOk), &Classified::caption);
}

class CommandRows final : public RecordRows<CommandLogRecords> {
 public:
  using RecordRows::RecordRows;

  void AppendKey(std::size_t row, std::string& out) const override { AppendIdKey(records().lngCommandLogId[row], out); }

  CellValue CellOf(std::size_t row, std::size_t column) const override {
    switch (column) {
      case 0:
        return records().strText[row];
      case 1:
        return records().lngKind[row];
      case 2:
        return records().lngResult[row];
      case 3:
        return records().strReport[row];
      case 4:
        return records().dtStartDate[row];
      case 5:
        return records().dtEndDate[row];
      default:
        return ClassifyCommand(records(), row).caption;
    }
  }

  std::string_view Icon(std::size_t row) const override { return ClassifyCommand(records(), row).icon; }

  widgets::RowLook Look(std::size_t row) const override {
    return ErrorLook(ClassifyCommand(records(), row).caption == kUserNotOkCaption);
  }
};

}  // namespace

Headers CommandListHeaders() {
  constexpr widgets::Twips kCommandWidth = 3600;
  return {TextHeader("Command", kCommandWidth),
          NumberHeader("Kind"),
          NumberHeader("Result"),
          TextHeader("Report", kReportWidth),
          DateHeader("Start"),
          DateHeader("End"),
          TextHeader("Status")};
}

Rows CommandListRows(const CommandLogRecords& records, std::int32_t count, std::string_view nodeKey,
                     const Platform& platform) {
  return MakeRows<CommandRows>("GetCommandLogByStepLog", records, count, nodeKey, platform);
}

}  // namespace quorvel::list
