// What the standard platform asks of the system itself, on Windows by other calls than elsewhere.
#include "platform/StandardPlatform.h"

#ifdef _WIN32
#include <windows.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <type_traits>

#include "platform/Error.h"
#include "platform/windows/ComServer.h"
#else
#include <pwd.h>
#include <unistd.h>

#include <cstdlib>
#include <system_error>
#endif

#include <array>

namespace quorvel {

#ifdef _WIN32
namespace {

std::string Recoded(std::string_view text, UINT from, UINT to) {
  const auto size = static_cast<int>(text.size());
  std::wstring wide(text.size(), L'\0');
  wide.resize(static_cast<std::size_t>(MultiByteToWideChar(from, 0, text.data(), size, wide.data(), size)));
  const auto wideSize = static_cast<int>(wide.size());
  const int needed = WideCharToMultiByte(to, 0, wide.data(), wideSize, nullptr, 0, nullptr, nullptr);
  std::string recoded(static_cast<std::size_t>(needed), '\0');
  WideCharToMultiByte(to, 0, wide.data(), wideSize, recoded.data(), needed, nullptr, nullptr);
  return recoded;
}

// Where a call writes a name; `length` is the buffer's going in and the name's coming out.
struct NameBuffer {
  std::array<char, 256> characters{};
  DWORD length = 256;

  std::string Name() const {
    return Recoded({characters.data(), std::min<std::size_t>(length, characters.size())}, CP_ACP, CP_UTF8);
  }
};

struct ModuleRelease {
  void operator()(HMODULE module) const { FreeLibrary(module); }
};
using Module = std::unique_ptr<std::remove_pointer_t<HMODULE>, ModuleRelease>;

using UserAndDomainCall = BOOL(WINAPI*)(char* user, DWORD* userLength, char* domain, DWORD* domainLength);

// From the folder of the program or of the system, or else from beside this library where a host keeps it elsewhere.
// Not from the working folder, where anybody may have put a library of that name.
Module LoadAccountLibrary() {
  constexpr const wchar_t* kName = L"OstranaAccount.dll";
  Module library(LoadLibraryExW(kName, nullptr, LOAD_LIBRARY_SEARCH_DEFAULT_DIRS));
  if (library) return library;
  const std::filesystem::path beside = std::filesystem::path(windows::OwnModulePath()).replace_filename(kName);
  return Module(LoadLibraryExW(beside.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH));
}

// Null when the library has no such call.
UserAndDomainCall UserAndDomainCallOf(const Module& library) {
  const FARPROC found = GetProcAddress(library.get(), "GetCurrentUserAndDomain");
  return reinterpret_cast<UserAndDomainCall>(reinterpret_cast<void*>(found));
}

}  // namespace

std::filesystem::path StandardPlatform::TemporaryFolder() const {
  return std::filesystem::temp_directory_path();
}

std::string StandardPlatform::ToFileText(std::string_view text) const {
  return Recoded(text, CP_UTF8, CP_ACP);
}

SystemVersion StandardPlatform::OperatingSystem() const {
  OSVERSIONINFOA record{};
  static_assert(sizeof(record) == 148, "the size by which the call knows this record");
  record.dwOSVersionInfoSize = sizeof(record);
  if (GetVersionExA(&record) == 0) {
    throw Error(SystemError::kInvalidCall, "GetVersionEx failed with system error " + std::to_string(GetLastError()));
  }
  const std::string_view servicePack(record.szCSDVersion, std::size(record.szCSDVersion));
  return {static_cast<SystemPlatform>(record.dwPlatformId), record.dwMajorVersion, record.dwMinorVersion,
          record.dwBuildNumber, Recoded(servicePack.substr(0, servicePack.find('\0')), CP_ACP, CP_UTF8)};
}

std::optional<Account> StandardPlatform::CurrentAccount() const {
  const Module library = LoadAccountLibrary();
  const UserAndDomainCall getUserAndDomain = library ? UserAndDomainCallOf(library) : nullptr;
  NameBuffer user;
  NameBuffer domain;
  if (getUserAndDomain == nullptr) return std::nullopt;
  if (getUserAndDomain(user.characters.data(), &user.length, domain.characters.data(), &domain.length) == 0) {
    return std::nullopt;
  }
  return Account{domain.Name(), user.Name()};
}

std::optional<std::string> StandardPlatform::CurrentUser() const {
  NameBuffer user;
  if (GetUserNameA(user.characters.data(), &user.length) == 0) return std::nullopt;
  --user.length;  // this call counts the NUL that ends the name
  return user.Name();
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

SystemVersion StandardPlatform::OperatingSystem() const {
  return {};
}

std::optional<Account> StandardPlatform::CurrentAccount() const {
  std::array<char, 256> host{};
  const std::optional<std::string> user = CurrentUser();
  if (!user || gethostname(host.data(), host.size() - 1) != 0) return std::nullopt;
  return Account{host.data(), *user};
}

std::optional<std::string> StandardPlatform::CurrentUser() const {
  std::array<char, 4096> buffer{};
  passwd entry{};
  passwd* found = nullptr;
  if (getpwuid_r(geteuid(), &entry, buffer.data(), buffer.size(), &found) != 0 || found == nullptr) return std::nullopt;
  return entry.pw_name;
}
#endif

}  // namespace quorvel
