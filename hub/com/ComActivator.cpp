#include "hub_com/ComActivator.h"

#include <objbase.h>
#include <windows.h>

#include <array>
#include <string>

#include "platform/windows/WideText.h"

namespace quorvel::hub_com {
namespace {

bool SameText(const std::wstring& one, const std::wstring& other) {
  return CompareStringOrdinal(one.c_str(), -1, other.c_str(), -1, TRUE) == CSTR_EQUAL;
}

bool IsNameOfThisMachine(const std::wstring& server) {
  constexpr COMPUTER_NAME_FORMAT kKinds[] = {ComputerNameNetBIOS, ComputerNameDnsHostname,
                                             ComputerNameDnsFullyQualified};
  for (const COMPUTER_NAME_FORMAT kind : kKinds) {
    DWORD size = 0;
    GetComputerNameExW(kind, nullptr, &size);
    std::wstring name(size, L'\0');
    if (GetComputerNameExW(kind, name.data(), &size) && SameText(server, name.substr(0, size))) return true;
  }
  return false;
}

class SystemActivator final : public ComActivator {
 public:
  explicit SystemActivator(DWORD localContext) : localContext_(localContext) {}

  HRESULT Create(std::string_view classIdentifier, std::string_view serverName, REFIID identity,
                 windows::ComPtr<IDispatch>& object) override {
    object = {};
    CLSID identifier;
    const HRESULT known = CLSIDFromProgID(windows::ToWide(classIdentifier).c_str(), &identifier);
    if (FAILED(known)) return known;

    std::wstring server = windows::ToWide(serverName);
    const bool local = server.empty() || IsNameOfThisMachine(server);
    COSERVERINFO where{};
    where.pwszName = server.data();
    // Both in one question, since each is a way over the network.
    std::array<MULTI_QI, 2> wanted{MULTI_QI{&identity, nullptr, S_OK}, MULTI_QI{&IID_IDispatch, nullptr, S_OK}};
    const HRESULT created =
        CoCreateInstanceEx(identifier, nullptr, local ? localContext_ : DWORD{CLSCTX_REMOTE_SERVER},
                           local ? nullptr : &where, static_cast<DWORD>(wanted.size()), wanted.data());
    if (FAILED(created)) return created;
    const auto own = windows::ComPtr<IUnknown>::Adopt(wanted[0].pItf);
    const auto late = windows::ComPtr<IUnknown>::Adopt(wanted[1].pItf);
    if (FAILED(wanted[0].hr)) return wanted[0].hr;
    if (FAILED(wanted[1].hr)) return wanted[1].hr;
    object = late.As<IDispatch>();
    return object ? S_OK : E_NOINTERFACE;
  }

 private:
  DWORD localContext_;
};

}  // namespace

std::shared_ptr<ComActivator> MakeSystemActivator(DWORD localContext) {
  return std::make_shared<SystemActivator>(localContext);
}

}  // namespace quorvel::hub_com
