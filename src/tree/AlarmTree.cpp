#include "tree/AlarmTree.h"

#include <functional>
#include <map>
#include <string>

#include "datasource/Contract.h"
#include "tree/CountedNode.h"
#include "tree/NodeKey.h"
#include "util/KeyDates.h"
#include "util/PublicOstrana.h"

namespace quorvel::tree {
namespace {

using datasource::AlarmsLogRecords;
using widgets::NodeId;

// What the alarms below a node come to.
struct Summary {
  Tally tally;            // "failed" are those that are active
  std::size_t worst = 0;  // a row, where there are alarms
};

bool IsWorse(const AlarmsLogRecords& rows, std::size_t row, std::size_t than) {
  const bool active = list::IsActiveAlarm(rows, row);
  if (active != list::IsActiveAlarm(rows, than)) return active;
  if (rows.lngSeverity[row] != rows.lngSeverity[than]) return rows.lngSeverity[row] > rows.lngSeverity[than];
  if (rows.dtDate[row] != rows.dtDate[than]) return rows.dtDate[row] > rows.dtDate[than];
  return rows.lngAlarmId[row] > rows.lngAlarmId[than];
}

void Add(Summary& sum, const AlarmsLogRecords& rows, const Summary& more) {
  if (more.tally.count == 0) return;
  if (sum.tally.count == 0 || IsWorse(rows, more.worst, sum.worst)) sum.worst = more.worst;
  sum.tally.Add(more.tally);
}

// A day of any owner: its texts are made once, however many owners have it.
struct Day {
  std::string field;
  std::string text;
  Summary ofAll;
};

// Walks the rows and keeps what is open: the owner, its day, and what happened in each.
class AlarmTreeBuilder {
 public:
  AlarmTreeBuilder(const AlarmsLogRecords& rows, AlarmOwners owners, const list::AlarmChoice& choice,
                   const Platform& platform, widgets::TreeView& tree)
      : rows_(rows), owners_(owners), choice_(choice), platform_(platform), tree_(tree) {}

  void Build(std::size_t count) {
    for (std::size_t row = 0; row < count; ++row) {
      if (!choice_.Takes(rows_, row)) continue;
      const DateValue day = DatePart(rows_.dtDate[row]);
      const bool otherOwner = owner_ == NodeId::kNone || rows_.lngOwnerId[row] != ownerId_;
      if (otherOwner) {
        OpenOwner(row);
      } else if (day != day_) {
        CloseDay();
      }
      day_ = day;
      Add(ofDay_, rows_, {{1, list::IsActiveAlarm(rows_, row) ? 1 : 0}, row});
    }
    CloseOwner();
    if (all_ != NodeId::kNone) CloseAll();
  }

 private:
  void OpenOwner(std::size_t row) {
    CloseOwner();
    const bool one = owners_ == AlarmOwners::kOne;
    if (!one && all_ == NodeId::kNone) all_ = AddOwner(util::kAlarmAllPrefix, list::kAllOwners, "All alarms");
    ownerId_ = rows_.lngOwnerId[row];
    owner_ = AddOwner(one ? util::kAlarmOneUserPrefix : util::kAlarmUserPrefix, ownerId_, list::AlarmOwner(rows_, row));
  }

  NodeId AddOwner(std::string_view prefix, std::int32_t owner, std::string_view name) {
    return tree_.Add(NodeId::kNone, MakeKey(prefix, owner), name, "");
  }

  void CloseDay() {
    if (day_ != 0 && ofDay_.tally.count > 0) {
      Day& day = DayOf(day_);
      AddDay(owner_, ownerId_, day, ofDay_);
      Add(day.ofAll, rows_, ofDay_);
    }
    Add(ofOwner_, rows_, ofDay_);
    ofDay_ = {};
  }

  void CloseOwner() {
    CloseDay();
    if (owner_ == NodeId::kNone) return;
    ShowOwner(owner_, ofOwner_);
    Add(ofAll_, rows_, ofOwner_);
    ofOwner_ = {};
  }

  void CloseAll() {
    for (const auto& [number, day] : days_) AddDay(all_, list::kAllOwners, day, day.ofAll);
    ShowOwner(all_, ofAll_);
  }

  Day& DayOf(DateValue number) {
    Day& day = days_[number];
    if (day.field.empty()) {
      day.field = util::FieldOfDate(number, util::DateField::kDay);
      day.text = platform_.FormatDate(number, DateFormat::kShortDate);
    }
    return day;
  }

  void AddDay(NodeId owner, std::int32_t ownerId, const Day& day, const Summary& sum) {
    Show(tree_.Add(owner, MakeKey(util::kAlarmDayPrefix, ownerId, day.field), TextOf(day.text, sum), ""), sum);
  }

  void ShowOwner(NodeId owner, const Summary& sum) {
    tree_.SetNodeText(owner, TextOf(tree_.Text(owner), sum));
    Show(owner, sum);
  }

  static std::string TextOf(std::string_view name, const Summary& sum) {
    return CountedText(name, sum.tally, "active");
  }

  // The icon is that of a plain alarm: those of alarms that set something off do not tell active ones apart.
  void Show(NodeId node, const Summary& sum) {
    constexpr std::int32_t kPlainAlarm = 0;
    const std::string_view image =
        list::GetLogIconeAlarm(kPlainAlarm, rows_.strOrigin[sum.worst], rows_.bAcknowledged[sum.worst]);
    tree_.SetImages(node, image, image, image);
    if (sum.tally.failed > 0) tree_.SetLook(node, widgets::SystemColour::kWindowText, true);
  }

  const AlarmsLogRecords& rows_;
  AlarmOwners owners_;
  const list::AlarmChoice& choice_;
  const Platform& platform_;
  widgets::TreeView& tree_;
  std::map<DateValue, Day, std::greater<>> days_;  // newest first
  NodeId all_ = NodeId::kNone;
  NodeId owner_ = NodeId::kNone;
  std::int32_t ownerId_ = 0;
  DateValue day_ = 0;
  Summary ofDay_;
  Summary ofOwner_;
  Summary ofAll_;
};

}  // namespace

void AppendAlarmNodes(const AlarmsLogRecords& rows, std::int32_t count, AlarmOwners owners,
                      const list::AlarmChoice& choice, const Platform& platform, widgets::TreeView& tree) {
  if (count <= 0) return;
  const auto rowCount = static_cast<std::size_t>(count);
  datasource::RequireColumns("GetAlarms", rows, rowCount);
  tree.InBatch([&] { AlarmTreeBuilder(rows, owners, choice, platform, tree).Build(rowCount); });
}

AlarmsOfNode ReadAlarmKey(std::string_view key) {
  constexpr std::int32_t kDayField = 3;
  AlarmsOfNode node{.owner = util::IdentifiantNumber(key, 2)};
  const std::string_view day = util::Identifiant(key, kDayField);
  if (!day.empty()) node.day = util::PeriodOfField(day).from;
  return node;
}

}  // namespace quorvel::tree
