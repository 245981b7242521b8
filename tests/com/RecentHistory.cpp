#include "com/RecentHistory.h"

#include <windows.h>

#include "platform/windows/ComValues.h"

namespace quorvel::test {

RecentHistory::RecentHistory() {
  SYSTEMTIME day{};
  GetLocalTime(&day);
  day.wYear = static_cast<WORD>(day.wMonth == 1 ? day.wYear - 1 : day.wYear);
  day.wMonth = static_cast<WORD>(day.wMonth == 1 ? 12 : day.wMonth - 1);
  day.wDay = 20;
  day.wHour = 12;
  day.wMinute = day.wSecond = day.wMilliseconds = 0;
  double noon = 0;
  SystemTimeToVariantTime(&day, &noon);
  month_ = std::to_string(day.wYear) + (day.wMonth < 10 ? "/0" : "/") + std::to_string(day.wMonth);

  const std::string by = std::to_string(static_cast<int>(noon - kNoon));
  for (const std::string table : {"process_run", "station_run", "communication"}) {
    Sql("UPDATE " + table + " SET start_date = start_date + " + by +
        ", end_date = CASE WHEN end_date > 0 THEN end_date + " + by + " ELSE 0 END WHERE start_date > 0");
  }
  Sql("UPDATE alarm SET raised_date = raised_date + " + by + " WHERE raised_date > 0");
  Sql("UPDATE label SET value = '3' WHERE name = 'SERVER_LOGS_DISPLAY_PERIOD'");
  Sql("INSERT INTO label (name, value) VALUES ('SERVER_LOGS_DISPLAY_TYPE', '0')");
}

}  // namespace quorvel::test
