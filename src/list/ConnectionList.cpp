#include "list/ConnectionList.h"

#include <algorithm>

#include "list/ConnectionRecord.h"
#include "list/RunList.h"
#include "util/KeyDates.h"

namespace quorvel::list {
namespace {

using datasource::CommandLogRecords;
using datasource::kTrue;

constexpr Classified kConnectionOutcomes[] = {
    {"User_Inprogress", kInProgressCaption},
    {"User_Ok", kUserOkCaption},
    {"User_NoOk", kUserNotOkCaption},
    {"User_Undefined", kUnknownCaption},
};

class ConnectionRows : public RecordRows<CommandLogRecords> {
 public:
  ConnectionRows(const CommandLogRecords& records, std::int32_t count, std::string nodeKey, const Platform& platform,
                 DateValue now)
      : RecordRows(records, count, std::move(nodeKey), platform), now_(now) {}

  void AppendKey(std::size_t row, std::string& out) const override {
    AppendDayKey(records().dtCommunicationDate[row], nodeKey(), out);
    AppendConnectionKey(records(), row, {}, out);
  }

  CellValue CellOf(std::size_t row, std::size_t column) const override {
    switch (column) {
      case 0:
        return records().dtCommunicationDate[row];
      case 1:
        return NamedStation(records().strUserName[row]);
      case 2:
        return DirectionName(records(), row);
      case 3:
        return records().dtCommunicationEnd[row];
      case 4:
        return DurationText(records().dtCommunicationDate[row], records().dtCommunicationEnd[row],
                            records().bInProgress[row] != 0, now_);
      case 5:
        return records().lngSizeKb[row];
      case 6:
        return ClassifyConnection(records(), row).caption;
      default:
        return records().strReport[row];
    }
  }

  std::string_view Icon(std::size_t row) const override { return ClassifyConnection(records(), row).icon; }
  widgets::RowLook Look(std::size_t row) const override {
    return ErrorLook(ClassifyConnection(records(), row).caption == kUserNotOkCaption);
  }

 private:
  DateValue now_;
};

}  // namespace

Classified ClassifyConnection(const CommandLogRecords& rows, std::size_t row) {
  const std::string_view caption =
      ResultCaption(rows.bInProgress[row] != 0, rows.bResultOk[row] == kTrue, rows.bResultNotOk[row] == kTrue);
  return *std::ranges::find(kConnectionOutcomes, caption.empty() ? kUnknownCaption : caption, &Classified::caption);
}

std::string_view DirectionName(const CommandLogRecords& rows, std::size_t row) {
  return rows.bFromStation[row] != 0 ? "From station" : "To station";
}

void AppendDayKey(DateValue date, std::string_view parentKey, std::string& out) {
  constexpr std::ptrdiff_t kSeparatorsOfDay = 2;
  out.append(parentKey);
  if (std::ranges::count(parentKey, util::kKeySeparator.front()) >= kSeparatorsOfDay) return;
  out.append(util::kKeySeparator).append(util::FieldOfDate(date, util::DateField::kDay));
}

void AppendConnectionKey(const CommandLogRecords& rows, std::size_t row, std::string_view dayKey, std::string& out) {
  out.append(dayKey).append(util::kKeySeparator).append(std::to_string(rows.lngCommunicationId[row]));
}

// A connection is known by when it was, as the tree shows it, so that comes first.
Headers ConnectionListHeaders() {
  return {DateWithIconHeader("Start"),
          TextHeader("Station", kNameWidth),
          TextHeader("Direction"),
          DateHeader("End"),
          DurationHeader(),
          NumberHeader("Size (KB)", kWideNumber),
          TextHeader("Status"),
          TextHeader("Report", kReportWidth)};
}

Rows ConnectionListRows(const CommandLogRecords& records, std::int32_t count, std::string_view nodeKey,
                        const Platform& platform, DateValue now) {
  return MakeRows<ConnectionRows>("GetCommunications", records, count, nodeKey, platform, now);
}

}  // namespace quorvel::list
