// quorvel_import_apt: writes this machine's own package history to a file.
#include <unistd.h>

#include <array>
#include <iostream>
#include <optional>
#include <span>
#include <string>

#include "platform/Error.h"
#include "platform/StandardPlatform.h"
#include "tools/AptImport.h"
#include "tools/CommandLine.h"

namespace {

using quorvel::tools::AptImportOptions;
using quorvel::tools::CommandLine;
using quorvel::tools::Option;

constexpr Option kOptions[] = {
    {"output", "FILE", "the history to write (needed)"},
    {"force", "", "replace FILE if it exists"},
    {"log-dir", "FOLDER", "holds apt/history.log and dpkg.log with their older copies, default /var/log"},
    {"now", "DATE", "the present, default the machine's clock"},
};

std::string HostName() {
  std::array<char, 256> name{};
  const bool known = gethostname(name.data(), name.size() - 1) == 0 && name[0] != '\0';
  return known ? std::string(name.data()) : "localhost";
}

void Run(const CommandLine& line) {
  using quorvel::tools::Existing;
  const std::string output = line.Required("output");
  AptImportOptions options;
  options.station = HostName();
  options.logFolder = line.Text("log-dir").value_or(options.logFolder.string());
  const std::optional<quorvel::DateValue> now = line.Date("now");
  options.now = now ? *now : quorvel::LocalNow();
  const auto result =
      quorvel::tools::ImportAptHistory(options, output, line.Has("force") ? Existing::kReplace : Existing::kKeep);
  for (const std::string& message : result.messages) std::cerr << message << "\n";
  std::cout << output << ": " << Describe(result.counts) << "\n";
}

}  // namespace

int main(int argc, char** argv) {
  return quorvel::tools::RunTool(std::span<const char* const>(argv, static_cast<std::size_t>(argc)),
                                 "quorvel_import_apt --output FILE [options]\n"
                                 "Writes what apt and dpkg logged on this machine as a history.",
                                 kOptions, Run);
}
