// Alarms as a query gives them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "datasource/AlarmsLog.h"
#include "support/FakeSources.h"

namespace quorvel::test {

struct AlarmRow {
  std::int32_t id = 0;
  std::int32_t owner = 0;
  DateValue date = 0;
  std::int32_t severity = 1;
  std::int32_t action = 0;
  std::string origin = "Station";
  std::int16_t acknowledged = 0;
  std::int32_t run = 0;
};

// Owner N is called "Owner N"; 0, the server, and 9, which is not known any more, have no name. Acknowledged alarms
// were so by "ann" on 2026-11-21; runs are of "Prices".
inline datasource::AlarmsLogRecords AlarmRecords(const std::vector<AlarmRow>& alarms) {
  const auto column = [&](auto valueOf) {
    std::vector<decltype(valueOf(AlarmRow{}))> values;
    for (const AlarmRow& alarm : alarms) values.push_back(valueOf(alarm));
    return values;
  };
  const auto numbers = [&](auto member) { return MakeColumn(column([&](const AlarmRow& a) { return a.*member; })); };
  const auto texts = [&](auto textOf) { return MakeTexts(column(textOf)); };
  datasource::AlarmsLogRecords rows;
  rows.lngAlarmId = numbers(&AlarmRow::id);
  rows.lngOwnerId = numbers(&AlarmRow::owner);
  rows.dtDate = numbers(&AlarmRow::date);
  rows.lngSeverity = numbers(&AlarmRow::severity);
  rows.lngAction = numbers(&AlarmRow::action);
  rows.bAcknowledged = numbers(&AlarmRow::acknowledged);
  rows.lngProcessLogId = numbers(&AlarmRow::run);
  rows.lngProcessId = MakeColumn(column([](const AlarmRow& a) { return a.run == 0 ? 0 : 12; }));
  rows.bRunOnStation = MakeColumn(column([](const AlarmRow& a) { return std::int16_t(a.run % 2); }));
  rows.dtAcknowledged = MakeColumn(column([](const AlarmRow& a) {
    return a.acknowledged == 0 ? DateValue{0} : DateFromCivil({2026, 11, 21, 0, 0, 0});
  }));
  rows.strOwnerName =
      texts([](const AlarmRow& a) { return a.owner == 0 || a.owner == 9 ? "" : "Owner " + std::to_string(a.owner); });
  rows.strOrigin = texts([](const AlarmRow& a) { return a.origin; });
  rows.strText = texts([](const AlarmRow& a) { return "Alarm " + std::to_string(a.id); });
  rows.strAcknowledgedBy = texts([](const AlarmRow& a) { return std::string(a.acknowledged == 0 ? "" : "ann"); });
  rows.strProcessName = texts([](const AlarmRow& a) { return std::string(a.run == 0 ? "" : "Prices"); });
  return rows;
}

inline DateValue AlarmDate(unsigned dayOfNovember, int hour) {
  return DateFromCivil({2026, 11, dayOfNovember, hour, 0, 0});
}

}  // namespace quorvel::test
