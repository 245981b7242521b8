#include "list/StepList.h"

#include "list/Classification.h"

namespace quorvel::list {
namespace {

using datasource::kTrue;
using datasource::StepLogRecords;

class StepRows : public RecordRows<StepLogRecords> {
 public:
  using RecordRows::RecordRows;

  void AppendKey(std::size_t row, std::string& out) const override {
    out.append(std::to_string(records().lngStepLogId[row])).append(util::kKeySeparator);
    AppendIdKey(TaskRunOfSteps(records()), out);
  }

  CellValue CellOf(std::size_t row, std::size_t column) const override {
    switch (column) {
      case 0:
        return records().strStepName[row];
      case 1:
        return records().strSettings[row];
      case 2:
        return records().strReport[row];
      case 3:
        return util::strGetExecuteWhereName(records().strExecuteWhere[row]);
      case 4:
        return records().dtStartDate[row];
      case 5:
        return records().dtEndDate[row];
      default:
        return ResultCaption(records().bInProgress[row] == kTrue, records().bResultOk[row] == kTrue,
                             records().bResultNotOk[row] == kTrue);
    }
  }

  std::string_view Icon(std::size_t row) const override {
    return GetLogIconeStep(records().lngStepKind[row], records().lngStationScope[row]);
  }

  // A step that is NOT OK stands out whatever its caption says: one in progress, or OK as well, has failed all the
  // same.
  widgets::RowLook Look(std::size_t row) const override { return ErrorLook(records().bResultNotOk[row] == kTrue); }
};

}  // namespace

Headers StepListHeaders() {
  return {TextHeader("Step"),
          TextHeader("Settings"),
          TextHeader("Report", kReportWidth),
          TextHeader("Execution location"),
          DateHeader("Start"),
          DateHeader("End"),
          TextHeader("Status")};
}

std::int32_t TaskRunOfSteps(const StepLogRecords& records) {
  return records.lngTaskRunId[0];
}

Rows StepListRows(const StepLogRecords& records, std::int32_t count, std::string_view nodeKey,
                  const Platform& platform) {
  return MakeRows<StepRows>("GetStepLogByTaskRun", records, count, nodeKey, platform);
}

}  // namespace quorvel::list
