#include "console_core/ConsoleOptions.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string_view>

namespace quorvel::console {
namespace {

struct FromTypeName {
  std::string_view name;
  tlFromType value;
};
constexpr FromTypeName kFromTypes[] = {
    {"tlAllOnStation", tlFromType::tlAllOnStation}, {"tlOneUser", tlFromType::tlOneUser},
    {"tlOneCompany", tlFromType::tlOneCompany},     {"tlAllProcess", tlFromType::tlAllProcess},
    {"tlOneProcess", tlFromType::tlOneProcess},     {"tlLogs", tlFromType::tlLogs},
    {"tlAllAlarms", tlFromType::tlAllAlarms},       {"tlOneAlarm", tlFromType::tlOneAlarm},
    {"tlAllImports", tlFromType::tlAllImports},
};

struct Option {
  std::string_view name;
  std::string_view value;  // what follows it; "" = nothing
  std::string_view help;
  bool Abilities::*needs = nullptr;
};
constexpr Option kOptions[] = {
    {"history", "URL", "Open this history, for example sqlite:/var/lib/history.db."},
    {"tab", "NAME", "Show this tab."},
    {"from-type", "NAME", "Open the viewer for this view (default tlOneProcess)."},
    {"process-id", "N", "Show this process only (default -1: all)."},
    {"screenshot", "FILE.png", "Write a picture of the window; end then, unless a person sits in front of it."},
    {"part", "NAME", "Of that picture only this control, for example fraOption.", &Abilities::part},
    {"scenario", "FILE", "Run the scenario in FILE, print what it prints, and end."},
    {"report", "KEYS",
     "Write an execution report of these runs to --output, for example 'LPROC|1|0|376;LPROC|1|0|375'."},
    {"output", "FILE", "File for the report that is asked for: .html, or .pdf where the console draws pages."},
    {"headless", "", "Run the scenario without windows."},
    {"size", "WIDTHxHEIGHT", "Size of the window in pixels (default 1180x760)."},
    {"dark", "", "Use dark colours.", &Abilities::dark},
    {"help", "", "Show this help."},
};

// An argument that is not understood; the text is for whoever typed it.
class UsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// What was given of each option that was named.
class Given {
 public:
  Given(std::span<const std::string> arguments, const Abilities& abilities) {
    for (std::size_t i = 0; i < arguments.size(); ++i) {
      const std::string_view argument = arguments[i];
      if (!argument.starts_with("-")) throw UsageError("Not understood: " + arguments[i]);
      const std::size_t assigned = std::min(argument.find('='), argument.size());
      const Option& option = OptionOf(argument.substr(0, assigned), abilities);
      const bool valueFollows = !option.value.empty() && assigned == argument.size();
      if (option.value.empty() && assigned != argument.size()) throw UsageError("Takes no value: " + arguments[i]);
      if (valueFollows && i + 1 == arguments.size()) throw UsageError("Its value is missing: " + arguments[i]);
      values_[option.name] = valueFollows ? arguments[++i] : argument.substr(std::min(assigned + 1, argument.size()));
    }
  }

  bool Has(std::string_view name) const { return values_.contains(name); }
  std::string Value(std::string_view name) const {
    const auto found = values_.find(name);
    return found == values_.end() ? std::string() : found->second;
  }

 private:
  static const Option& OptionOf(std::string_view argument, const Abilities& abilities) {
    const std::string_view name = argument == "-h" ? "--help" : argument;
    const auto* const found = std::ranges::find_if(kOptions, [&](const Option& each) {
      return name.starts_with("--") && name.substr(2) == each.name &&
             (each.needs == nullptr || abilities.*(each.needs));
    });
    if (found == std::end(kOptions)) throw UsageError("No such option: " + std::string(argument));
    return *found;
  }

