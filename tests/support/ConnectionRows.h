// Answers about connections, row by row.
#pragma once

#include <string>
#include <vector>

#include "support/ColumnsOfRows.h"

namespace quorvel::test {

using ConnectionAnswer = datasource::Answer<datasource::CommandLogRecords>;

struct DayRow {
  CivilTime day;
  std::int32_t connections;
};

// Of GetCommunicationsByMonth.
inline ConnectionAnswer DaysOf(const std::vector<DayRow>& rows) {
  ConnectionAnswer answer{{}, static_cast<std::int32_t>(rows.size())};
  answer.records.dtCommunicationDate = ColumnOf(rows, [](const DayRow& row) { return DateFromCivil(row.day); });
  answer.records.lngCommunications = ColumnOf(rows, &DayRow::connections);
  return answer;
}

struct ConnectionRow {
  std::int32_t id;
  CivilTime start;
  std::string station;
  std::int16_t fromStation = 0;
  std::int16_t inProgress = 0;
  std::int16_t ok = 0;
  std::int16_t notOk = 0;
};

// Of GetCommunications: each took 61 seconds, unless it is in progress, and moved as many KB as its number.
inline ConnectionAnswer ConnectionsOf(const std::vector<ConnectionRow>& rows) {
  const auto end = [](const ConnectionRow& row) {
    return row.inProgress != 0 ? 0 : DateFromCivil(row.start) + 61.0 / 86400;
  };
  ConnectionAnswer answer{{}, static_cast<std::int32_t>(rows.size())};
  datasource::CommandLogRecords& records = answer.records;
  records.lngCommunicationId = records.lngUserId = records.lngSizeKb = ColumnOf(rows, &ConnectionRow::id);
  records.dtCommunicationDate = ColumnOf(rows, [](const ConnectionRow& row) { return DateFromCivil(row.start); });
  records.dtCommunicationEnd = ColumnOf(rows, end);
  records.strUserName = records.strReport = ColumnOf(rows, &ConnectionRow::station);
  records.bFromStation = ColumnOf(rows, &ConnectionRow::fromStation);
  records.bInProgress = ColumnOf(rows, &ConnectionRow::inProgress);
  records.bResultOk = ColumnOf(rows, &ConnectionRow::ok);
  records.bResultNotOk = ColumnOf(rows, &ConnectionRow::notOk);
  return answer;
}

}  // namespace quorvel::test
