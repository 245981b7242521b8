#include "tools/LogFiles.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstring>
#include <memory>
#include <optional>
#include <system_error>
#include <utility>

namespace quorvel::tools {
namespace {

struct CloseGz {
  void operator()(gzFile_s* file) const { gzclose_r(file); }
};
using GzFile = std::unique_ptr<gzFile_s, CloseGz>;

// What is lost in front of a damaged place is at most twice this.
constexpr unsigned kChunk = 4096;

// The age that a file's name tells: 0 for NAME itself, n for NAME.n and NAME.n.gz, nothing for other names.
std::optional<int> AgeOf(std::string_view fileName, std::string_view name) {
  if (!fileName.starts_with(name)) return std::nullopt;
  std::string_view rest = fileName.substr(name.size());
  if (rest.empty()) return 0;
  if (rest.ends_with(".gz")) rest.remove_suffix(3);
  int age = 0;
  if (rest.size() < 2 || rest.front() != '.') return std::nullopt;
  const auto [stop, error] = std::from_chars(rest.data() + 1, rest.data() + rest.size(), age);
  if (error != std::errc() || stop != rest.data() + rest.size() || age < 0) return std::nullopt;
  return age;
}

std::vector<std::filesystem::path> FilesOldestFirst(const std::filesystem::path& folder, std::string_view name,
                                                    std::error_code& error) {
  std::vector<std::pair<int, std::filesystem::path>> found;
  for (std::filesystem::directory_iterator entry(folder, error), end; !error && entry != end; entry.increment(error)) {
    const std::optional<int> age = AgeOf(entry->path().filename().string(), name);
    if (age) found.emplace_back(-*age, entry->path());
  }
  std::ranges::sort(found);
  std::vector<std::filesystem::path> paths;
  paths.reserve(found.size());
  for (auto& [age, path] : found) paths.push_back(std::move(path));
  return paths;
}

// Reads as much as there is, compressed or not. Gives what went wrong, "" for nothing.
std::string ReadAll(const std::filesystem::path& path, std::string& text) {
  errno = 0;
  const GzFile file(gzopen(path.string().c_str(), "rb"));
  if (!file) return std::strerror(errno != 0 ? errno : ENOMEM);
  gzbuffer(file.get(), kChunk);
  std::array<char, kChunk> chunk{};
  int count = 0;
  while ((count = gzread(file.get(), chunk.data(), kChunk)) > 0)
    text.append(chunk.data(), static_cast<std::size_t>(count));
  int code = Z_OK;
  const char* const message = gzerror(file.get(), &code);
  if (code == Z_ERRNO) return std::strerror(errno);
  return code == Z_OK || code == Z_STREAM_END ? "" : message;
}

std::vector<std::string> SplitLines(std::string_view text, bool whole) {
  std::vector<std::string> lines;
  while (!text.empty()) {
    const std::size_t end = text.find('\n');
    if (end == std::string_view::npos && !whole) break;
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
  }
  return lines;
}

}  // namespace

std::vector<LogFile> ReadLogFiles(const std::filesystem::path& folder, std::string_view name) {
  std::vector<LogFile> files;
  std::error_code error;
  std::vector<std::filesystem::path> paths = FilesOldestFirst(folder, name, error);
  if (error && error != std::errc::no_such_file_or_directory) files.push_back({folder, {}, error.message()});
  for (std::filesystem::path& path : paths) {
    std::string text;
    std::string problem = ReadAll(path, text);
    files.push_back({std::move(path), SplitLines(text, problem.empty()), std::move(problem)});
  }
  return files;
}

}  // namespace quorvel::tools
