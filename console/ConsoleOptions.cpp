#include "console/ConsoleOptions.h"

#include <QCommandLineParser>
#include <QFileInfo>
#include <algorithm>
#include <iterator>
#include <stdexcept>

namespace quorvel::console {
namespace {

struct FromTypeName {
  const char* name;
  tlFromType value;
};
constexpr FromTypeName kFromTypes[] = {
    {"tlAllOnStation", tlFromType::tlAllOnStation}, {"tlOneUser", tlFromType::tlOneUser},
    {"tlOneCompany", tlFromType::tlOneCompany},     {"tlAllProcess", tlFromType::tlAllProcess},
    {"tlOneProcess", tlFromType::tlOneProcess},     {"tlLogs", tlFromType::tlLogs},
    {"tlAllAlarms", tlFromType::tlAllAlarms},       {"tlOneAlarm", tlFromType::tlOneAlarm},
    {"tlAllImports", tlFromType::tlAllImports},
};

// An argument that is not understood; the text is for whoever typed it.
class UsageError : public std::runtime_error {
 public:
  explicit UsageError(const QString& text) : std::runtime_error(text.toStdString()) {}
};

tlFromType FromTypeOf(const QString& name) {
  const auto* const found = std::ranges::find_if(kFromTypes, [&](const auto& each) { return name == each.name; });
  if (found == std::end(kFromTypes)) throw UsageError("--from-type: no such view: " + name);
  return found->value;
}

std::int32_t NumberOf(const QString& option, const QString& text) {
  bool ok = false;
  const int number = text.toInt(&ok);
  if (!ok) throw UsageError(option + ": not a whole number: " + text);
  return number;
}

QSize SizeOf(const QString& text) {
  const QStringList sides = text.split('x');
  if (sides.size() != 2) throw UsageError("--size: not WIDTHxHEIGHT: " + text);
  const QSize size(NumberOf("--size", sides[0]), NumberOf("--size", sides[1]));
  if (size.isEmpty()) throw UsageError("--size: not WIDTHxHEIGHT: " + text);
  return size;
}

void Declare(QCommandLineParser& parser) {
  parser.setApplicationDescription("Shows the execution history of an installation.");
  parser.addOptions({
      {"history", "Open this history, for example sqlite:/var/lib/history.db.", "URL"},
      {"tab", "Show this tab.", "NAME"},
      {"from-type", "Open the viewer for this view (default tlOneProcess).", "NAME"},
      {"process-id", "Show this process only (default -1: all).", "N"},
      {"screenshot", "Write a picture of the window; end then, unless a person sits in front of it.", "FILE.png"},
      {"part", "Of that picture only this control, for example fraOption.", "NAME"},
      {"scenario", "Run the scenario in FILE, print what it prints, and end.", "FILE"},
      {"report", "Write an execution report of these runs to --output, for example 'LPROC|1|0|376;LPROC|1|0|375'.",
       "KEYS"},
      {"output", "File for the report that --report, or the scenario, asks for.", "FILE.pdf|FILE.html"},
      {"headless", "Run the scenario without windows."},
      {"size", "Size of the window in pixels (default 1180x760).", "WIDTHxHEIGHT"},
      {"dark", "Use dark colours."},
      {{"h", "help"}, "Show this help."},
  });
}

void CheckReport(const ConsoleOptions& options) {
  if (!options.report.isEmpty() && options.history.isEmpty()) throw UsageError("--report needs --history");
  if (!options.report.isEmpty() && options.output.isEmpty()) throw UsageError("--report needs --output");
  if (options.output.isEmpty()) return;
  if (options.report.isEmpty() && (options.scenario.isEmpty() || options.headless)) {
    throw UsageError("--output needs --report, or a --scenario with windows");
  }
  const QString kind = QFileInfo(options.output).suffix().toLower();
  if (kind != "pdf" && kind != "html") throw UsageError("--output: neither .pdf nor .html: " + options.output);
}

ConsoleOptions OptionsOf(const QCommandLineParser& parser) {
  ConsoleOptions options;
  options.history = parser.value("history");
  options.tab = parser.value("tab");
  options.screenshot = parser.value("screenshot");
  options.part = parser.value("part");
  options.scenario = parser.value("scenario");
  options.report = parser.value("report");
  options.output = parser.value("output");
  options.headless = parser.isSet("headless");
  options.dark = parser.isSet("dark");
  if (parser.isSet("from-type")) options.fromType = FromTypeOf(parser.value("from-type"));
  if (parser.isSet("process-id")) options.processId = NumberOf("--process-id", parser.value("process-id"));
  if (parser.isSet("size")) options.size = SizeOf(parser.value("size"));
  if (options.headless && options.scenario.isEmpty()) throw UsageError("--headless needs --scenario");
  CheckReport(options);
  if (!options.part.isEmpty() && options.screenshot.isEmpty()) throw UsageError("--part needs --screenshot");
  return options;
}

}  // namespace

CommandLine ReadCommandLine(const QStringList& arguments) {
  constexpr int kUsageExit = 2;
  QCommandLineParser parser;
  Declare(parser);
  try {
    if (!parser.parse(arguments)) throw UsageError(parser.errorText());
    if (parser.isSet("help")) {
      // Before there is an application Qt does not know its name.
      return {{}, parser.helpText().replace("<executable_name>", QFileInfo(arguments.value(0)).fileName()), 0};
    }
    if (!parser.positionalArguments().isEmpty()) {
      throw UsageError("Not understood: " + parser.positionalArguments().join(' '));
    }
    return {OptionsOf(parser), {}, 0};
  } catch (const UsageError& error) {
    return {{}, QString::fromUtf8(error.what()) + "\nSee --help.\n", kUsageExit};
  }
}

}  // namespace quorvel::console
