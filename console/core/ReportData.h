// What an execution report says: of each run how it went and, station by station, what failed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "datasource/RecordSource.h"
#include "list/RunOutcome.h"
#include "platform/Platform.h"

namespace quorvel::console {

struct FailedCommand {
  std::string text;
  std::int32_t result = 0;
  std::string report;
};

struct FailedStep {
  std::string name;
  std::string settings;
  std::string report;
  std::vector<FailedCommand> commands;
  std::size_t commandsLeftOut = 0;
};

struct FailedTask {
  std::string name;
  std::string report;
  std::vector<FailedStep> steps;
};

struct FailedStation {
  std::string name;
  std::string identifier;
  std::string company;
  std::string report;
  DateValue start = 0;
  DateValue end = 0;
  std::vector<FailedTask> tasks;
};

struct RunReport {
  std::int32_t run = 0;
  bool inHistory = false;  // else nothing below is known
  std::string process = {};
  std::string_view place = {};  // lives forever
  DateValue start = 0;
  DateValue end = 0;
  std::string duration = {};  // "0:12:05", empty where it is not known
  list::StationCounts counts = {};
  std::vector<FailedTask> sharedTasks = {};  // they ran once for all stations, and are told once
  std::vector<FailedStation> stations = {};  // by name, see kMostStations
};

struct ReportData {
  DateValue made = 0;
  std::vector<RunReport> runs = {};  // in the order that they were asked for, see kMostRuns
  std::size_t runsLeftOut = 0;
};

// What one report holds at most: somebody is to read it, and waits for it. What is left out is counted.
inline constexpr std::size_t kMostRuns = 500;
inline constexpr std::size_t kMostStations = 200;         // of a run
inline constexpr std::size_t kMostStationsInAll = 1'000;  // of all runs together
inline constexpr std::size_t kMostCommands = 50;          // of a step
inline constexpr std::size_t kMostTextBytes = 4'000;      // of each text; the rest becomes "[1234 more bytes]"

// Reads a report of the runs with these keys, "LPROC|process|flag|run" joined by ";", from an open connection: one
// question for each process, failing station, failing task and failing step. What fails is what lists mark as failed.
// Error 5 for a key that is none of a run, or for no key at all; else the errors of the record sources.
ReportData CollectReport(datasource::RecordSourceFactory& factory, std::int32_t connection, const Platform& platform,
                         std::string_view keys);

}  // namespace quorvel::console
