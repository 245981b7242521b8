#include "datasource/ErrorLog.h"

#include <algorithm>
#include <fstream>
#include <optional>
#include <sstream>
#include <string>

#include "platform/Error.h"

namespace quorvel::datasource {
namespace {

constexpr std::string_view kFileName = "Ostrana.log";
constexpr std::string_view kHeader = "100,30";
constexpr std::size_t kSeparatorWidth = 50;

// Runs one step of the log. A step that fails is passed over and the next one is tried, since a support engineer is
// better served by half a log than by none, and an error while reporting an error has nobody to go to.
template <class Step>
void Try(Step step) noexcept {
  try {
    step();
  } catch (...) {  // NOLINT(bugprone-empty-catch): see above
  }
}

std::string Separator() {
  return std::string(kSeparatorWidth, '-');
}

void WriteLine(std::ostream& out, std::string_view line) {
  out << line << kLineEnd;
}

void WriteHeader(std::ostream& out) {
  WriteLine(out, kHeader);
  WriteLine(out, Separator());
}

// The old log, read line by line. A line ends at a carriage return, with or without a line feed behind it.
class OldLog {
 public:
  explicit OldLog(const std::filesystem::path& file) : in_(file, std::ios::binary) {
    if (!in_) throw Error(SystemError::kPathAccess, "Cannot read " + file.string());
  }

  bool AtEnd() { return in_.peek() == std::ifstream::traits_type::eof(); }

  std::optional<std::string> ReadLine() {
    if (AtEnd()) return std::nullopt;
    std::string line;
    std::getline(in_, line, '\r');
    if (!in_.eof() && in_.peek() == '\n') in_.get();
    return line;
  }

  // Takes numbers up to the next comma or line end; what is no number counts as 0.
  std::int64_t ReadNumber() {
    std::string text;
    for (int c = in_.get(); c != std::ifstream::traits_type::eof() && c != ','; c = in_.get()) {
      if (c == '\r') {
        if (in_.peek() == '\n') in_.get();
        break;
      }
      text.push_back(static_cast<char>(c));
    }
    std::int32_t number = 0;
    std::istringstream(text) >> number;
    return number;
  }

 private:
  std::ifstream in_;
};

// Passes over the oldest records: as many whole lines as make up `drop` bytes, then up to the end of that record.
void SkipOldest(OldLog& log, std::int64_t drop) {
  // Counting starts at the length of the default header line, whatever the file's own header says: logs are cut where
  // they always were.
  auto passed = static_cast<std::int64_t>(kHeader.size() + kLineEnd.size());
  while (passed < drop) {
    const std::optional<std::string> line = log.ReadLine();
    if (!line) return;
    passed += static_cast<std::int64_t>(line->size() + kLineEnd.size());
  }
  const std::string separator = Separator();
  while (const std::optional<std::string> line = log.ReadLine()) {
    if (*line == separator) return;
  }
}

// Copies what is left, except the last line: the line read last is not written, so a trim costs the log its closing
// separator. Readers of the log are used to it.
void CopyRest(OldLog& log, std::ostream& out) {
  std::optional<std::string> line = log.ReadLine();
  if (!line) return;
  do {
    WriteLine(out, *line);
    line = log.ReadLine();
  } while (line && !log.AtEnd());
}

void TrimWhenTooLong(Platform& platform, const std::filesystem::path& file) {
  std::filesystem::path shorter = file;
  shorter += ".tmp";
  bool trimmed = false;
  Try([&] {
    const auto length = static_cast<std::int64_t>(std::filesystem::file_size(file));
    OldLog log(file);
    const std::int64_t limit = log.ReadNumber() * 1024;
    // Beyond a million percent nothing is left of any log; the bound keeps the product within 64 bits.
    constexpr std::int64_t kMostPercent = 1'000'000;
    const std::int64_t percent = std::clamp(log.ReadNumber(), -kMostPercent, kMostPercent);
    if (length <= limit) return;
    SkipOldest(log, limit * percent / 100);
    std::ofstream out(shorter, std::ios::binary | std::ios::app);
    WriteHeader(out);
    CopyRest(log, out);
    out.close();
    trimmed = static_cast<bool>(out);
  });
  if (!trimmed) return;
  Try([&] { platform.DeleteFile(file); });
  Try([&] { platform.RenameFile(shorter, file); });
}

std::string Record(const Platform& platform, std::int32_t number, std::string_view source, std::string_view description,
                   std::string_view errorType, std::string_view errorText) {
  const ErrorCodes codes = SplitErrorNumber(number);
  std::ostringstream record;
  WriteLine(record, "ErrorDate        : " + platform.FormatDate(platform.Now(), DateFormat::kGeneralDate));
  WriteLine(record, "ErrorType        : " + std::string(errorType));
  WriteLine(record, "ErrorCode        : " + std::to_string(codes.application));
  WriteLine(record, "ErrorSystem      : " + std::to_string(codes.system));
  WriteLine(record, "ErrorText        : " + std::string(errorText));
  WriteLine(record, "ErrorSource      : ");
  WriteLine(record, "\t" + std::string(source));
  WriteLine(record, "ErrorDescription : " + std::string(description));
  WriteLine(record, Separator());
  return std::move(record).str();
}

}  // namespace

ErrorCodes SplitErrorNumber(std::int32_t number) {
  // Component errors are negative as signed numbers; only the unsigned value tells them from system errors.
  const std::int64_t beyondBase = std::int64_t{static_cast<std::uint32_t>(number)} - kComponentErrorBase;
  if (beyondBase > 0) return {static_cast<std::int32_t>(beyondBase), 0};
  return {0, number};
}

std::filesystem::path ErrorLogFile(const Platform& platform) {
  return platform.TemporaryFolder() / kFileName;
}

void WriteErrorLog(Platform& platform, std::int32_t number, std::string_view source, std::string_view description,
                   std::string_view errorType, std::string_view errorText) {
  Try([&] { platform.SetMousePointer(MousePointer::kHourglass); });
  Try([&] {
    const std::filesystem::path file = ErrorLogFile(platform);
    const bool existed = std::filesystem::exists(file);
    if (existed) TrimWhenTooLong(platform, file);
    std::ofstream out(file, std::ios::binary | std::ios::app);
    if (!existed) WriteHeader(out);
    out << platform.ToFileText(Record(platform, number, source, description, errorType, errorText));
  });
  Try([&] { platform.SetMousePointer(MousePointer::kDefault); });
}

}  // namespace quorvel::datasource
