#include "platform/StandardPlatform.h"

#include <array>
#include <chrono>
#include <cstdlib>
#include <ctime>
#include <system_error>

#include "platform/Error.h"

#ifdef _WIN32
#include <windows.h>
// The system header turns these names of ours into macros.
#undef DeleteFile
#else
#include <pwd.h>
#include <unistd.h>
#endif

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

#ifdef _WIN32
std::filesystem::path StandardPlatform::TemporaryFolder() const {
  return std::filesystem::temp_directory_path();
}

std::string StandardPlatform::ToFileText(std::string_view text) const {
  const auto size = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');
  wide.resize(static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), size)));
  const auto wideSize = static_cast<int>(wide.size());
  const int needed = WideCharToMultiByte(CP_ACP, 0, wide.data(), wideSize, nullptr, 0, nullptr, nullptr);
  std::string ansi(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(CP_ACP, 0, wide.data(), wideSize, ansi.data(), needed, nullptr, nullptr);
  return ansi;
}
#else
std::filesystem::path StandardPlatform::TemporaryFolder() const {
  const char* const folder = std::getenv("TMPDIR");
  std::error_code ignored;
  if (folder != nullptr && std::filesystem::is_directory(folder, ignored)) return folder;
  return "/tmp";
}

std::string StandardPlatform::ToFileText(std::string_view text) const {
  return std::string(text);
}
#endif

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

SystemFamily StandardPlatform::OperatingSystem() const {
  return SystemFamily::kWindowsNt;
}

#ifdef _WIN32
std::string StandardPlatform::CurrentAccount() const {
  std::array<char, 256> user{};
  auto length = static_cast<DWORD>(user.size());
  return GetUserNameA(user.data(), &length) != 0 ? std::string(user.data()) : std::string();
}
#else
std::string StandardPlatform::CurrentAccount() const {
  std::array<char, 256> host{};
  std::array<char, 4096> buffer{};
  passwd entry{};
  passwd* found = nullptr;
  if (gethostname(host.data(), host.size() - 1) != 0) return {};
  if (getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr) return {};
  return std::string(host.data()) + "\\" + entry.pw_name;
}
#endif

}  // namespace quorvel
