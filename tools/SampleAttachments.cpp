#include "tools/SampleAttachments.h"

#include <cstddef>
#include <fstream>
#include <span>
#include <string_view>

#include "platform/Error.h"

namespace quorvel::tools {
namespace {

constexpr std::string_view kNoFolder = "D:\\log\\";

// The first ones are there.
constexpr std::string_view kFiles[] = {
    "night report.txt", "rapport d'été.txt", "routers.log",      "lines.log",
    "queues.txt",       "rejects.txt",       "night report.old", "dump (1).txt",
};
constexpr std::size_t kThere = 5;

void WriteFile(const std::filesystem::path& file, std::string_view name) {
  std::ofstream stream(file, std::ios::binary);
  stream << name << "\r\n\r\nWritten with a sample history.\r\n";
  if (!stream.flush()) throw Error(SystemError::kPathAccess, "\"" + file.string() + "\" cannot be written");
}

std::u8string Utf8(std::string_view text) {
  return {text.begin(), text.end()};
}

}  // namespace

SampleAttachments::SampleAttachments(const std::filesystem::path& folder) : prefix_(kNoFolder) {
  if (folder.empty()) return;
  const std::filesystem::path absolute = std::filesystem::absolute(folder) / "";
  try {
    std::filesystem::create_directories(absolute);
  } catch (const std::filesystem::filesystem_error& error) {
    throw Error(SystemError::kPathAccess, error.what());
  }
  for (const std::string_view name : std::span(kFiles).first(kThere)) WriteFile(absolute / Utf8(name), name);
  const std::u8string prefix = absolute.u8string();
  prefix_.assign(prefix.begin(), prefix.end());
}

std::string SampleAttachments::Any(SampleRandom& random) const {
  return prefix_ + std::string(AnyOf(kFiles, random));
}

}  // namespace quorvel::tools
