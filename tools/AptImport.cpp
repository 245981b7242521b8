#include "tools/AptImport.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string_view>

#include "tools/AptHistory.h"
#include "tools/AptRuns.h"
#include "tools/DpkgLog.h"
#include "tools/LogFiles.h"

namespace quorvel::tools {
namespace {

using datasource::kFalse;
using datasource::kTrue;

constexpr std::int32_t kStationId = 1;
constexpr std::string_view kNoCommandLine = "unattended (no command line)";
constexpr std::string_view kInterrupted = "Interrupted: no end was logged";

// Kind codes of commands: what dpkg was about to do, and the state that a package reached.
constexpr std::int32_t kActionCommand = 1;
constexpr std::int32_t kStateCommand = 2;

// What an invocation asks for, as a task. Types are chosen so that each kind of task has its own picture.
struct TaskKind {
  std::optional<AptAction> action;  // nothing: triggers of other packages
  std::string_view name;
  std::string_view type;
};
constexpr TaskKind kTaskKinds[] = {
    {AptAction::kInstall, "Install", "Logiciel"},         {AptAction::kReinstall, "Reinstall", "Synchro"},
    {AptAction::kUpgrade, "Upgrade", "Teledistribution"}, {AptAction::kDowngrade, "Downgrade", "TransferSpecific"},
    {AptAction::kRemove, "Remove", "ManageStation"},      {AptAction::kPurge, "Purge", "FileManagementStation"},
    {std::nullopt, "Process triggers", "BatchStation"},
};
constexpr std::int32_t kTaskIdsPerProcess = 10;

std::string Plural(std::size_t count, std::string_view what) {
  return std::to_string(count) + " " + std::string(what) + (count == 1 ? "" : "s");
}

struct Logs {
  AptHistory history;
  DpkgLog dpkg;
};

void TellProblems(const std::vector<LogFile>& files, std::vector<std::string>& messages) {
  for (const LogFile& file : files) {
    if (file.problem.empty()) continue;
    messages.push_back(file.path.string() + ": " + file.problem + "; kept " + Plural(file.lines.size(), "line") +
                       " before that");
  }
}

Logs ReadLogs(const std::filesystem::path& folder, std::vector<std::string>& messages) {
  Logs logs;
  const std::vector<LogFile> apt = ReadLogFiles(folder / "apt", "history.log");
  const std::vector<LogFile> dpkg = ReadLogFiles(folder, "dpkg.log");
  for (const LogFile& file : apt) ParseAptHistory(file.lines, file.problem.empty(), logs.history);
  for (const LogFile& file : dpkg) ParseDpkgLog(file.lines, logs.dpkg);
  SortByDate(logs.dpkg);
  TellProblems(apt, messages);
  TellProblems(dpkg, messages);
  if (logs.history.invocations.empty()) {
    const std::string place = (folder / "apt" / "history.log").string();
    messages.push_back(apt.empty() ? "There is no " + place + ": the history is empty"
                                   : place + " holds no invocation of apt: the history is empty");
  } else if (logs.dpkg.records.empty()) {
    messages.push_back("There are no records in " + (folder / "dpkg.log").string() + ": the steps have no commands");
  }
  const std::int32_t skipped = logs.history.skippedLines + logs.dpkg.skippedLines;
  if (skipped > 0) {
    messages.push_back(Plural(static_cast<std::size_t>(skipped), "line") + " not understood and left out");
  }
  return logs;
}

ResultFlags ResultOf(AptState state) {
  switch (state) {
    case AptState::kDone:
      return kSuccessResult;
    case AptState::kFailed:
      return kFailureResult;
    case AptState::kRunning:
      return kRunningResult;
    case AptState::kNotBegun:
      break;
  }
  return kNoResult;
}

// A task that lacks a package is still running, or it failed.
AptState StateOf(std::span<const AptStep> steps, bool running) {
  if (CountIn(AptState::kFailed, steps) > 0) return AptState::kFailed;
  if (CountIn(AptState::kDone, steps) == steps.size()) return AptState::kDone;
  if (CountIn(AptState::kNotBegun, steps) == steps.size()) return AptState::kNotBegun;
  return running ? AptState::kRunning : AptState::kFailed;
}

void AddSentence(std::string& text, std::string_view sentence) {
  if (sentence.empty()) return;
  if (!text.empty()) text += "; ";
  text += sentence;
}

// "2 of 7 packages failed: nginx:amd64, vim:amd64; 3 not begun".
std::string ReportOf(std::span<const AptStep> steps, bool running) {
  constexpr std::size_t kMostNames = 3;
  const std::size_t failed = CountIn(AptState::kFailed, steps);
  const std::size_t notBegun = CountIn(AptState::kNotBegun, steps);
  std::string report = Plural(steps.size(), "package");
  if (failed > 0) {
    report = std::to_string(failed) + " of " + report + " failed";
    std::size_t named = 0;
    for (const AptStep& step : steps) {
      if (step.state != AptState::kFailed || named == kMostNames) continue;
      report.append(named++ == 0 ? ": " : ", ").append(step.package);
    }
    if (failed > kMostNames) report += ", ...";
  }
  if (notBegun > 0 && !running) AddSentence(report, std::to_string(notBegun) + " not begun");
  return report;
}

std::string ReportOf(const AptRun& run) {
  const AptInvocation& invocation = *run.invocation;
  std::string report = invocation.error;
  if (invocation.end == 0 && run.state == AptState::kFailed) AddSentence(report, kInterrupted);
  AddSentence(report, ReportOf(run.steps, run.state == AptState::kRunning));
  if (!invocation.requestedBy.empty()) AddSentence(report, "requested by " + invocation.requestedBy);
  return report;
}

std::string ReportOf(const AptStep& step) {
  if (step.state != AptState::kFailed) {
    return step.change != nullptr && step.change->automatic ? "Needed by another package" : "";
  }
  if (step.records.empty()) return "dpkg never began";
  return "Stopped at: " + step.records.back()->text;
}

// What a state that nobody wanted means.
struct StuckState {
  std::string_view state;
  std::string_view meaning;
};
constexpr StuckState kStuckStates[] = {
    {"half-installed", "its files were not written or deleted to the end"},
    {"unpacked", "it was never configured"},
    {"half-configured", "its own script failed or was cut off"},
    {"triggers-awaited", "packages that it waits for never ran their triggers"},
    {"triggers-pending", "its triggers never ran"},
    {"config-files", "its settings were not deleted"},
};

std::string ReasonOf(const AptInvocation& invocation, const DpkgRecord& record) {
  std::string reason = "dpkg did not go on from here";
  const auto* const stuck = std::ranges::find(kStuckStates, record.state, &StuckState::state);
  if (stuck != std::end(kStuckStates)) reason.append(": ").append(stuck->meaning);
  AddSentence(reason, invocation.end == 0 ? kInterrupted : std::string_view(invocation.error));
  return reason;
}

std::string SettingsOf(const AptStep& step) {
  if (step.change == nullptr) return {};
  const AptChange& change = *step.change;
  if (change.oldVersion.empty() || change.newVersion.empty()) return change.oldVersion + change.newVersion;
  return change.oldVersion + " -> " + change.newVersion;
}

class RunWriter {
 public:
  RunWriter(HistoryWriter& writer, const AptRun& run, const ProcessRunRow& row)
      : writer_(writer), run_(run), row_(row) {}

