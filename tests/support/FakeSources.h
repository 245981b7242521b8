// Record sources that answer with what a test puts into them, and keep a record of what was asked.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "datasource/CommandLog.h"
#include "datasource/Labels.h"
#include "datasource/ProcessLog.h"
#include "datasource/Quorvel.h"
#include "datasource/StepLog.h"

namespace quorvel::test {

template <class T>
datasource::Column<T> MakeColumn(std::vector<T> values) {
  return datasource::Column<T>(std::move(values));
}

inline datasource::TextColumn MakeTexts(const std::vector<std::string>& values) {
  datasource::TextColumnBuilder builder;
  for (const std::string& value : values) builder.Append(value);
  return builder.Take();
}

// Rows of GetProcessLogs; `Station` adds one station of one run.
class StationRows {
 public:
  struct Flags {
    std::int16_t inProgress = 0;
    std::int16_t ok = 0;
    std::int16_t notOk = 0;
    std::int16_t unknown = 0;
    std::int16_t executed = 0;
  };
  static constexpr Flags kOk{0, -1, 0, 0, -1};
  static constexpr Flags kNotOk{0, 0, -1, 0, -1};
  static constexpr Flags kInProgress{-1, 0, 0, 0, 0};
  static constexpr Flags kNotExecuted{0, 0, 0, 0, 0};
  static constexpr Flags kUnknown{0, 0, 0, -1, -1};

  StationRows& Station(std::int32_t process, std::int32_t run, std::int32_t station, Flags flags) {
    process_.push_back(process);
    run_.push_back(run);
    station_.push_back(station);
    flags_.push_back(flags);
    return *this;
  }

  std::int32_t count() const { return static_cast<std::int32_t>(process_.size()); }

  // Process 12 is "Prices" on the server, any other "Inventory" on stations; run N began N hours into 2026-11-20.
  datasource::ProcessLogRecords Records() const {
    datasource::ProcessLogRecords rows;
    std::vector<std::string> names;
    std::vector<std::int16_t> onServer;
    std::vector<std::int16_t> onStation;
    std::vector<double> start;
    for (std::size_t i = 0; i < process_.size(); ++i) {
      const bool server = process_[i] == 12;
      names.emplace_back(server ? "Prices" : "Inventory");
      onServer.push_back(server ? -1 : 0);
      onStation.push_back(server ? 0 : -1);
      start.push_back(DateFromCivil({2026, 11, 20, run_[i] % 24, 0, 0}));
    }
    rows.lngProcessId = MakeColumn(process_);
    rows.lngProcessLogId = MakeColumn(run_);
    rows.lngUserId = MakeColumn(station_);
    rows.strProcessName = MakeTexts(names);
    rows.bProcessOnServer = MakeColumn(onServer);
    rows.bProcessOnStation = MakeColumn(onStation);
    rows.bRunOnStation = rows.bProcessOnStation;
    rows.dtStartDate = MakeColumn(start);
    rows.bInProgress = FlagColumn(&Flags::inProgress);
    rows.bResultOk = FlagColumn(&Flags::ok);
    rows.bResultNotOk = FlagColumn(&Flags::notOk);
    rows.bResultUnknown = FlagColumn(&Flags::unknown);
    rows.bExecuted = FlagColumn(&Flags::executed);
    return rows;
  }

 private:
  datasource::Column<std::int16_t> FlagColumn(std::int16_t Flags::*member) const {
    std::vector<std::int16_t> values;
    for (const Flags& flags : flags_) values.push_back(flags.*member);
    return MakeColumn(values);
  }

