// The processes of a sample: what a chain of shops distributes, collects and checks, as data.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace quorvel::tools {

// Kind codes of what is said on a line; 88 to 90 are file transfers.
inline constexpr std::int32_t kConnect = 41;
inline constexpr std::int32_t kHangUp = 42;
inline constexpr std::int32_t kListFiles = 88;
inline constexpr std::int32_t kSendFile = 89;
inline constexpr std::int32_t kReceiveFile = 90;

struct CommandTemplate {
  std::string_view text{};  // "{station}" stands for the station's identifier
  std::int32_t kind = 0;
  std::int32_t code = 0;  // result of a command that goes well
};

// What can go wrong in a step differs by what it does.
enum class Risk { kProgram, kInstall, kService, kSpace, kCheck, kImport, kQuery, kCopy, kConnection, kTransfer, kMail };

struct StepTemplate {
  std::string_view name{};
  std::string_view settings{};
  std::string_view executeWhere{};
  std::int32_t kind = 0;
  Risk risk = Risk::kProgram;
  std::span<const CommandTemplate> commands{};
};

struct TaskTemplate {
  std::int32_t id = 0;
  std::string_view name{};
  std::string_view type{};
  bool onStation = false;  // runs for each station, else once for all
  std::span<const StepTemplate> steps{};
};

// Who takes part in a run.
enum class Population { kAll, kCompany, kFew, kOne, kNone };

// Where a process is meant to run.
enum class Place { kServer, kStation, kBoth };

struct ProcessTemplate {
  std::string_view name{};
  Place place = Place::kServer;
  Population population = Population::kAll;
  std::int32_t weight = 1;         // how often it runs, beside the others
  std::int32_t windowMinutes = 0;  // stations begin within so long after the start
  std::int32_t workMinutes = 1;    // a station's part takes up to so long
  std::span<const TaskTemplate* const> tasks{};
};

// The processes that every sample draws from, the most frequent first.
std::span<const ProcessTemplate> OrdinaryProcesses();

// Processes that hold the rare cases, one for each.
const ProcessTemplate& SiteAuditProcess();      // each task type, and types that nobody knows
const ProcessTemplate& ProtocolCheckProcess();  // each step kind and transfer result, and ones that nobody knows
const ProcessTemplate& OddNamesProcess();       // names that are hard to show
const ProcessTemplate& StatisticsProcess();     // runs without stations

}  // namespace quorvel::tools
