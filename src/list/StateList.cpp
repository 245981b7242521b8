#include "list/StateList.h"

#include "list/StationRecord.h"

namespace quorvel::list {
namespace {

class StateRows : public RecordRows<datasource::ProcessLogRecords> {
 public:
  using RecordRows::RecordRows;

  void AppendKey(std::size_t row, std::string& out) const override { AppendIdKey(records().lngUserId[row], out); }

  CellValue CellOf(std::size_t row, std::size_t column) const override {
    switch (column) {
      case 0:
        return StationName(records(), row);
      case 1:
        return records().strIdentifier[row];
      case 2:
        return records().strCompany[row];
      case 3:
        return records().strReport[row];
      case 4:
        return records().dtStartDate[row];
      case 5:
        return records().dtEndDate[row];
      default:
        return ClassifyStation(records(), row).caption;
    }
  }

  std::string_view Icon(std::size_t row) const override { return ClassifyStation(records(), row).icon; }

  widgets::RowLook Look(std::size_t row) const override {
    return ErrorLook(ClassifyStation(records(), row).caption == kUserNotOkCaption);
  }
};

}  // namespace

Headers StateListHeaders() {
  return {TextHeader("Name"),  TextHeader("Identifier"), TextHeader("Company"), TextHeader("Report", kReportWidth),
          DateHeader("Start"), DateHeader("End"),        TextHeader("Status")};
}

Rows StateListRows(const datasource::ProcessLogRecords& records, std::int32_t count, std::string_view nodeKey,
                   const Platform& platform) {
  return MakeRows<StateRows>("GetProcessLogByTask", records, count, nodeKey, platform);
}

}  // namespace quorvel::list
