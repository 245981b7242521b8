#include "list/AlarmList.h"

#include <array>
#include <span>
#include <vector>

#include "util/KeyPrefixes.h"

namespace quorvel::list {
namespace {

using datasource::AlarmsLogRecords;

enum class Cell {
  kOwner,
  kText,
  kRaised,
  kSeverity,
  kSource,
  kProcess,
  kBatch,
  kState,
  kAcknowledgedBy,
  kAcknowledged
};

// All columns, the optional ones where they belong.
constexpr std::array kCells{Cell::kOwner,   Cell::kText,  Cell::kRaised, Cell::kSeverity,       Cell::kSource,
                            Cell::kProcess, Cell::kBatch, Cell::kState,  Cell::kAcknowledgedBy, Cell::kAcknowledged};

std::vector<Cell> CellsOf(AlarmLayout layout) {
  std::vector<Cell> cells;
  for (const Cell cell : kCells) {
    const bool ofProcess = cell == Cell::kProcess || cell == Cell::kBatch;
    if ((cell != Cell::kOwner || layout.owner) && (!ofProcess || layout.process)) cells.push_back(cell);
  }
  return cells;
}

widgets::ColumnHeader HeaderOf(Cell cell) {
  switch (cell) {
    case Cell::kOwner:
      return TextHeader("Owner", kNameWidth);
    case Cell::kText:
      return TextHeader("Alarm", kReportWidth);
    case Cell::kRaised:
      return DateHeader("Raised");
    case Cell::kSeverity:
      return NumberHeader("Severity");
    case Cell::kSource:
      return TextHeader("Source", kNameWidth);
    case Cell::kProcess:
      return TextHeader("Process", kNameWidth);
    case Cell::kBatch:
      return NumberHeader("Batch");
    case Cell::kState:
      return TextHeader(kAlarmStateCaption);
    case Cell::kAcknowledgedBy:
      return TextHeader("Acknowledged by", kNameWidth);
    case Cell::kAcknowledged:
      break;
  }
  return DateHeader("Acknowledged");
}

class AlarmRows : public RecordRows<AlarmsLogRecords> {
 public:
  // `rows`: those shown; empty = all `count` of them.
  AlarmRows(const AlarmsLogRecords& records, std::int32_t count, std::string nodeKey, const Platform& platform,
            AlarmLayout layout, std::vector<std::uint32_t> rows)
      : RecordRows(records, count, std::move(nodeKey), platform), cells_(CellsOf(layout)), rows_(std::move(rows)) {}

  void AppendKey(std::size_t row, std::string& out) const override {
    const std::size_t alarm = AlarmAt(row);
    AppendIdKey(records().lngAlarmId[alarm], out);
    if (records().lngProcessId[alarm] == 0) return;
    for (const std::int32_t field : {records().lngProcessId[alarm], records().bRunOnStation[alarm] != 0 ? 1 : 0,
                                     records().lngProcessLogId[alarm]}) {
      out.append(util::kKeySeparator).append(std::to_string(field));
    }
  }

  CellValue CellOf(std::size_t row, std::size_t column) const override {
    const std::size_t alarm = AlarmAt(row);
    switch (cells_[column]) {
      case Cell::kOwner:
        return AlarmOwner(records(), alarm);
      case Cell::kText:
        return records().strText[alarm];
      case Cell::kRaised:
        return records().dtDate[alarm];
      case Cell::kSeverity:
        return records().lngSeverity[alarm];
      case Cell::kSource:
        return records().strOrigin[alarm];
      case Cell::kProcess:
        return records().strProcessName[alarm];
      case Cell::kBatch:
        return BatchOf(alarm);
      case Cell::kState:
        return IsActiveAlarm(records(), alarm) ? kActiveAlarmText : kAcknowledgedAlarmText;
      case Cell::kAcknowledgedBy:
        return records().strAcknowledgedBy[alarm];
      case Cell::kAcknowledged:
        break;
    }
    return records().dtAcknowledged[alarm];
  }

  std::string_view Icon(std::size_t row) const override {
    const std::size_t alarm = AlarmAt(row);
    return GetLogIconeAlarm(records().lngAction[alarm], records().strOrigin[alarm], records().bAcknowledged[alarm]);
  }

  // The icon of an alarm that set something off says nothing of its state: the look does.
  widgets::RowLook Look(std::size_t row) const override { return ErrorLook(IsActiveAlarm(records(), AlarmAt(row))); }

 private:
  std::size_t AlarmAt(std::size_t row) const { return rows_.empty() ? row : rows_[row]; }

  CellValue BatchOf(std::size_t alarm) const {
    const std::int32_t run = records().lngProcessLogId[alarm];
    return run == 0 ? CellValue(std::string_view()) : CellValue(run);
  }

  std::vector<Cell> cells_;
  std::vector<std::uint32_t> rows_;
};

std::vector<std::uint32_t> RowsTaken(const AlarmsLogRecords& records, std::size_t count, const AlarmChoice& choice) {
  std::vector<std::uint32_t> rows;
  for (std::size_t row = 0; row < count; ++row) {
    if (choice.Takes(records, row)) rows.push_back(static_cast<std::uint32_t>(row));
  }
  return rows;
}

}  // namespace

// A list keeps its columns while the first caption stays, so layouts that follow each other must not share it.
Headers AlarmListHeaders(AlarmLayout layout) {
  Headers headers;
  for (const Cell cell : CellsOf(layout)) headers.push_back(HeaderOf(cell));
  if (layout.process) headers.front().caption = layout.owner ? "Alarm owner" : "Process alarm";
  return headers;
}

Rows AlarmListRows(const AlarmsLogRecords& records, std::int32_t count, std::string_view nodeKey,
                   const Platform& platform, AlarmLayout layout, const AlarmChoice& choice) {
  if (count < 1) return nullptr;
  datasource::RequireColumns("GetAlarms", records, static_cast<std::size_t>(count));
  std::vector<std::uint32_t> rows;
  if (!choice.TakesAll()) {
    rows = RowsTaken(records, static_cast<std::size_t>(count), choice);
    if (rows.empty()) return nullptr;
    count = static_cast<std::int32_t>(rows.size());
  }
  return std::make_shared<WholeRows<AlarmRows>>(records, count, std::string(nodeKey), platform, layout,
                                                std::move(rows));
}

}  // namespace quorvel::list
