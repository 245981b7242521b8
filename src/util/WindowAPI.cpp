#include "util/WindowAPI.h"

#include <algorithm>
#include <iterator>
#include <optional>
#include <string_view>

#include "datasource/ErrorsProcess.h"

namespace quorvel::util {
namespace {

using datasource::Propagating;

struct Family {
  SystemPlatform platform;
  std::int32_t code;
};

constexpr std::int32_t kNtFamilyCode = 500;
constexpr Family kFamilies[] = {
    {SystemPlatform::kWin32s, 100},
    {SystemPlatform::kWindows9x, 200},
    {SystemPlatform::kWindowsNt, kNtFamilyCode},
};

constexpr std::nullopt_t kAny = std::nullopt;

struct System {
  SystemPlatform platform;
  std::optional<std::uint32_t> majorVersion;
  std::optional<std::uint32_t> minorVersion;
  std::optional<char> servicePack;  // how its text begins
  std::int32_t code;
  std::string_view name;
};

// The first one that fits counts.
constexpr System kSystems[] = {
    {SystemPlatform::kWin32s, kAny, kAny, kAny, 120, "Windows"},
    {SystemPlatform::kWindows9x, kAny, 0, 'C', 230, "Windows 95 OSR2"},
    {SystemPlatform::kWindows9x, kAny, 0, kAny, 220, "Windows 95"},
    {SystemPlatform::kWindows9x, kAny, 10, 'A', 250, "Windows 98 Se"},
    {SystemPlatform::kWindows9x, kAny, 10, kAny, 240, "Windows 98"},
    {SystemPlatform::kWindows9x, kAny, 90, kAny, 260, "Windows Millennium"},
    {SystemPlatform::kWindowsNt, 3, kAny, kAny, 520, "Windows NT"},
    {SystemPlatform::kWindowsNt, 4, kAny, kAny, 540, "Windows NT"},
    {SystemPlatform::kWindowsNt, 5, 0, kAny, 600, "Windows 2000"},
    {SystemPlatform::kWindowsNt, 5, 1, kAny, 800, "Windows XP"},
    {SystemPlatform::kWindowsNt, 5, kAny, kAny, 1000, "Windows 2003"},
    {SystemPlatform::kWindowsNt, 6, kAny, kAny, 1200, "Windows Vista"},
};

template <class Value>
constexpr bool Fits(const std::optional<Value>& wanted, Value value) {
  return !wanted || *wanted == value;
}

bool Fits(const System& system, const SystemVersion& version) {
  return system.platform == version.platform && Fits(system.majorVersion, version.majorVersion) &&
         Fits(system.minorVersion, version.minorVersion) &&
         Fits(system.servicePack, version.servicePack.empty() ? '\0' : version.servicePack.front());
}

std::string FullName(const System& system, const SystemVersion& version) {
  const std::string numbers = std::to_string(version.majorVersion) + "." + std::to_string(version.minorVersion);
  std::string name(system.name);
  switch (system.platform) {
    case SystemPlatform::kWin32s:
      return name + numbers;
    case SystemPlatform::kWindows9x:
      return name;
    case SystemPlatform::kWindowsNt:
      return name + " " + numbers + ", BuildNumber " + std::to_string(version.build) + " : " + version.servicePack;
  }
  return name;
}

std::int32_t FamilyCode(SystemPlatform platform) {
  const auto* const found = std::ranges::find(kFamilies, platform, &Family::platform);
  return found == std::end(kFamilies) ? 0 : found->code;
}

}  // namespace

OSInfos OSInfosOf(const SystemVersion& version, bool familyOnly) {
  if (familyOnly) return {FamilyCode(version.platform), ""};
  const auto* const found = std::ranges::find_if(kSystems, [&](const System& system) { return Fits(system, version); });
  return found == std::end(kSystems) ? OSInfos{} : OSInfos{found->code, FullName(*found, version)};
}

std::int32_t GetOSInfos(const Platform& platform, bool familyOnly) {
  return Propagating("Ostrana: WindowAPI.GetOSInfos",
                     [&] { return OSInfosOf(platform.OperatingSystem(), familyOnly).code; });
}

bool IsOsNT(const Platform& platform) {
  // Equal, not "at least": the code of the family is 500 for all its versions. Callers rely on it for those that came
  // later too, which have no code of their own.
  return Propagating("Ostrana: WindowAPI.IsOsNT", [&] { return GetOSInfos(platform, true) == kNtFamilyCode; });
}

std::string VBGetUserNameEx(const Platform& platform) {
  return Propagating("Ostrana: WindowAPI.VBGetUserNameEx", [&] {
    if (IsOsNT(platform)) {
      const std::optional<Account> account = platform.CurrentAccount();
      return account ? account->domain + "\\" + account->user : std::string();
    }
    // The system's length of this name counts the NUL that ends it, and the text has always been that long: callers
    // expect it, and cut it where they keep the name.
    const std::optional<std::string> user = platform.CurrentUser();
    return user ? *user + '\0' : std::string();
  });
}

}  // namespace quorvel::util