  void Write(std::string_view station) {
    writer_.Add(row_);
    const std::string report = ReportOf(run_);
    writer_.Add(row_, StationRunRow{.stationId = kStationId,
                                    .stationName = station,
                                    .identifier = station,
                                    .report = report,
                                    .start = row_.start,
                                    .end = row_.end,
                                    .result = ResultOf(run_.state),
                                    .executed = kTrue,
                                    .waitState = run_.state == AptState::kRunning ? "To run" : ""});
    for (const TaskKind& kind : kTaskKinds) WriteTask(kind);
  }

 private:
  std::vector<AptStep> StepsOf(const TaskKind& kind) const {
    if (!kind.action) return run_.triggers;
    std::vector<AptStep> steps;
    std::ranges::copy_if(run_.steps, std::back_inserter(steps),
                         [&](const AptStep& step) { return step.change->action == *kind.action; });
    return steps;
  }

  void WriteTask(const TaskKind& kind) {
    const std::vector<AptStep> steps = StepsOf(kind);
    if (steps.empty()) return;
    const bool running = run_.state == AptState::kRunning;
    const AptState state = StateOf(steps, running);
    const bool begun = state != AptState::kNotBegun;
    const std::string report = ReportOf(steps, running);
    const auto number = static_cast<std::int32_t>(&kind - kTaskKinds) + 1;
    const std::int32_t id = writer_.Add(row_, TaskRunRow{.stationId = kStationId,
                                                         .position = ++position_,
                                                         .taskId = row_.processId * kTaskIdsPerProcess + number,
                                                         .name = kind.name,
                                                         .type = kind.type,
                                                         .notExecuted = begun ? kFalse : kTrue,
                                                         .report = report,
                                                         .start = begun ? row_.start : 0,
                                                         .end = begun && state != AptState::kRunning ? row_.end : 0,
                                                         .result = ResultOf(state)});
    for (const AptStep& step : steps) WriteStep(id, step);
  }

