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

// Which commands are judged by their result code; the others are by their flags.
enum class JudgedByResult { kTransfers, kAll };

bool IsFileTransfer(std::int32_t kind) {
  return kind >= 88 && kind <= 90;
}

const Classified& ClassifyCommand(const CommandLogRecords& rows, std::size_t row, JudgedByResult which) {
  const bool inProgress = rows.bInProgress[row] != 0;
  bool ok = rows.bResultOk[row] != 0;
  bool notOk = rows.bResultNotOk[row] != 0;
  if (which == JudgedByResult::kAll || IsFileTransfer(rows.lngKind[row])) {
    notOk = IsFilesTransferLogError(rows.lngKind[row], rows.lngResult[row]);
    ok = !notOk;
  }
  return *std::ranges::find(kCommandOutcomes, ResultCaption(inProgress, ok, notOk), &Classified::caption);
}

class CommandRows : public RecordRows<CommandLogRecords> {
 public:
  CommandRows(const CommandLogRecords& records, std::int32_t count, std::string nodeKey, const Platform& platform,
              JudgedByResult judged)
      : RecordRows(records, count, std::move(nodeKey), platform), judged_(judged) {}

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
        return Classify(row).caption;
    }
  }

  std::string_view Icon(std::size_t row) const override { return Classify(row).icon; }

  widgets::RowLook Look(std::size_t row) const override {
    return ErrorLook(Classify(row).caption == kUserNotOkCaption);
  }

 private:
  const Classified& Classify(std::size_t row) const { return ClassifyCommand(records(), row, judged_); }

  JudgedByResult judged_;
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
  return MakeRows<CommandRows>("GetCommandLogByStepLog", records, count, nodeKey, platform, JudgedByResult::kTransfers);
}

// The same columns on either way to a command; the first caption alone tells the lists apart.
Headers ConnectionCommandListHeaders() {
  Headers headers = CommandListHeaders();
  headers.front().caption = "Connection command";
  return headers;
}

Rows ConnectionCommandListRows(const CommandLogRecords& records, std::int32_t count, std::string_view nodeKey,
                               const Platform& platform) {
  return MakeRows<CommandRows>("GetCommandLogByCommunication", records, count, nodeKey, platform, JudgedByResult::kAll);
}

}  // namespace quorvel::list
