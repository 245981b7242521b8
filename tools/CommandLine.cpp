#include "tools/CommandLine.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <filesystem>
#include <iostream>

#include "platform/Error.h"

namespace quorvel::tools {
namespace {

constexpr Option kHelp = {"help", "", "show this text"};
constexpr std::size_t kHelpColumn = 26;

[[noreturn]] void Refuse(std::string_view name, std::string_view what) {
  throw Error(SystemError::kInvalidCall, "--" + std::string(name) + " " + std::string(what));
}

const Option& Find(std::string_view name, std::span<const Option> options) {
  const auto found = std::ranges::find(options, name, &Option::name);
  if (found != options.end()) return *found;
  if (name == kHelp.name) return kHelp;
  Refuse(name, "is not an option");
}

// The help, each of its lines in the second column.
std::string Line(const Option& option) {
  std::string text = "  --" + std::string(option.name);
  if (!option.value.empty()) text.append(" ").append(option.value);
  text.resize(std::max(kHelpColumn, text.size() + 1), ' ');
  for (const char c : option.help) {
    text += c;
    if (c == '\n') text.append(kHelpColumn, ' ');
  }
  return text + "\n";
}

}  // namespace

CommandLine::CommandLine(std::span<const char* const> arguments, std::span<const Option> options) {
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string_view argument = arguments[i];
    if (!argument.starts_with("--")) {
      throw Error(SystemError::kInvalidCall, "\"" + std::string(argument) + "\" is not an option");
    }
    const std::size_t equals = argument.find('=');
    const std::string_view name = argument.substr(2, equals == std::string_view::npos ? equals : equals - 2);
    std::string& value = values_[std::string(Find(name, options).name)];
    if (Find(name, options).value.empty()) {
      if (equals != std::string_view::npos) Refuse(name, "takes no value");
    } else if (equals != std::string_view::npos) {
      value = argument.substr(equals + 1);
    } else if (++i < arguments.size()) {
      value = arguments[i];
    } else {
      Refuse(name, "needs a value");
    }
  }
}

std::optional<std::string> CommandLine::Text(std::string_view name) const {
  const auto found = values_.find(name);
  if (found == values_.end()) return std::nullopt;
  return found->second;
}

std::string CommandLine::Required(std::string_view name) const {
  const std::optional<std::string> text = Text(name);
  if (!text) Refuse(name, "is needed");
  return *text;
}

std::optional<std::int64_t> CommandLine::Number(std::string_view name, std::int64_t least, std::int64_t most) const {
  const std::optional<std::string> text = Text(name);
  if (!text) return std::nullopt;
  std::int64_t number = 0;
  const char* const end = text->data() + text->size();
  const auto [stop, error] = std::from_chars(text->data(), end, number);
  if (error != std::errc() || stop != end || number < least || number > most) {
    Refuse(name, "must be a whole number from " + std::to_string(least) + " to " + std::to_string(most));
  }
  return number;
}

std::optional<DateValue> CommandLine::Date(std::string_view name) const {
  const std::optional<std::string> text = Text(name);
  if (!text) return std::nullopt;
  const std::optional<DateValue> date = ParseFixedDate(*text);
  if (!date) Refuse(name, "must be a date, for example 2026-11-20T12:00:00");
  return date;
}

std::string Usage(std::string_view summary, std::span<const Option> options) {
  std::string text = std::string(summary) + "\n\nOptions:\n";
  for (const Option& option : options) text += Line(option);
  return text + Line(kHelp);
}

int RunTool(std::span<const char* const> arguments, std::string_view summary, std::span<const Option> options,
            const std::function<void(const CommandLine&)>& work) {
  try {
    const CommandLine commandLine(arguments.subspan(1), options);
    if (commandLine.Has(kHelp.name)) {
      std::cout << Usage(summary, options);
    } else {
      work(commandLine);
    }
    return 0;
  } catch (...) {
    std::cerr << std::filesystem::path(arguments.front()).filename().string() << ": " << CurrentError().description()
              << "\n";
    return 1;
  }
}

}  // namespace quorvel::tools
