#include "list/RunList.h"

#include <array>

#include "list/RunOutcome.h"
#include "list/StationRecord.h"

namespace quorvel::list {
namespace {

using datasource::ProcessLogRecords;

// What both lists of runs have in common.
class AnyRunRows : public RecordRows<ProcessLogRecords> {
 public:
  AnyRunRows(const ProcessLogRecords& records, std::int32_t count, std::string nodeKey, const Platform& platform,
             DateValue now)
      : RecordRows(records, count, std::move(nodeKey), platform), now_(now) {}

  // "NODE|flag|run"
  void AppendKey(std::size_t row, std::string& out) const final {
    out.append(nodeKey()).append(records().bRunOnStation[row] != 0 ? "|1|" : "|0|");
    out.append(std::to_string(records().lngProcessLogId[row]));
  }

 protected:
  // Run, start, end and duration, which come first.
  CellValue RunCell(std::size_t row, std::size_t column, bool running) const {
    switch (column) {
      case 0:
        return records().lngProcessLogId[row];
      case 1:
        return records().dtStartDate[row];
      case 2:
        return records().dtEndDate[row];
      default:
        return DurationText(records().dtStartDate[row], records().dtEndDate[row], running, now_);
    }
  }
  static constexpr std::size_t kRunCells = 4;

 private:
  DateValue now_;
};

class RunRows : public AnyRunRows {
 public:
  using AnyRunRows::AnyRunRows;

  CellValue CellOf(std::size_t row, std::size_t column) const override {
    switch (column) {
      case kRunCells:
        return StatusOf(row, CountsOf(row));
      case kRunCells + 1:
        return records().lngStations[row];
      case kRunCells + 2:
        return records().lngOk[row];
      case kRunCells + 3:
        return records().lngNotOk[row];
      case kRunCells + 4:
        return records().lngInProgress[row];
      case kRunCells + 5:
        return records().lngNotExecuted[row];
      case kRunCells + 6:
        return records().lngUnknown[row];
      default:
        return RunCell(row, column, records().lngInProgress[row] > 0);
    }
  }

  std::string_view Icon(std::size_t row) const override { return ImageOfRun(CountsOf(row)); }
  widgets::RowLook Look(std::size_t row) const override { return ErrorLook(records().lngNotOk[row] > 0); }

 private:
  // A request to stop says something for as long as there is something to stop.
  std::string StatusOf(std::size_t row, const StationCounts& counts) const {
    const bool stopping = counts.inProgress > 0 && records().dtStopRequested[row] != 0;
    return RunStatus(counts) + (stopping ? ", stop requested" : "");
  }

  StationCounts CountsOf(std::size_t row) const {
    return {.total = records().lngStations[row],
            .notExecuted = records().lngNotExecuted[row],
            .inProgress = records().lngInProgress[row],
            .notOk = records().lngNotOk[row],
            .ok = records().lngOk[row],
            .unknown = records().lngUnknown[row]};
  }
};

class StationRunRows : public AnyRunRows {
 public:
  using AnyRunRows::AnyRunRows;

  CellValue CellOf(std::size_t row, std::size_t column) const override {
    const bool running = GroupOf(records(), row) == StateGroup::kInProgress;
    if (column < kRunCells) return RunCell(row, column, running);
    constexpr std::size_t kPlace = kRunCells;
    if (column != kPlace) return ClassifyStation(records(), row).caption;
    return util::strGetExecuteWhereName(records().bRunOnStation[row] != 0 ? "Station" : "Server");
  }

  std::string_view Icon(std::size_t row) const override {
    const std::string_view image = GetProcessIconName(PresenceOf(GroupOf(records(), row)), records().strWaitState[row]);
    return image.empty() ? kPlainProcessImage : image;
  }
  widgets::RowLook Look(std::size_t row) const override {
    return ErrorLook(ClassifyStation(records(), row).caption == kUserNotOkCaption);
  }
};

constexpr widgets::Twips kStatusWidth = 3400;

}  // namespace

std::string DurationText(DateValue start, DateValue end, bool running, DateValue now) {
  if (end == 0 && running) end = now;
  if (start == 0 || end == 0) return {};
  const std::optional<std::int64_t> seconds = SecondsBetween(start, end);
  // A clock that was set back makes no duration.
  if (!seconds || *seconds < 0) return {};
  // Written from behind, digit by digit: a list makes one for every row that it shows or copies.
  constexpr std::ptrdiff_t kWidth = 11;
  std::array<char, 24> text;
  char* const last = text.data() + text.size();
  char* at = last;
  const auto put = [&at](std::int64_t digit) { *--at = static_cast<char>('0' + digit); };
  for (const std::int64_t part : {*seconds % 60, *seconds / 60 % 60}) {
    put(part % 10);
    put(part / 10);
    *--at = ':';
  }
  for (std::int64_t hours = *seconds / 3600; hours > 0 || *at == ':'; hours /= 10) put(hours % 10);
  while (last - at < kWidth) *--at = ' ';
  return {at, last};
}

// How a run went stands before the numbers: it is what people look for, and they see it without scrolling. "NOT OK", as
// it is written elsewhere, would keep that column from being sorted by.
Headers RunListHeaders() {
  return {NumberHeader("Batch"),
          DateHeader("Start"),
          DateHeader("End"),
          DurationHeader(),
          TextHeader("Status", kStatusWidth),
          NumberHeader("Stations"),
          NumberHeader("OK"),
          NumberHeader("Not OK"),
          NumberHeader("In progress", kWideNumber),
          NumberHeader("Not executed", kWideNumber),
          NumberHeader("Unknown")};
}

Rows RunListRows(const ProcessLogRecords& records, std::int32_t count, std::string_view nodeKey,
                 const Platform& platform, DateValue now) {
  return MakeRows<RunRows>("GetProcessLogByProcess", records, count, nodeKey, platform, now);
}

Headers StationRunListHeaders() {
  return {NumberHeader("Run"), DateHeader("Start"), DateHeader("End"),
          DurationHeader(),    TextHeader("Place"), TextHeader("Status", kStatusWidth)};
}

Rows StationRunListRows(const ProcessLogRecords& records, std::int32_t count, std::string_view nodeKey,
                        const Platform& platform, DateValue now) {
  return MakeRows<StationRunRows>("GetProcessLogByUser", records, count, nodeKey, platform, now);
}

}  // namespace quorvel::list