  std::map<std::string_view, std::string> values_;
};

tlFromType FromTypeOf(const std::string& name) {
  const auto* const found = std::ranges::find(kFromTypes, name, &FromTypeName::name);
  if (found == std::end(kFromTypes)) throw UsageError("--from-type: no such view: " + name);
  return found->value;
}

std::int32_t NumberOf(const std::string& option, std::string_view text) {
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || text.empty()) {
    throw UsageError(option + ": not a whole number: " + std::string(text));
  }
  return number;
}

WindowSize SizeOf(std::string_view text) {
  const std::size_t middle = text.find('x');
  if (middle == std::string_view::npos) throw UsageError("--size: not WIDTHxHEIGHT: " + std::string(text));
  const WindowSize size{NumberOf("--size", text.substr(0, middle)), NumberOf("--size", text.substr(middle + 1))};
  if (size.width <= 0 || size.height <= 0) throw UsageError("--size: not WIDTHxHEIGHT: " + std::string(text));
  return size;
}

bool EndsWith(std::string text, std::string_view ending) {
  std::ranges::transform(text, text.begin(), [](char each) { return each >= 'A' && each <= 'Z' ? each + 32 : each; });
  return text.ends_with(ending);
}

void CheckReport(const ConsoleOptions& options, const Abilities& abilities) {
  if (!options.report.empty() && options.history.empty()) throw UsageError("--report needs --history");
  if (!options.report.empty() && options.output.empty()) throw UsageError("--report needs --output");
  if (options.output.empty()) return;
  const bool ofScenario = abilities.reportOfScenario && !options.scenario.empty() && !options.headless;
  if (options.report.empty() && !ofScenario) {
    throw UsageError(abilities.reportOfScenario ? "--output needs --report, or a --scenario with windows"
                                                : "--output needs --report");
  }
  if (EndsWith(options.output, ".html") || (abilities.pdf && EndsWith(options.output, ".pdf"))) return;
  throw UsageError(std::string("--output: ") + (abilities.pdf ? "neither .pdf nor" : "not") +
                   " .html: " + options.output);
}

ConsoleOptions OptionsOf(const Given& given, const Abilities& abilities) {
  ConsoleOptions options;
  options.history = given.Value("history");
  options.tab = given.Value("tab");
  options.screenshot = given.Value("screenshot");
  options.part = given.Value("part");
  options.scenario = given.Value("scenario");
  options.report = given.Value("report");
  options.output = given.Value("output");
  options.headless = given.Has("headless");
  options.dark = given.Has("dark");
  if (given.Has("from-type")) options.fromType = FromTypeOf(given.Value("from-type"));
  if (given.Has("process-id")) options.processId = NumberOf("--process-id", given.Value("process-id"));
  if (given.Has("size")) options.size = SizeOf(given.Value("size"));
  if (options.headless && options.scenario.empty()) throw UsageError("--headless needs --scenario");
  CheckReport(options, abilities);
  if (!options.part.empty() && options.screenshot.empty()) throw UsageError("--part needs --screenshot");
  return options;
}

std::string HelpText(const std::string& program, const Abilities& abilities) {
  constexpr std::size_t kHelpColumn = 28;
  std::string text = "Usage: " + std::filesystem::path(program).filename().string() +
                     " [OPTION...]\nShows the execution history of an installation.\n\n";
  for (const Option& each : kOptions) {
    if (each.needs != nullptr && !(abilities.*(each.needs))) continue;
    std::string line = "  --" + std::string(each.name) + (each.value.empty() ? "" : " ") + std::string(each.value);
    line.resize(std::max(line.size() + 2, kHelpColumn), ' ');
    text += line + std::string(each.help) + "\n";
  }
  return text;
}

}  // namespace

CommandLine ReadCommandLine(std::span<const std::string> arguments, const Abilities& abilities) {
  constexpr int kUsageExit = 2;
  try {
    const Given given(arguments.subspan(std::min<std::size_t>(arguments.size(), 1)), abilities);
    if (given.Has("help")) return {{}, HelpText(arguments.front(), abilities), 0};
    return {OptionsOf(given, abilities), {}, 0};
  } catch (const UsageError& error) {
    return {{}, error.what() + std::string("\nSee --help.\n"), kUsageExit};
  }
}

}  // namespace quorvel::console
