// Reads the options of the tools: "--name value", "--name=value" and switches.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "platform/Dates.h"

namespace quorvel::tools {

struct Option {
  std::string_view name;   // without the dashes
  std::string_view value;  // what the help calls its value, "" = a switch
  std::string_view help;
};

class CommandLine {
 public:
  // Raises error 5 for an option that is not in `options`, one without its value, and anything that is no option.
  CommandLine(std::span<const char* const> arguments, std::span<const Option> options);

  bool Has(std::string_view name) const { return values_.contains(name); }

  // The option's value, nothing where it was not given; error 5 then for one that is needed.
  std::optional<std::string> Text(std::string_view name) const;
  std::string Required(std::string_view name) const;

  // The same as a number or a date ("2026-11-20T12:00:00" or "2026-11-20"). Error 5 when it is none or outside
  // `least` to `most`.
  std::optional<std::int64_t> Number(std::string_view name, std::int64_t least, std::int64_t most) const;
  std::optional<DateValue> Date(std::string_view name) const;

 private:
  std::map<std::string, std::string, std::less<>> values_;
};

// A tool's usage: a first line, then a line for each option.
std::string Usage(std::string_view summary, std::span<const Option> options);

// What `main` of a tool does: reads the command line (with --help added), runs `work`, and turns errors into a line on
// the error output. `arguments` begin with the program's name. Returns the exit code: 0, or 1 for any error.
int RunTool(std::span<const char* const> arguments, std::string_view summary, std::span<const Option> options,
            const std::function<void(const CommandLine&)>& work);

}  // namespace quorvel::tools
