#include "console_core/ReportHtml.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "datasource/Utf8.h"
#include "util/PublicOstrana.h"

namespace quorvel::console {
namespace {

using list::StateGroup;

constexpr const char* kHead = R"(<!DOCTYPE html>
<html lang="en">
<head>
<meta charset="utf-8">
<title>Execution report</title>
<style>
body { font-family: sans-serif; font-size: 9pt; color: #1f2933; background-color: #ffffff; }
h1 { font-size: 17pt; font-weight: bold; margin-top: 2px; margin-bottom: 0px; }
h2 { font-size: 12pt; font-weight: bold; margin-top: 18px; margin-bottom: 0px; }
p { margin-top: 8px; margin-bottom: 8px; }
hr { background-color: #1f2933; }
table { border-collapse: collapse; margin-top: 8px; margin-bottom: 8px; }
td, th { text-align: left; vertical-align: top; padding: 4px 8px; }
.kind { font-size: 8pt; color: #52606d; margin-top: 6px; }
.label, .facts th { font-size: 8pt; font-weight: normal; color: #52606d; }
.facts td { font-weight: bold; }
.outcome td { padding: 2px 8px; }
.number { text-align: right; }
.failures td { border: 1px solid #cbd2d9; }
.bar { margin-top: 4px; margin-bottom: 0px; }
.text { white-space: pre-wrap; }
</style>
</head>
<body>
)";
constexpr const char* kFoot = "</body>\n</html>\n";

constexpr StateGroup kGroups[] = {StateGroup::kOk, StateGroup::kNotOk, StateGroup::kInProgress,
                                  StateGroup::kNotExecuted, StateGroup::kUnknown};

// What stands in a document for a character of a text.
std::string_view EscapeOf(char character) {
  switch (character) {
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    case '"':
      return "&quot;";
    default:
      return {};
  }
}

// A text as HTML that shows it: characters that no document may hold become the replacement character.
std::string Escaped(std::string_view text) {
  constexpr std::string_view kReplacement = "\uFFFD";
  std::string escaped;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char each = text[i];
    const bool control = static_cast<unsigned char>(each) < 0x20 && each != '\n' && each != '\t' && each != '\r';
    if (each == '\r') {
      if (i + 1 == text.size() || text[i + 1] != '\n') escaped += '\n';
    } else if (control || each == 0x7F) {
      escaped += kReplacement;
    } else if (const std::string_view escape = EscapeOf(each); !escape.empty()) {
      escaped += escape;
    } else {
      escaped += each;
    }
  }
  return datasource::ReplaceInvalidUtf8(escaped);
}

// A name within a line, which keeps its own direction of writing to itself.
std::string Isolated(std::string_view name) {
  constexpr const char* kFirstStrongIsolate = "&#x2068;";
  constexpr const char* kPopIsolate = "&#x2069;";
  return kFirstStrongIsolate + Escaped(name) + kPopIsolate;
}

std::string Counted(std::size_t count, const char* one, const char* many) {
  return std::to_string(count) + ' ' + (count == 1 ? one : many);
}

std::string Trimmed(std::string_view text) {
  const std::size_t begin = std::min(text.find_first_not_of(' '), text.size());
  return std::string(text.substr(begin, text.find_last_not_of(' ') + 1 - begin));
}

std::string Joined(std::span<const std::string> texts) {
  std::string joined;
  for (const std::string& each : texts) joined += (joined.empty() ? "" : ", ") + each;
  return joined;
}

class Writer {
 public:
  explicit Writer(const Platform& platform) : platform_(platform) {}

  std::string Write(const ReportData& data) {
    html_ = kHead;
    for (const RunReport& each : data.runs) WriteRun(each);
    if (data.runsLeftOut > 0) {
      html_ += "<p><b>" + Counted(data.runsLeftOut, "run is", "runs are") + " left out.</b></p>\n";
    }
    return html_ + kFoot;
  }

 private:
  std::string Date(DateValue date) const {
    return Escaped(util::strFormatDateTime(platform_, date, util::kDateAndTime));
  }

  void WriteRun(const RunReport& run) {
    const bool first = !std::exchange(begun_, true);
    html_ += first ? "<hr>" : R"(<hr style="page-break-before: always">)";
    html_ += "\n<div class=\"kind\">Execution report</div>\n";
    if (!run.inHistory) {
      html_ += "<h1>Batch No. " + std::to_string(run.run) + "</h1>\n<p>This run is not in the history any more.</p>\n";
      return;
    }
    html_ += "<h1 dir=\"auto\">" + Escaped(run.process) + "</h1>\n";
    WriteFacts(run);
    WriteOutcome(run.counts);
    if (!run.sharedTasks.empty()) WriteSharedTasks(run.sharedTasks);
    WriteStations(run);
  }

  void WriteFacts(const RunReport& run) {
    const bool running = run.counts.inProgress > 0;
    const bool open = run.end == 0 && running;
    const std::string end = open ? "in progress" : Date(run.end);
    const std::string duration = Trimmed(run.duration) + (open ? " so far" : "");
    html_ += "<table class=\"facts\" width=\"100%\">\n<tr bgcolor=\"#eef1f5\">";
    for (const char* const caption : {"Batch No.", "Start", "End", "Duration", "Place"}) {
      html_ += "<th>" + std::string(caption) + "</th>";
    }
    html_ += "</tr>\n<tr bgcolor=\"#eef1f5\">";
    for (const std::string& value : {std::to_string(run.run), Date(run.start), end, duration, Escaped(run.place)}) {
      html_ += "<td>" + value + "</td>";
    }
    html_ += "</tr>\n</table>\n";
  }

  void WriteOutcome(const list::StationCounts& counts) {
    html_ += "<h2>Outcome: " + Escaped(list::RunStatus(counts)) + "</h2>\n<table class=\"outcome\" width=\"70%\">\n";
    for (const StateGroup group : kGroups) WriteCount(list::StateGroupLabel(group), counts.Of(group), counts.total);
    html_ += R"(<tr><td>Stations</td><td class="number" align="right">)" + std::to_string(counts.total) +
             "</td></tr>\n</table>\n";
  }

  // With a bar as long as the share of the stations is large.
  void WriteCount(std::string_view label, std::int32_t count, std::int32_t total) {
    html_ += "<tr><td width=\"24%\">" + Escaped(label) + "</td>";
    html_ += R"(<td width="11%" class="number" align="right">)" + std::to_string(count) + R"(</td><td width="65%">)";
    if (count > 0 && total > 0) WriteBar(std::max(static_cast<int>(std::lround(100.0 * count / total)), 1));
    html_ += "</td></tr>\n";
  }

  // A table is the one shape that both browsers and text documents draw alike.
  void WriteBar(int percent) {
    html_ += R"(<table class="bar" width="100%" cellspacing="0" cellpadding="0"><tr>)";
    WriteBarPart(percent, "#7b8794");
    if (percent < 100) WriteBarPart(100 - percent, "#eef1f5");
    html_ += "</tr></table>";
  }

  void WriteBarPart(int percent, const char* colour) {
    html_ += R"(<td width=")" + std::to_string(percent) + R"(%" bgcolor=")" + colour +
             R"(" style="padding: 0px; font-size: 5pt">&nbsp;</td>)";
  }

  void WriteSharedTasks(const std::vector<FailedTask>& tasks) {
    html_ += "<h2>Failed once for all stations</h2>\n";
    OpenFailures();
    WriteTasks(tasks);
    html_ += "</table>\n";
  }

  void WriteStations(const RunReport& run) {
    const auto failed = static_cast<std::size_t>(run.counts.notOk);
    if (failed == 0) {
      html_ += "<p>No station failed.</p>\n";
      return;
    }
    html_ += "<h2>Failing stations: " + std::to_string(failed) + "</h2>\n";
    for (const FailedStation& each : run.stations) WriteStation(each);
    if (failed > run.stations.size()) {
      html_ += "<p><b>" + Counted(failed - run.stations.size(), "failing station is", "failing stations are") +
               " left out.</b></p>\n";
    }
  }

  void WriteStation(const FailedStation& station) {
    OpenFailures();
    html_ += R"(<tr bgcolor="#eef1f5"><td colspan="2"><b>)" + Isolated(station.name) + "</b>";
    std::vector<std::string> about;
    for (const std::string_view each : {station.identifier, station.company}) {
      if (!each.empty()) about.push_back(Isolated(each));
    }
    if (!about.empty()) html_ += " <span class=\"label\">" + Joined(about) + "</span>";
    html_ += "</td><td class=\"label\">" + Between(station.start, station.end) + "</td></tr>\n";
    if (!station.report.empty()) {
      html_ += R"(<tr><td colspan="3"><div class="text" dir="auto">)" + Escaped(station.report) + "</div></td></tr>\n";
    }
    WriteTasks(station.tasks);
    html_ += "</table>\n";
  }

  std::string Between(DateValue start, DateValue end) const {
    if (start == 0 && end == 0) return {};
    return Date(start) + " \u2013 " + Date(end);
  }

  void OpenFailures() { html_ += "<table class=\"failures\" width=\"100%\">\n"; }

  void WriteTasks(const std::vector<FailedTask>& tasks) {
    for (const FailedTask& task : tasks) {
      WriteFailure("Task", 0, task.name, {}, task.report);
      for (const FailedStep& step : task.steps) {
        WriteFailure("Step", 1, step.name, step.settings, step.report);
        WriteCommands(step);
      }
    }
  }

  void WriteCommands(const FailedStep& step) {
    for (const FailedCommand& each : step.commands) {
      WriteFailure("Command", 2, each.text, "result " + std::to_string(each.result), each.report);
    }
    if (step.commandsLeftOut > 0) {
      const std::string more = Counted(step.commandsLeftOut, "failed command is", "failed commands are") + " left out";
      WriteFailure("Command", 2, {}, more, {});
    }
  }

  // A row: what failed, further in for what is part of what stands above, and the report on it.
  void WriteFailure(const char* what, int depth, std::string_view name, std::string_view more,
                    std::string_view report) {
    constexpr int kIndent = 14;
    const std::string indent = R"(style="margin-left: )" + std::to_string(depth * kIndent) + R"(px">)";
    html_ += R"(<tr><td width="12%" class="label">)" + std::string(what) + "</td>";
    html_ += "<td width=\"40%\">";
    if (!name.empty()) html_ += R"(<div class="text" dir="auto" )" + indent + Escaped(name) + "</div>";
    if (!more.empty()) {
      html_ += R"(<div class="text label" dir="auto" )" + indent + Escaped(more) + "</div>";
    }
    html_ += R"(</td><td width="48%"><div class="text" dir="auto">)" + Escaped(report) + "</div></td></tr>\n";
  }

  const Platform& platform_;
  std::string html_;
  bool begun_ = false;
};

}  // namespace

ReportText WriteReport(const ReportData& data, const Platform& platform) {
  const std::string made = util::strFormatDateTime(platform, data.made, util::kDateAndTime);
  return {Writer(platform).Write(data), "Execution report, " + made};
}

}  // namespace quorvel::console
