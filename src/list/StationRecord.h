// One row of ProcessLog as a station's part in a run, read the same way by every list and tree.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "datasource/ProcessLog.h"
#include "list/Classification.h"

namespace quorvel::list {

inline UserFlags FlagsOf(const datasource::ProcessLogRecords& rows, std::size_t row) {
  return {rows.bInProgress[row], rows.bResultOk[row], rows.bResultNotOk[row], rows.bResultUnknown[row],
          rows.bExecuted[row]};
}

inline StateGroup GroupOf(const datasource::ProcessLogRecords& rows, std::size_t row) {
  return GroupOfUser(FlagsOf(rows, row));
}

inline Classified ClassifyStation(const datasource::ProcessLogRecords& rows, std::size_t row) {
  return ClassifyUser(FlagsOf(rows, row), rows.strWaitState[row]);
}

inline std::string_view StationName(const datasource::ProcessLogRecords& rows, std::size_t row) {
  return rows.lngUserId[row] == 0 ? kWithoutPopulation : rows.strUserName[row];
}

// "Lyon 08 (ST-8)", as nodes show a station.
inline std::string StationText(const datasource::ProcessLogRecords& rows, std::size_t row) {
  std::string text(StationName(rows, row));
  return text.append(" (").append(rows.strIdentifier[row]).append(")");
}

}  // namespace quorvel::list
