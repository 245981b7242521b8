// Reads a system's log together with its older, numbered and compressed copies.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace quorvel::tools {

struct LogFile {
  std::filesystem::path path;
  std::vector<std::string> lines;  // without their ends
  std::string problem;             // why it could not be read, or not to its end; "" = read whole
};

// NAME, NAME.1, NAME.2.gz ... in the folder, oldest first. Empty when there is none; files of other endings are left
// alone. A file that breaks off keeps its whole lines. A folder that cannot be read stands for its files.
std::vector<LogFile> ReadLogFiles(const std::filesystem::path& folder, std::string_view name);

}  // namespace quorvel::tools