  std::vector<std::int32_t> process_;
  std::vector<std::int32_t> run_;
  std::vector<std::int32_t> station_;
  std::vector<Flags> flags_;
};

// What the fakes answer, and what they were asked.
struct FakeHistory {
  std::map<std::string, std::string, std::less<>> labels;
  datasource::ProcessLogRecords processLogs;
  std::int32_t processLogsCount = 0;
  datasource::ProcessLogRecords stations;
  std::int32_t stationsCount = 0;
  datasource::ProcessLogRecords parts;  // of stations in runs
  std::int32_t partsCount = 0;
  datasource::TaskRunRecords tasks;
  std::int32_t tasksCount = 0;
  datasource::StepLogRecords steps;
  std::int32_t stepsCount = 0;
  datasource::CommandLogRecords commands;
  std::int32_t commandsCount = 0;
  std::int32_t status = 0;      // of every query
  std::int32_t failNumber = 0;  // 0 = nothing fails
  std::vector<std::string> calls;
  std::function<void()> onCall;  // what else happens while the component works
};

// Notes a call and fails it when the test wants so.
inline void Ask(FakeHistory& history, const std::string& call) {
  history.calls.push_back(call);
  if (history.onCall) history.onCall();
  if (history.failNumber != 0) throw Error(history.failNumber, "Hub", "The history cannot be read");
}

class FakeLabels : public datasource::Labels {
 public:
  explicit FakeLabels(FakeHistory& history) : history_(history) {}
  ~FakeLabels() override { history_.calls.emplace_back("release Labels"); }
  std::int32_t lngCount() const override { return 0; }
  void GetLabel(std::int32_t, std::string_view name, std::int32_t& status) override {
    Ask(history_, "GetLabel " + std::string(name));
    const auto found = history_.labels.find(name);
    status = found == history_.labels.end() ? 1 : 0;
    if (status == 0) value_ = found->second;
  }
  const std::string& strLabelValue() const override { return value_; }
  void NotifyStopRequest(std::int32_t, std::string_view, std::int32_t, std::int32_t& result) override { result = 0; }

 private:
  FakeHistory& history_;
  std::string value_;
};

class FakeProcessLog : public datasource::ProcessLog {
 public:
  explicit FakeProcessLog(FakeHistory& history) : history_(history) {}
  ~FakeProcessLog() override { history_.calls.emplace_back("release ProcessLog"); }
  std::int32_t lngCount() const override {
    if (history_.onCall) history_.onCall();
    return count_;
  }
  void GetProcessLogs(std::int32_t, DateValue from, DateValue to, std::int32_t state, std::int32_t process,
                      std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t& status) override {
    Ask(history_, "GetProcessLogs " + FormatFixedDateTime(from) + " " + FormatFixedDateTime(to) + " " +
                      std::to_string(state) + " " + std::to_string(process));
    Answer(history_.processLogs, history_.processLogsCount, status);
  }
  void CloseProcessLogs(std::int32_t) override { Ask(history_, "CloseProcessLogs"); }
  void GetProcessLogByTask(std::int32_t, std::int32_t run, std::int32_t state, std::int32_t& status) override {
    Ask(history_, "GetProcessLogByTask " + std::to_string(run) + " " + std::to_string(state));
    Answer(history_.stations, history_.stationsCount, status);
  }
  void CloseProcessLogByTask(std::int32_t) override { Ask(history_, "CloseProcessLogByTask"); }
  const datasource::ProcessLogRecords& Records() const override { return records_; }

  void GetProcessLogByProcess(std::int32_t, std::int32_t process, std::int32_t, std::int32_t,
                              std::int32_t& status) override {
    Ask(history_, "GetProcessLogByProcess " + std::to_string(process));
    Answer({}, 0, status);
  }
  void GetProcessLogByUser(std::int32_t, DateValue from, DateValue to, DateValue, DateValue, std::int32_t state,
                           std::int32_t process, std::int32_t user, std::int32_t company, std::int32_t,
                           std::int32_t& status) override {
    Ask(history_, "GetProcessLogByUser " + FormatFixedDateTime(from) + " " + FormatFixedDateTime(to) + " " +
                      std::to_string(state) + " " + std::to_string(process) + " " + std::to_string(user) + " " +
                      std::to_string(company));
    Answer(history_.parts, history_.partsCount, status);
  }
  void CloseProcessLogByUser(std::int32_t) override { Ask(history_, "CloseProcessLogByUser"); }
  void GetProcessLogsByName(std::int32_t, DateValue, DateValue, std::string_view, std::int32_t&) override {}
  void CloseProcessLogsByName(std::int32_t) override {}
  void GetProcessLogDetail(std::int32_t, std::int32_t, std::int32_t, std::int32_t, std::int32_t&) override {}
  const datasource::ProcessLogDetail& Detail() const override { return detail_; }

 private:
  void Answer(const datasource::ProcessLogRecords& records, std::int32_t count, std::int32_t& status) {
    records_ = records;
    count_ = count;
    status = history_.status;
  }

