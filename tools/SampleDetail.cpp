#include "tools/SampleDetail.h"

#include <algorithm>
#include <string>

#include "tools/SampleNames.h"

namespace quorvel::tools {
namespace {

using datasource::kFalse;
using datasource::kTrue;

constexpr std::int32_t kTaskIdsPerProcess = 100;

struct Span {
  Second start = 0;
  Second end = 0;
};

// The ith of n equal pieces.
Span Piece(const Span& whole, std::size_t i, std::size_t n) {
  const Second length = whole.end - whole.start;
  const auto at = [&](std::size_t k) { return whole.start + length * static_cast<Second>(k) / static_cast<Second>(n); };
  return {at(i), at(i + 1)};
}

// The detail of one part, from its tasks down.
class PartDetail {
 public:
  PartDetail(const SamplePlan& plan, HistoryWriter& writer, const ProcessRunRow& run, const StationPart& part,
             std::int32_t communicationId)
      : plan_(plan),
        writer_(writer),
        run_(run),
        process_(*plan.processes[static_cast<std::size_t>(run.processId - 1)].kind),
        part_(part),
        span_{part.start, part.end == 0 ? plan.now : part.end},
        connection_{.id = communicationId, .station = part.station, .fromStation = run.onStation, .start = part.start} {
  }

  // Gives the connection that carried commands; its identifier is 0 when there was none.
  CarriedConnection Write() {
    const bool onStation = part_.station != kNoStation;
    const auto count = static_cast<std::size_t>(
        std::ranges::count(process_.tasks, onStation, [](const TaskTemplate* task) { return task->onStation; }));
    std::size_t written = 0;
    for (std::size_t i = 0; i < process_.tasks.size(); ++i) {
      if (process_.tasks[i]->onStation != onStation) continue;
      const Span span = Piece(span_, written, count);
      WriteTask(i, span, ++written == count);
    }
    return carried_ ? connection_ : CarriedConnection{};
  }

 private:
  // The state of the task at `index`, as the part's state and the task where it stopped make it.
  PartState StateOf(std::size_t index) const {
    const PartState state = part_.state;
    if (state == PartState::kOk || state == PartState::kOdd || state == PartState::kNotExecuted) return state;
    if (index == part_.stoppedAtTask) return state;
    return index < part_.stoppedAtTask ? PartState::kOk : PartState::kNotExecuted;
  }

  ResultFlags ResultOf(PartState state) const {
    if (state == PartState::kOk) return kSuccessResult;
    return state == PartState::kNotExecuted ? kNoResult : part_.result;
  }

  // A part that waits for its connection has no start, nor has anything below it.
  DateValue StartOf(const Span& span) const { return part_.start == 0 ? 0 : DateAt(span.start); }
  DateValue EndOf(const Span& span, PartState state) const {
    return state == PartState::kInProgress || part_.start == 0 ? 0 : DateAt(span.end);
  }

  void WriteTask(std::size_t index, const Span& span, bool last) {
    const TaskTemplate& kind = *process_.tasks[index];
    const PartState state = StateOf(index);
    TaskRunRow row{.stationId = part_.station + 1,
                   .position = static_cast<std::int32_t>(index) + 1,
                   .taskId = run_.processId * kTaskIdsPerProcess + kind.id,
                   .name = kind.name,
                   .type = kind.type};
    if (state == PartState::kNotExecuted) {
      row.notExecuted = kTrue;
      row.waiting = part_.state == PartState::kInProgress ? kTrue : kFalse;
      writer_.Add(run_, row);
      return;
    }
    if (state != PartState::kOk || (last && state == part_.state)) row.report = part_.report;
    row.start = StartOf(span);
    row.end = EndOf(span, state);
    row.result = ResultOf(state);
    WriteSteps(writer_.Add(run_, row), kind, span, row, state);
  }

  void WriteSteps(std::int32_t taskRunId, const TaskTemplate& kind, const Span& span, const TaskRunRow& task,
                  PartState state) {
    const bool whole = state == PartState::kOk || state == PartState::kOdd;
    const std::size_t count = whole ? kind.steps.size() : part_.stoppedAtStep + 1;
    for (std::size_t i = 0; i < count; ++i) {
      const StepTemplate& step = kind.steps[i];
      const bool last = i + 1 == count;
      const PartState stepState = last || state == PartState::kOdd ? state : PartState::kOk;
      const Span piece = Piece(span, i, count);
      const StepRow row{.name = step.name,
                        .settings = step.settings,
                        .report = last ? task.report : "",
                        .executeWhere = step.executeWhere,
                        .start = StartOf(piece),
                        .end = EndOf(piece, stepState),
                        .result = ResultOf(stepState),
                        .kind = step.kind,
                        .stationScope = task.stationId};
      WriteCommands(writer_.Add(taskRunId, row), step, row, stepState);
    }
  }

  void WriteCommands(std::int32_t stepLogId, const StepTemplate& kind, const StepRow& step, PartState state) {
    const bool connected = kind.executeWhere == "Communication" && connection_.id != 0 && part_.start != 0;
    const std::string station =
        part_.station == kNoStation ? "SERVER" : plan_.stations[static_cast<std::size_t>(part_.station)].identifier;
    for (std::size_t i = 0; i < kind.commands.size(); ++i) {
      const CommandTemplate& command = kind.commands[i];
      const bool last = i + 1 == kind.commands.size();
      const bool failed = last && state == PartState::kNotOk;
      const std::string text = Fill(command.text, "{station}", station);
      const CommandRow row{.communicationId = connected ? connection_.id : 0,
                           .communicationDate = connected ? DateAt(part_.start) : 0,
                           .kind = command.kind,
                           .code = failed ? part_.failure->code : command.code,
                           .text = text,
                           .report = failed ? part_.failure->commandReport : "",
                           .start = step.start,
                           .end = last ? step.end : step.start,
                           .result = last ? step.result : kSuccessResult};
      writer_.Add(stepLogId, row);
      if (connected) Carry(row, failed);
    }
  }

  void Carry(const CommandRow& command, bool failed) {
    carried_ = true;
    connection_.end = command.end;
    const bool lineFailed = failed && !part_.failure->lineStays;
    connection_.result = failed && !lineFailed ? kSuccessResult : command.result;
    if (lineFailed) connection_.report = part_.failure->report;
    const bool sent = command.kind == kSendFile || command.kind == kReceiveFile;
    if (sent && command.result == kSuccessResult) ++connection_.transfers;
  }

  const SamplePlan& plan_;
  HistoryWriter& writer_;
  const ProcessRunRow& run_;
  const ProcessTemplate& process_;
  const StationPart& part_;
  Span span_;
  CarriedConnection connection_;
  bool carried_ = false;
};

}  // namespace

void SampleDetail::Write(const PlannedRun& run, const ProcessRunRow& row, const RunParts& parts) {
  const auto isKept = [&](const StationPart& part) { return run.detailed || part.state == PartState::kNotOk; };
  if (!isKept(parts.server) && std::ranges::none_of(parts.stations, isKept)) return;
  PartDetail(plan_, writer_, row, parts.server, 0).Write();
  for (const StationPart& part : parts.stations) {
    if (part.station == kNoStation || !isKept(part)) continue;
    const CarriedConnection connection = PartDetail(plan_, writer_, row, part, ++facts_.lastConnection).Write();
    if (connection.id != 0) facts_.connections.push_back(connection);
  }
}

}  // namespace quorvel::tools
