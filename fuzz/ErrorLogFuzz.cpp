// The error log: whatever file it finds, a record goes to its end, and what a trim leaves is the end of the old log.
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

#include "datasource/ErrorLog.h"
#include "fuzz/Check.h"
#include "platform/StandardPlatform.h"
#include "tests/support/TemporaryFolder.h"

namespace quorvel::fuzz {
namespace {

// Temporary files lie in a folder of its own; a log asks for nothing else.
class LogPlatform final : public StandardPlatform {
 public:
  void ShowMessage(std::string_view, std::string_view) override {}
  void SetMousePointer(MousePointer) override {}
  void ClearClipboard() override {}
  void SetClipboardText(std::string_view) override {}
  void OpenFile(const std::filesystem::path&) override {}
  void OpenFileWith(const std::filesystem::path&) override {}
  void SetHostStatusText(std::string_view) override {}
  DateValue Now() const override { return 46346.5; }
  std::filesystem::path TemporaryFolder() const override { return folder_.path(); }

 private:
  test::TemporaryFolder folder_;
};

std::string Read(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), {}};
}

const std::string& Header() {
  static const std::string header = "100,30\r\n" + std::string(50, '-') + "\r\n";
  return header;
}

// Lines end at a carriage return, with or without a line feed behind it; a trim writes both.
std::string WithLineEnds(std::string_view text) {
  std::string out;
  for (std::size_t i = 0; i < text.size(); ++i) {
    out.push_back(text[i]);
    if (text[i] == '\r' && (i + 1 == text.size() || text[i + 1] != '\n')) out.push_back('\n');
  }
  return out;
}

void GrowsByOneRecord(std::string_view old, std::string_view description) {
  static LogPlatform platform;
  const std::filesystem::path file = datasource::ErrorLogFile(platform);
  std::ofstream(file, std::ios::binary) << old;
  datasource::WriteErrorLog(platform, -5, "Fuzz", description, "E", "");
  const std::string log = Read(file);
  const std::string record =
      "ErrorDate        : 2026-11-20 12:00:00\r\nErrorType        : E\r\n"
      "ErrorCode        : 2147220987\r\nErrorSystem      : 0\r\nErrorText        : \r\n"
      "ErrorSource      : \r\n\tFuzz\r\nErrorDescription : " +
      std::string(description) + "\r\n" + std::string(50, '-') + "\r\n";
  Check(log.ends_with(record), "the record is the end of the log");
  const std::string_view before = std::string_view(log).substr(0, log.size() - record.size());
  if (before != old) {
    Check(before.starts_with(Header()), "a trimmed log begins with the default header");
    Check(WithLineEnds(std::string(old) + "\r").find(before.substr(Header().size())) != std::string::npos,
          "and what follows stood in the old one");
  }
  Check(!std::filesystem::exists(file.string() + ".tmp"), "nothing is left beside it");
}

}  // namespace
}  // namespace quorvel::fuzz

// The first line is what went wrong, the rest is the log before.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace quorvel::fuzz;  // NOLINT(google-build-using-namespace): the target is part of it
  std::string_view text = TextOf(data, size);
  const std::string_view description = TakeLine(text);
  GrowsByOneRecord(text, description);
  return 0;
}
