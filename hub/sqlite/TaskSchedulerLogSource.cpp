// The scheduler's own log, over SQLite.
#include "datasource/TaskSchedulerLog.h"

#include "hub/sqlite/FillColumns.h"
#include "hub/sqlite/Filters.h"
#include "hub/sqlite/LogQueries.h"
#include "hub/sqlite/RecordSources.h"

namespace quorvel::hub {
namespace {

// The one kind of log that there is.
constexpr std::int32_t kSchedulerKind = 3;

datasource::TextColumn DateTexts(const datasource::Column<DateValue>& dates) {
  datasource::TextColumnBuilder texts;
  texts.Reserve(dates.size());
  DateTimeBuffer buffer;
  for (const DateValue date : dates.values()) texts.Append(FormatFixedDateTime(date, buffer));
  return texts.Take();
}

class TaskSchedulerLogSource final
    : public SourceBase<datasource::TaskSchedulerLog, datasource::TaskSchedulerLogRecords> {
 public:
  using SourceBase::SourceBase;

  void GetTaskSchedulerLogs(std::int32_t connection, DateValue dateFrom, DateValue dateTo, std::int32_t kind,
                            std::int32_t stateCode, std::int32_t companyId, std::int32_t& status) override {
    const Database& database = Begin(connection, "GetTaskSchedulerLogs");
    status = kStatusNoPeriod;
    if (!Period{dateFrom, dateTo}.valid()) return;
    status = kStatusMissing;
    if (kind != kSchedulerKind) return;
    status = kStatusOk;

    Statement rows = PrepareFor(database, kSchedulerLogs, ":company", companyId);
    rows.Bind(":from", dateFrom).Bind(":to", dateTo).Bind(":state", stateCode);
    datasource::Column<DateValue> dates;
    count_ = FillColumns(rows, records_.lngLevel, records_.lngLogId, dates, records_.strMachine, records_.strLabel,
                         records_.strCompany, records_.strUserName, records_.strAttachment);
    records_.strDate = DateTexts(dates);
  }
};

}  // namespace

std::unique_ptr<datasource::RecordSource> CreateTaskSchedulerLog(std::shared_ptr<const Connections> connections) {
  return std::make_unique<TaskSchedulerLogSource>(std::move(connections));
}

}  // namespace quorvel::hub
