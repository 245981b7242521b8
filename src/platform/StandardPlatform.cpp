#include "platform/StandardPlatform.h"

#include <chrono>
#include <ctime>
#include <system_error>

#include "platform/Error.h"

namespace quorvel {
namespace {

std::tm LocalTime(std::time_t time) {
  std::tm local{};
#ifdef _WIN32
  localtime_s(&local, &time);
#else
  localtime_r(&time, &local);
#endif
  return local;
}

[[noreturn]] void RaiseFileError(const std::error_code& code, const std::filesystem::path& file) {
  const auto number =
      code == std::errc::no_such_file_or_directory ? SystemError::kFileNotFound : SystemError::kPathAccess;
  throw Error(number, file.string() + ": " + code.message());
}

}  // namespace

DateValue LocalNow() {
  const std::tm local = LocalTime(std::chrono::system_clock::to_time_t(std::chrono::system_clock::now()));
  return DateFromCivil({local.tm_year + 1900, static_cast<unsigned>(local.tm_mon + 1),
                        static_cast<unsigned>(local.tm_mday), local.tm_hour, local.tm_min,
                        local.tm_sec < 60 ? local.tm_sec : 59});  // a leap second has no value of its own
}

DateValue StandardPlatform::Now() const {
  return LocalNow();
}

std::string StandardPlatform::FormatDate(DateValue date, DateFormat format) const {
  return format == DateFormat::kShortDate ? FormatFixedDate(date) : FormatFixedDateTime(date);
}

std::optional<DateValue> StandardPlatform::ParseDate(std::string_view text) const {
  return ParseFixedDate(text);
}

bool StandardPlatform::FileExists(const std::filesystem::path& file) const {
  std::error_code ignored;
  return std::filesystem::exists(file, ignored);
}

void StandardPlatform::DeleteFile(const std::filesystem::path& file) {
  std::error_code code;
  const bool removed = std::filesystem::remove(file, code);
  if (code) RaiseFileError(code, file);
  if (!removed) RaiseFileError(std::make_error_code(std::errc::no_such_file_or_directory), file);
}

void StandardPlatform::RenameFile(const std::filesystem::path& file, const std::filesystem::path& newName) {
  std::error_code code;
  std::filesystem::rename(file, newName, code);
  if (code) RaiseFileError(code, file);
}

}  // namespace quorvel