  void WriteStep(std::int32_t taskRunId, const AptStep& step) {
    const std::string settings = SettingsOf(step);
    const std::string report = ReportOf(step);
    const bool logged = !step.records.empty();
    const bool done = step.state == AptState::kDone;
    const std::int32_t id = writer_.Add(taskRunId, StepRow{.name = step.package,
                                                           .settings = settings,
                                                           .report = report,
                                                           .executeWhere = "Station",
                                                           .start = logged ? step.records.front()->date
                                                                    : done ? row_.start
                                                                           : 0,
                                                           .end = step.state == AptState::kRunning ? 0
                                                                  : logged ? step.records.back()->date
                                                                  : done   ? row_.end
                                                                           : 0,
                                                           .result = ResultOf(step.state),
                                                           .stationScope = kStationId});
    for (const DpkgRecord* record : step.records) WriteCommand(id, step, *record);
  }

  void WriteCommand(std::int32_t stepLogId, const AptStep& step, const DpkgRecord& record) {
    const bool last = &record == step.records.back();
    const bool failed = last && step.state == AptState::kFailed;
    const bool running = last && step.state == AptState::kRunning;
    const std::string report = failed ? ReasonOf(*run_.invocation, record) : std::string();
    writer_.Add(stepLogId, CommandRow{.kind = record.state.empty() ? kActionCommand : kStateCommand,
                                      .code = failed ? 1 : 0,
                                      .text = record.text,
                                      .report = report,
                                      .start = record.date,
                                      .end = running ? 0 : record.date,
                                      .result = last ? ResultOf(step.state) : kSuccessResult});
  }

  HistoryWriter& writer_;
  const AptRun& run_;
  const ProcessRunRow& row_;
  std::int32_t position_ = 0;
};

std::string_view ProcessName(const AptInvocation& invocation) {
  return invocation.commandLine.empty() ? kNoCommandLine : std::string_view(invocation.commandLine);
}

void WriteRuns(const AptRuns& runs, std::string_view station, HistoryWriter& writer) {
  std::map<std::string_view, std::int32_t> processes;
  std::int32_t runId = 0;
  for (const AptRun& run : runs.runs) {
    const std::string_view name = ProcessName(*run.invocation);
    const auto [process, isNew] = processes.try_emplace(name, static_cast<std::int32_t>(processes.size()) + 1);
    if (isNew) writer.Add(ProcessRow{process->second, name, kFalse, kTrue});
    const ProcessRunRow row{++runId, process->second, run.invocation->start, run.invocation->end, kTrue};
    RunWriter(writer, run, row).Write(station);
  }
}

}  // namespace

AptImportResult ImportAptHistory(const AptImportOptions& options, const std::filesystem::path& file,
                                 Existing existing) {
  AptImportResult result;
  HistoryWriter writer(file, existing);
  const Logs logs = ReadLogs(options.logFolder, result.messages);
  const AptRuns runs = MatchAptRuns(logs.history, logs.dpkg, options.now);
  if (runs.foreignRecords > 0) {
    result.messages.push_back(Plural(runs.foreignRecords, "record") +
                              " of dpkg outside every invocation of apt left out");
  }
  writer.AddLabel("UseType", "STATION");
  // A machine's packages change seldom: the display starts with the last 12 months.
  writer.AddLabel("STATION_LOGS_DISPLAY_PERIOD", "12");
  writer.AddLabel("STATION_LOGS_DISPLAY_TYPE", "0");
  writer.Add(StationRow{.id = kStationId, .name = options.station, .identifier = options.station});
  WriteRuns(runs, options.station, writer);
  writer.Finish();
  result.counts = writer.counts();
  return result;
}

}  // namespace quorvel::tools
