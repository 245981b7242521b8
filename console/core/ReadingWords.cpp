#include "console_core/ReadingWords.h"

#include <algorithm>
#include <iterator>

namespace quorvel::console {
namespace {

constexpr Reading kReadings[] = {
    {"GetProcessLogs", "runs"},
    {"GetProcessLogByProcess", "runs of a process"},
    {"GetProcessLogByUser", "runs of stations"},
    {"GetProcessLogsByName", "runs of a process"},
    {"GetProcessLogByTask", "stations"},
    {"GetTaskRunsByProcessLog", "tasks"},
    {"GetStepLogByTaskRun", "steps"},
    {"GetCommunications", "connections"},
    {"GetCommunicationsByMonth", "connections"},
    {"GetCommandLogByCommunication", "commands"},
    {"GetCommandLogByStepLog", "commands"},
    {"GetAlarms", "alarms"},
    {"GetAlarmsByDay", "alarms"},
    {"GetSaves", "backups"},
    {"GetSaveFiles", "files of a backup"},
    {"GetUsersImports", "imports"},
    {"GetUsersImportByProcess", "imported users"},
    {"GetTaskSchedulerLogs", "the system log"},
};

}  // namespace

std::span<const Reading> Readings() {
  return kReadings;
}

std::string WordsFor(std::string_view query) {
  const auto* const found = std::ranges::find(kReadings, query, &Reading::query);
  return found == std::end(kReadings) ? std::string() : "Reading " + std::string(found->what) + "...";
}

}  // namespace quorvel::console
