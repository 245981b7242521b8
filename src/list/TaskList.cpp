#include "list/TaskList.h"

#include "list/Classification.h"

namespace quorvel::list {
namespace {

using datasource::TaskRunRecords;

class TaskRows : public RecordRows<TaskRunRecords> {
 public:
  TaskRows(const TaskRunRecords& records, std::int32_t count, std::string nodeKey, const Platform& platform,
           bool serverMode)
      : RecordRows(records, count, std::move(nodeKey), platform), serverMode_(serverMode) {}

  void AppendKey(std::size_t row, std::string& out) const override { AppendIdKey(records().lngTaskId[row], out); }

  CellValue CellOf(std::size_t row, std::size_t column) const override {
    switch (column) {
      case 0:
        return records().strTaskName[row];
      case 1:
        return util::strGetTypeTaskName(records().strTaskType[row]);
      case 2:
        return records().strReport[row];
      case 3:
        return records().dtStartDate[row];
      case 4:
        return records().dtEndDate[row];
      default:
        return Caption(row);
    }
  }

  std::string_view Icon(std::size_t row) const override {
    return GetLogIconeTask(records().strTaskType[row], records().bNotExecuted[row], records().lngStationScope[row],
                           records().bWaiting[row], serverMode_);
  }

  widgets::RowLook Look(std::size_t row) const override { return ErrorLook(Caption(row) == kUserNotOkCaption); }

 private:
  std::string_view Caption(std::size_t row) const {
    return ResultCaption(records().bInProgress[row] != 0, records().bResultOk[row] != 0,
                         records().bResultNotOk[row] != 0);
  }

  bool serverMode_;
};

}  // namespace

Headers TaskListHeaders() {
  return {TextHeader("Task"),  TextHeader("Type"), TextHeader("Report", kReportWidth),
          DateHeader("Start"), DateHeader("End"),  TextHeader("Status")};
}

Rows TaskListRows(const TaskRunRecords& records, std::int32_t count, std::string_view nodeKey, const Platform& platform,
                  bool serverMode) {
  return MakeRows<TaskRows>("GetTaskRunsByProcessLog", records, count, nodeKey, platform, serverMode);
}

}  // namespace quorvel::list
