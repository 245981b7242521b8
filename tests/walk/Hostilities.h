// What a walk meets: rows that nobody expects, changes while it goes on, and what a user types and a host sets.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "control/Enumerations.h"

namespace quorvel::test {

// Names that break keys, lines or columns elsewhere, dates and numbers of 0 or beyond all bounds, rows whose parents
// are gone, keys that repeat.
inline constexpr std::string_view kHostileRows = R"sql(
INSERT INTO process VALUES (14, 'Tab' || char(9) || 'Two' || char(13) || char(10) || 'lines', 0, 0), (15, '', -1, 7),
  (16, '日本語 العربية', -1, 0), (17, CAST(x'62FF64' AS TEXT), 0, 0);
INSERT INTO process_run VALUES (110, 14, 46345.25, 9e15, 0), (111, 15, -657434, 1, 0), (112, 16, 46346.25, 0, -1),
  (113, 17, 46346.999999, 46346.5, 7);
INSERT INTO station_run (process_run_id, station_id, station_name, identifier, company, report, start_date, end_date,
                         in_progress, ok, not_ok, unknown, executed, wait_state) VALUES
  (110, 1, 'a|b', '|', '', '', 46345.25, 0, 7, 7, 7, 7, 7, '?'), (111, 77, '', '', '', '', 0, 0, 0, 0, 0, 0, 0, ''),
  (112, 2, 'Beta', 'B-2', '', '', 46346.25, 0, -1, 0, 0, 0, -1, 'To run'),
  (112, 3, 'gamma', 'G-3', '', '', 46346.25, 0, -1, 0, 0, 0, -1, 'Waiting station'),
  (113, 0, '', '', '', '', 9e15, -9e15, 0, -1, 0, 0, -1, '');
INSERT INTO task_run (task_run_id, process_run_id, station_id, position, task_id, task_name, task_type, not_executed,
                      station_scope, waiting, report, start_date, end_date, in_progress, ok, not_ok) VALUES
  (210, 112, 2, 1, 21, 'x|y', '', 0, 1, 0, '', 0, 0, -1, 0, 0), (211, 112, 2, 2, 21, 'again', '', 0, 9, 0, '', 0, 0, 0, 0, 0);
INSERT INTO communication (communication_id, station_id, station_name, from_station, start_date, end_date, size_kb,
                           report, in_progress, ok, not_ok) VALUES
  (-3, 0, '', 7, 46346.5, 9e15, 2147483647, '', 7, 7, 7), (590, 99, 'Pipe|', 0, 46315.5, 46315, -5, '', 0, 0, 0);
INSERT INTO alarm VALUES (-1, 77, 46346.25, -9, 99, 'SERVER', 'a|b', 5, '|', 0, -4, 'P|Q'),
  (690, 78, 9e15, 0, 3, '', '', 0, '', 0, 0, '');
INSERT INTO backup VALUES (-8, 0, 'Full|x', 46346.25, -1, -1), (791, 4, '', 46346.25, 0, 7);
INSERT INTO backup_file VALUES (792, 791, 'f' || char(9) || 'g', 'C:\a|b', 0, -7, 7);
INSERT INTO import_run VALUES (894, 1, 'Pipe|Name', 0, 0, 0);
INSERT INTO imported_user VALUES (990, 894, 'x|y' || char(9), 0, 'line' || char(10) || 'two');
INSERT INTO scheduler_log VALUES (1990, 46346.25, 77, 'M|', 'tab' || char(9), 0, 'Co', 'Été', '/nonexistent/a b');
)sql";

// Each can be made at any time, any number of times.
inline constexpr std::array<std::string_view, 14> kChanges{
    "UPDATE station_run SET in_progress = 0, ok = -1, wait_state = '' WHERE process_run_id = 112 AND station_id = 2",
    "UPDATE station_run SET in_progress = 0, not_ok = -1 WHERE process_run_id IN (101, 112) AND station_id = 3",
    "UPDATE station_run SET in_progress = -1, ok = 0, not_ok = 0, wait_state = 'To run' WHERE process_run_id IN (101, "
    "112)",
    "UPDATE station_run SET ok = 0, not_ok = -1 WHERE process_run_id = 100",
    "UPDATE station_run SET ok = -1, not_ok = 0 WHERE process_run_id = 100 AND station_id < 3",
    "DELETE FROM station_run WHERE process_run_id = 104",
    "INSERT OR IGNORE INTO station_run (process_run_id, station_id, station_name, start_date, ok, executed) VALUES "
    "(104, 2, 'Beta', 46345.75, -1, -1), (104, 4, 'Été', 46345.75, 0, -1)",
    "UPDATE communication SET start_date = 46346.25 WHERE communication_id IN (505, 590)",
    "UPDATE communication SET start_date = 0 WHERE communication_id = 505",
    "UPDATE alarm SET acknowledged = -1 - acknowledged WHERE alarm_id > 0",
    "DELETE FROM backup WHERE backup_id = 702",
    "INSERT OR IGNORE INTO backup VALUES (702, 0, 'Full', 46346.5, 0, 0)",
    "UPDATE process SET name = name || '!' WHERE length(name) < 12 AND process_id > 12",
    "UPDATE station SET name = upper(name)",
};

inline const std::array<std::string, 5> kPeriods{"2", "30", "40", "400", "9999"};
inline const std::array<std::string, 3> kNoPeriods{"", "x", "-3"};
inline constexpr double kEarlyDay = 46322;
inline constexpr std::array<std::int32_t, 6> kProcesses{-1, -1, -1, -1, 11, 99};
inline constexpr std::array<std::string_view, 5> kKeys{"", "LPROC|11|0|100|1|1|21", "LUSR|1|11|0|100",
                                                       "LCOMM|2026/11|2026/11/19|501", "no key | of any kind"};
inline constexpr std::array kFromTypes{tlFromType::tlAllOnStation, tlFromType::tlOneUser,    tlFromType::tlOneCompany,
                                       tlFromType::tlAllProcess,   tlFromType::tlOneProcess, tlFromType::tlOneProcess,
                                       tlFromType::tlOneProcess};
inline constexpr std::int32_t kExpandAll = 23;
inline constexpr std::array<std::int32_t, 12> kMenuCommands{2, 6, 12, 13, 14, 15, 20, 21, 22, kExpandAll, 24, 25};
// The right to acknowledge alarms.
inline constexpr std::int32_t kAlarmRight = 16;

}  // namespace quorvel::test