  FakeHistory& history_;
  datasource::ProcessLogRecords records_;
  datasource::ProcessLogDetail detail_;
  std::int32_t count_ = 0;
};

class FakeCommandLog : public datasource::CommandLog {
 public:
  explicit FakeCommandLog(FakeHistory& history) : history_(history) {}
  ~FakeCommandLog() override { history_.calls.emplace_back("release CommandLog"); }
  std::int32_t lngCount() const override { return history_.commandsCount; }
  void GetCommandLogByStepLog(std::int32_t, std::int32_t stepLog, std::int32_t& status) override {
    Ask(history_, "GetCommandLogByStepLog " + std::to_string(stepLog));
    status = history_.status;
  }
  void CloseCommandLogByStepLog(std::int32_t) override { Ask(history_, "CloseCommandLogByStepLog"); }
  const datasource::CommandLogRecords& Records() const override { return history_.commands; }

  void GetCommunications(std::int32_t, DateValue, DateValue, std::int32_t, std::int32_t, std::int32_t,
                         std::int32_t&) override {}
  void CloseCommunications(std::int32_t) override {}
  void GetCommunicationsByMonth(std::int32_t, DateValue, DateValue, std::int32_t, std::int32_t,
                                std::int32_t&) override {}
  void CloseCommunicationsByMonth(std::int32_t) override {}
  void GetCommandLogByCommunication(std::int32_t, std::int32_t, std::int32_t&) override {}
  void CloseCommandLogByCommunication(std::int32_t) override {}

 private:
  FakeHistory& history_;
};

class FakeTaskRuns : public datasource::Quorvel {
 public:
  explicit FakeTaskRuns(FakeHistory& history) : history_(history) {}
  ~FakeTaskRuns() override { history_.calls.emplace_back("release Quorvel"); }
  std::int32_t lngCount() const override { return history_.tasksCount; }
  void GetTaskRunsByProcessLog(std::int32_t, std::int32_t run, bool onStation, std::int32_t user,
                               std::int32_t& status) override {
    Ask(history_, "GetTaskRunsByProcessLog " + std::to_string(run) + (onStation ? " station " : " server ") +
                      std::to_string(user));
    status = history_.status;
  }
  void CloseTaskRuns(std::int32_t) override { Ask(history_, "CloseTaskRuns"); }
  const datasource::TaskRunRecords& Records() const override { return history_.tasks; }

 private:
  FakeHistory& history_;
};

class FakeStepLog : public datasource::StepLog {
 public:
  explicit FakeStepLog(FakeHistory& history) : history_(history) {}
  std::int32_t lngCount() const override { return history_.stepsCount; }
  void GetStepLogByTaskRun(std::int32_t, std::int32_t task, std::int32_t run, std::int32_t user,
                           std::int32_t& status) override {
    Ask(history_,
        "GetStepLogByTaskRun " + std::to_string(task) + " " + std::to_string(run) + " " + std::to_string(user));
    status = history_.status;
  }
  void CloseStepLog(std::int32_t) override { Ask(history_, "CloseStepLog"); }
  const datasource::StepLogRecords& Records() const override { return history_.steps; }

 private:
  FakeHistory& history_;
};

class FakeFactory : public datasource::RecordSourceFactory {
 public:
  explicit FakeFactory(FakeHistory& history) : history_(history) {}
  std::unique_ptr<datasource::RecordSource> Create(std::string_view classIdentifier, std::string_view server) override {
    history_.calls.push_back("create " + std::string(classIdentifier) + " on \"" + std::string(server) + "\"");
    if (classIdentifier == datasource::Labels::kClassIdentifier) return std::make_unique<FakeLabels>(history_);
    if (classIdentifier == datasource::ProcessLog::kClassIdentifier) return std::make_unique<FakeProcessLog>(history_);
    if (classIdentifier == datasource::CommandLog::kClassIdentifier) return std::make_unique<FakeCommandLog>(history_);
    if (classIdentifier == datasource::Quorvel::kClassIdentifier) return std::make_unique<FakeTaskRuns>(history_);
    if (classIdentifier == datasource::StepLog::kClassIdentifier) return std::make_unique<FakeStepLog>(history_);
    throw Error(SystemError::kCannotCreateComponent, "No " + std::string(classIdentifier));
  }

 private:
  FakeHistory& history_;
};

}  // namespace quorvel::test
