// Which icon and which state caption a row gets. Every list and the trees decide here, so that they decide alike.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "datasource/Column.h"
#include "datasource/ErrorsProcess.h"
#include "widgets/ListView.h"

namespace quorvel::list {

using datasource::Flag;

// State groups of a run, with the codes that node keys carry.
enum class StateGroup : std::int32_t { kOk = 1, kNotOk = 2, kInProgress = 3, kNotExecuted = 4, kUnknown = 5 };

// Captions of process, task and step outcomes, and those of user and task rows: letter case differs, both are wanted.
inline constexpr std::string_view kInProgressCaption = "In progress";
inline constexpr std::string_view kNotOkCaption = "NOT OK";
inline constexpr std::string_view kUnknownCaption = "Unknown";
inline constexpr std::string_view kOkCaption = "OK";
inline constexpr std::string_view kNotExecutedCaption = "Not executed";
inline constexpr std::string_view kUserOkCaption = "Ok";
inline constexpr std::string_view kUserNotOkCaption = "Not Ok";

// Name of station 0, which stands for a run without a population.
inline constexpr std::string_view kWithoutPopulation = "Without population";

// A connection's or backup's station by its recorded name, which is empty where the station is not known any more.
// A name, or what stands for one that is empty.
inline std::string_view NamedOrNot(std::string_view name) {
  return name.empty() ? std::string_view("Without a name") : name;
}

inline std::string_view NamedStation(std::string_view name) {
  return name.empty() ? std::string_view("Unknown station") : name;
}

// An icon key and a state caption; both live forever.
struct Classified {
  std::string_view icon;
  std::string_view caption;
};

// Outcome of a process, task or step row: the caption, and the row's icon set to match when it differs. Unknown is
// looked at before OK; a row without any flag keeps its icon. Setting the icon of a row that does not exist goes into
// the log and gives the empty caption.
std::string_view SetStateAndIconToListview(datasource::ErrorsProcess& errors, widgets::ListView& list, std::size_t row,
                                           Flag inProgress, Flag notOk, Flag ok, Flag unknown);

// What tells a station's outcome in a run.
struct UserFlags {
  Flag inProgress = datasource::kFalse;
  Flag ok = datasource::kFalse;
  Flag notOk = datasource::kFalse;
  Flag unknown = datasource::kFalse;
  Flag executed = datasource::kFalse;
};

// A station's row: OK is looked at before NOT OK, the reverse of SetStateAndIconToListview; users know both orders. A
// row that no case fits keeps the plain icon and an empty caption.
Classified ClassifyUser(const UserFlags& flags, std::string_view waitState);

// The state group that counts and lists the station: the same rule, with the case that fits nothing counted as unknown,
// so that groups add up to the run's total.
StateGroup GroupOfUser(const UserFlags& flags);

// The caption of a task, step or command: in progress before OK before NOT OK, with the letter case of user rows; empty
// without any of them.
std::string_view ResultCaption(bool inProgress, bool ok, bool notOk);

// Icon key of a task row. `stationScope` 0 gives the "Global" variant. On a station (`serverMode` false) a task that
// was not executed and waits shows that it waits for the server, but for four types that run on the station alone. The
// key lives forever.
std::string_view GetLogIconeTask(std::string_view taskType, Flag notExecuted, std::int32_t stationScope, Flag waiting,
                                 bool serverMode);

// Icon key of a step row; empty for an unknown kind.
std::string_view GetLogIconeStep(std::int32_t stepKind, std::int32_t stationScope);

// Icon key of an alarm row. Actions 1 to 5 keep their icon whether acknowledged or not; the origin "Server" is compared
// letter for letter.
std::string_view GetLogIconeAlarm(std::int32_t action, std::string_view origin, Flag acknowledged);

// 4 when no flag is set; else 3, 1 or 2 for the first, second or third flag being true; else 0. Set means non-zero,
// true means -1: callers rely on a flag of another value giving 0.
std::int32_t GetProcessState(Flag first, Flag second, Flag third, Flag fourth);

// Whether a file-transfer record is an error: any result but 0, except 91 to 94 of kinds 89 and 90.
bool IsFilesTransferLogError(std::int32_t kind, std::int32_t result);

// Whether a key names one run of a process: four fields, none empty, the first "LPROC".
bool IsCurrentProcessName(std::string_view key);

// Whether a key names an import: three fields, none empty, the first "LIMP".
bool IsImportName(std::string_view key);

}  // namespace quorvel::list
