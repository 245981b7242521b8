#include "tree/ConnectionTree.h"

#include <string>
#include <vector>

#include "datasource/Contract.h"
#include "list/ConnectionRecord.h"
#include "tree/CountedNode.h"
#include "tree/NodeKey.h"
#include "util/PublicOstrana.h"

namespace quorvel::tree {
namespace {

using util::DateField;
using util::FieldOfDate;
using widgets::NodeId;

constexpr std::string_view kDaysQuery = "GetCommunicationsByMonth";
constexpr std::int32_t kDayFieldPosition = 3;

// Connections of each day, and how many of them failed: both answers have the newest day first.
std::vector<Tally> TallyDays(const DayAnswer& days, const DayAnswer& failed) {
  const auto count = static_cast<std::size_t>(days.count);
  const auto failedCount = failed.count > 0 ? static_cast<std::size_t>(failed.count) : 0;
  std::vector<Tally> tallies;
  tallies.reserve(count);
  std::size_t next = 0;
  for (std::size_t row = 0; row < count; ++row) {
    const DateValue day = days.records.dtCommunicationDate[row];
    while (next < failedCount && failed.records.dtCommunicationDate[next] > day) ++next;
    const bool some = next < failedCount && failed.records.dtCommunicationDate[next] == day;
    tallies.push_back({days.records.lngCommunications[row], some ? failed.records.lngCommunications[next] : 0});
  }
  return tallies;
}

// Adds a month or a day.
NodeId AddCounted(widgets::TreeView& tree, NodeId parent, std::string_view key, std::string_view name,
                  const Tally& tally) {
  return tree.Add(parent, key, CountedText(name, tally), tally.failed > 0 ? "User_NoOk" : "StepCom");
}

class MonthBuilder {
 public:
  MonthBuilder(const DayAnswer& days, const DayAnswer& failedDays, const Platform& platform, widgets::TreeView& tree)
      : days_(days.records.dtCommunicationDate),
        tallies_(TallyDays(days, failedDays)),
        platform_(platform),
        tree_(tree) {}

  void Build(bool byDay) {
    for (std::size_t first = 0; first < tallies_.size();) {
      if (!util::HasField(days_[first])) {
        ++first;
        continue;
      }
      const std::string field = FieldOfDate(days_[first], DateField::kMonth);
      Tally ofMonth;
      std::size_t last = first;
      for (; last < tallies_.size() && util::HaveSameField(days_[first], days_[last], DateField::kMonth); ++last) {
        ofMonth.Add(tallies_[last]);
      }
      const NodeId month = AddCounted(tree_, NodeId::kNone, MakeKey(kCommunicationPrefix, field), field, ofMonth);
      if (byDay) {
        for (std::size_t row = first; row < last; ++row) AddDay(month, row);
      } else {
        tree_.SetPlaceholder(month, true);
      }
      first = last;
    }
  }

 private:
  void AddDay(NodeId month, std::size_t row) {
    constexpr std::int32_t kShortDate = 1;
    const std::string key = MakeKey(tree_.Key(month), FieldOfDate(days_[row], DateField::kDay));
    const NodeId day =
        AddCounted(tree_, month, key, util::strFormatDateTime(platform_, days_[row], kShortDate), tallies_[row]);
    tree_.SetPlaceholder(day, true);
  }

  const datasource::Column<DateValue>& days_;
  std::vector<Tally> tallies_;
  const Platform& platform_;
  widgets::TreeView& tree_;
};

// The keys of days. Connections of one day stand together, so the last one is kept.
class DayKeys {
 public:
  explicit DayKeys(std::string_view parentKey) : parentKey_(parentKey) {}

  const std::string& Of(DateValue date) {
    const DateValue day = DatePart(date);
    if (day == day_ && day != kNoDay) return key_;
    day_ = day;
    key_.clear();
    list::AppendDayKey(date, parentKey_, key_);
    return key_;
  }

 private:
  static constexpr DateValue kNoDay = 0;  // also what a date that cannot be shown has

  std::string_view parentKey_;
  DateValue day_ = kNoDay;
  std::string key_;
};

}  // namespace

void AppendMonthNodes(const DayAnswer& days, const DayAnswer& failedDays, bool byDay, const Platform& platform,
                      widgets::TreeView& tree) {
  if (days.count <= 0) return;
  datasource::RequireColumns(kDaysQuery, days.records, static_cast<std::size_t>(days.count));
  if (failedDays.count > 0) {
    datasource::RequireColumns(kDaysQuery, failedDays.records, static_cast<std::size_t>(failedDays.count));
  }
  tree.InBatch([&] { MonthBuilder(days, failedDays, platform, tree).Build(byDay); });
}

DayAnswer CountByDay(const DayAnswer& connections) {
  const std::size_t count = connections.count > 0 ? static_cast<std::size_t>(connections.count) : 0;
  std::vector<DateValue> days;
  std::vector<std::int32_t> numbers;
  for (std::size_t row = 0; row < count; ++row) {
    const DateValue date = connections.records.dtCommunicationDate[row];
    if (!util::HasField(date)) continue;
    const DateValue day = DatePart(date);
    if (days.empty() || days.back() != day) {
      days.push_back(day);
      numbers.push_back(0);
    }
    ++numbers.back();
  }
  DayAnswer answer{.records = {}, .count = static_cast<std::int32_t>(days.size())};
  answer.records.dtCommunicationDate = datasource::Column<DateValue>(std::move(days));
  answer.records.lngCommunications = datasource::Column<std::int32_t>(std::move(numbers));
  return answer;
}

void AppendConnectionNodes(const datasource::CommandLogRecords& rows, std::int32_t count, const Platform& platform,
                           NodeId parent, widgets::TreeView& tree) {
  if (count <= 0) return;
  const auto rowCount = static_cast<std::size_t>(count);
  datasource::RequireColumns("GetCommunications", rows, rowCount);
  const std::string above(tree.Key(parent));
  const bool underDay = !util::Identifiant(above, kDayFieldPosition).empty();
  tree.InBatch([&] {
    DayKeys days(above);
    std::string key;
    std::string text;
    for (std::size_t row = 0; row < rowCount; ++row) {
      const DateValue start = rows.dtCommunicationDate[row];
      key.clear();
      list::AppendConnectionKey(rows, row, days.Of(start), key);
      text.assign(underDay ? util::TimeText(start) : util::strFormatDateTime(platform, start, util::kDateAndTime));
      text.append(" ").append(list::NamedStation(rows.strUserName[row]));
      text.append(" : ").append(list::DirectionName(rows, row));
      tree.Add(parent, key, text, list::ClassifyConnection(rows, row).icon);
    }
  });
}

util::Period PeriodOfConnections(std::string_view key, const util::Period& filter) {
  constexpr std::int32_t kMonthFieldPosition = 2;
  const std::string_view day = util::Identifiant(key, kDayFieldPosition);
  return util::Common(util::PeriodOfField(day.empty() ? util::Identifiant(key, kMonthFieldPosition) : day), filter);
}

std::int32_t CommunicationOfKey(std::string_view key) {
  return util::IdentifiantNumber(key, 4);
}

}  // namespace quorvel::tree
