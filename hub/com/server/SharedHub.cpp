#include "hub_com/server/SharedHub.h"

#include <windows.h>

#include <atomic>
#include <optional>
#include <string>

#include "platform/windows/WideText.h"

namespace quorvel::hub_com {
namespace {

constexpr const wchar_t* kSettings = L"Software\\Ostrana\\clRecordHub";
// Indices that Open gives lie above all numbers of settings.
constexpr std::int32_t kLastSetting = 0xFFFF;

std::optional<std::string> SettingIn(HKEY hive, const std::wstring& name) {
  DWORD bytes = 0;
  if (RegGetValueW(hive, kSettings, name.c_str(), RRF_RT_REG_SZ, nullptr, nullptr, &bytes) != ERROR_SUCCESS) return {};
  std::wstring text(bytes / sizeof(wchar_t), L'\0');
  if (RegGetValueW(hive, kSettings, name.c_str(), RRF_RT_REG_SZ, nullptr, text.data(), &bytes) != ERROR_SUCCESS) {
    return {};
  }
  return windows::FromWide(text.c_str());
}

std::optional<std::string> UrlOfSetting(std::int32_t number) {
  if (number < 1 || number > kLastSetting) return {};
  const std::wstring name = L"Connection" + std::to_wstring(number);
  const std::optional<std::string> ofUser = SettingIn(HKEY_CURRENT_USER, name);
  return ofUser ? ofUser : SettingIn(HKEY_LOCAL_MACHINE, name);
}

}  // namespace

std::shared_ptr<SharedHub> SharedHub::Get() {
  static std::mutex mutex;
  static std::weak_ptr<SharedHub> present;
  const std::lock_guard lock(mutex);
  std::shared_ptr<SharedHub> hub = present.lock();
  if (hub == nullptr) {
    hub = std::make_shared<SharedHub>();
    present = hub;
  }
  return hub;
}

std::int32_t SharedHub::Open(std::string_view url) {
  static std::atomic<std::int32_t> last = kLastSetting;
  const std::int32_t opened = hub_.OpenConnection(url);
  const std::int32_t connection = ++last;
  open_[connection] = opened;
  return connection;
}

void SharedHub::Close(std::int32_t connection) {
  const auto found = open_.find(connection);
  if (found == open_.end()) RaiseNotOpen(connection);
  hub_.CloseConnection(found->second);
  open_.erase(found);
}

std::int32_t SharedHub::IndexOf(std::int32_t connection) {
  const auto found = open_.find(connection);
  if (found != open_.end()) return found->second;
  const std::optional<std::string> url = UrlOfSetting(connection);
  if (!url) return kNotOpen;
  return open_[connection] = hub_.OpenConnection(*url);
}

void SharedHub::RaiseNotOpen(std::int32_t connection) {
  throw hub::HubError(SystemError::kInvalidCall, "Connection " + std::to_string(connection) + " is not open");
}

}  // namespace quorvel::hub_com
