#include "list/CurrentRunList.h"

#include <algorithm>
#include <vector>

#include "list/RunOutcome.h"
#include "list/StationRecord.h"

namespace quorvel::list {
namespace {

using datasource::ProcessLogRecords;

// The rows of one group.
class GroupRows : public RecordRows<ProcessLogRecords> {
 public:
  GroupRows(const ProcessLogRecords& records, std::int32_t count, std::string nodeKey, const Platform& platform,
            StateGroup group)
      : RecordRows(records, count, std::move(nodeKey), platform), group_(group) {}

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
        return StateGroupLabel(group_);
      case 4:
        return WaitsFor(row);
      case 5:
        return records().strReport[row];
      case 6:
        return records().dtStartDate[row];
      default:
        return records().dtEndDate[row];
    }
  }

  std::string_view Icon(std::size_t row) const override { return ClassifyStation(records(), row).icon; }
  widgets::RowLook Look(std::size_t /*row*/) const override { return ErrorLook(group_ == StateGroup::kNotOk); }

 private:
  // A station that simply runs waits for nothing.
  std::string_view WaitsFor(std::size_t row) const {
    if (group_ != StateGroup::kInProgress) return {};
    const std::string_view caption = ClassifyStation(records(), row).caption;
    return caption == kInProgressCaption ? std::string_view() : caption;
  }

  StateGroup group_;
};

// Several lots of rows, one after the other.
class RowsInParts final : public widgets::RowSource {
 public:
  explicit RowsInParts(std::vector<Rows> parts) : parts_(std::move(parts)) {
    for (const Rows& part : parts_) {
      starts_.push_back(count_);
      count_ += part->Count();
    }
  }

  std::size_t Count() const override { return count_; }
  void AppendKey(std::size_t row, std::string& out) const override {
    const Place place = PlaceOf(row);
    place.part.AppendKey(place.row, out);
  }
  void AppendCell(std::size_t row, std::size_t column, std::string& out) const override {
    const Place place = PlaceOf(row);
    place.part.AppendCell(place.row, column, out);
  }
  void AppendRow(std::size_t row, std::size_t columns, std::string& out) const override {
    const Place place = PlaceOf(row);
    place.part.AppendRow(place.row, columns, out);
  }
  std::optional<std::string_view> TextOf(std::size_t row, std::size_t column) const override {
    const Place place = PlaceOf(row);
    return place.part.TextOf(place.row, column);
  }
  std::optional<DateValue> DateOf(std::size_t row, std::size_t column) const override {
    const Place place = PlaceOf(row);
    return place.part.DateOf(place.row, column);
  }
  std::optional<std::int32_t> NumberOf(std::size_t row, std::size_t column) const override {
    const Place place = PlaceOf(row);
    return place.part.NumberOf(place.row, column);
  }
  std::string_view Icon(std::size_t row) const override {
    const Place place = PlaceOf(row);
    return place.part.Icon(place.row);
  }
  widgets::RowLook Look(std::size_t row) const override {
    const Place place = PlaceOf(row);
    return place.part.Look(place.row);
  }

 private:
  struct Place {
    const widgets::RowSource& part;
    std::size_t row;
  };
  Place PlaceOf(std::size_t row) const {
    const auto part = static_cast<std::size_t>(std::ranges::upper_bound(starts_, row) - starts_.begin()) - 1;
    return {*parts_[part], row - starts_[part]};
  }

  std::vector<Rows> parts_;
  std::vector<std::size_t> starts_;
  std::size_t count_ = 0;
};

}  // namespace

Headers CurrentRunListHeaders() {
  constexpr widgets::Twips kWaitingWidth = 3000;
  return {TextHeader("Station"),
          TextHeader("Identifier"),
          TextHeader("Company"),
          TextHeader("Status"),
          TextHeader("Waiting for", kWaitingWidth),
          TextHeader("Report", kReportWidth),
          DateHeader("Start"),
          DateHeader("End")};
}

Rows CurrentRunListRows(std::span<const StationsOfGroup> groups, std::string_view nodeKey, const Platform& platform) {
  std::vector<Rows> parts;
  for (const StationsOfGroup& each : groups) {
    Rows rows = MakeRows<GroupRows>("GetProcessLogByTask", each.stations.records, each.stations.count, nodeKey,
                                    platform, each.group);
    if (rows) parts.push_back(std::move(rows));
  }
  return std::make_shared<RowsInParts>(std::move(parts));
}

}  // namespace quorvel::list
