// What a library of COM classes writes into the registry.
#include <array>
#include <memory>
#include <string>
#include <tuple>
#include <type_traits>

#include "platform/windows/ComPtr.h"
#include "platform/windows/ComServer.h"
#include "platform/windows/TypeDispatch.h"

// The compiler's own headers leave these two out.
extern "C" {
HRESULT STDAPICALLTYPE RegisterTypeLibForUser(ITypeLib*, OLECHAR*, OLECHAR*);
HRESULT STDAPICALLTYPE UnRegisterTypeLibForUser(REFGUID, WORD, WORD, LCID, SYSKIND);
}

namespace quorvel::windows {
namespace {

constexpr const wchar_t* kClasses = L"Software\\Classes";

// The category of classes that are controls; the same says the key "Control", which older hosts ask for.
constexpr GUID kControlCategory = {0x40FC6ED4, 0x2438, 0x11CF, {0xA3, 0xDB, 0x08, 0x00, 0x36, 0xF1, 0x25, 0x02}};

struct CloseKey {
  void operator()(HKEY key) const noexcept { RegCloseKey(key); }
};
using OwnedKey = std::unique_ptr<std::remove_pointer_t<HKEY>, CloseKey>;

// A failed write ends a registration, whose caller gets the result.
struct RegistrationFailure {
  HRESULT result;
};

void RequireWritten(LSTATUS status) {
  if (status != ERROR_SUCCESS) throw RegistrationFailure{HRESULT_FROM_WIN32(static_cast<unsigned long>(status))};
}

std::wstring TextOf(const GUID& identifier) {
  std::array<wchar_t, 40> text{};
  StringFromGUID2(identifier, text.data(), static_cast<int>(text.size()));
  return text.data();
}

// The keys of one of the two places where classes are looked for: the machine's and the user's.
class ClassKeys {
 public:
  explicit ClassKeys(HKEY hive) : hive_(hive) {}

  // `name` empty: the value that has none.
  void Write(const std::wstring& key, const wchar_t* name, const std::wstring& value) const {
    HKEY made = nullptr;
    const std::wstring path = std::wstring(kClasses) + L"\\" + key;
    RequireWritten(RegCreateKeyExW(hive_, path.c_str(), 0, nullptr, 0, KEY_WRITE, nullptr, &made, nullptr));
    const OwnedKey owner(made);
    const auto bytes = static_cast<DWORD>((value.size() + 1) * sizeof(wchar_t));
    RequireWritten(RegSetValueExW(made, name, 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()), bytes));
  }
  void Write(const std::wstring& key, const std::wstring& value) const { Write(key, nullptr, value); }

  // With all below it; one that is not there is no failure.
  LSTATUS Delete(const std::wstring& key) const {
    HKEY classes = nullptr;
    const LSTATUS opened = RegOpenKeyExW(hive_, kClasses, 0, KEY_READ | KEY_WRITE | DELETE, &classes);
    if (opened != ERROR_SUCCESS) return opened == ERROR_FILE_NOT_FOUND ? ERROR_SUCCESS : opened;
    const OwnedKey owner(classes);
    HKEY there = nullptr;
    if (RegOpenKeyExW(classes, key.c_str(), 0, KEY_READ, &there) == ERROR_FILE_NOT_FOUND) return ERROR_SUCCESS;
    RegCloseKey(there);
    return RegDeleteTreeW(classes, key.c_str());
  }

 private:
  HKEY hive_;
};

void WriteControl(const ClassKeys& keys, const ComClass& offered, const std::wstring& key) {
  keys.Write(key + L"\\Control", L"");
  keys.Write(key + L"\\Implemented Categories\\" + TextOf(kControlCategory), L"");
  keys.Write(key + L"\\MiscStatus", L"0");
  keys.Write(key + L"\\MiscStatus\\1", std::to_wstring(offered.miscellaneousStatus));
  if (offered.toolboxPicture == 0) return;
  keys.Write(key + L"\\ToolboxBitmap32", OwnModulePath() + L", " + std::to_wstring(offered.toolboxPicture));
}

// The command that starts a program beside the library.
std::wstring CommandOf(const wchar_t* program) {
  const std::wstring library = OwnModulePath();
  return L"\"" + library.substr(0, library.rfind(L'\\') + 1) + program + L"\"";
}

void WriteClass(const ClassKeys& keys, const ComLibrary& library, const ComClass& offered) {
  const std::wstring identifier = TextOf(offered.identifier);
  const std::wstring key = L"CLSID\\" + identifier;
  keys.Write(key, offered.description);
  keys.Write(key + L"\\InprocServer32", OwnModulePath());
  keys.Write(key + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
  keys.Write(key + L"\\ProgID", offered.programName);
  keys.Write(key + L"\\VersionIndependentProgID", offered.generalProgramName);
  keys.Write(key + L"\\TypeLib", TextOf(library.typeLibrary));
  keys.Write(key + L"\\Version", std::to_wstring(library.majorVersion) + L"." + std::to_wstring(library.minorVersion));
  keys.Write(key + L"\\Programmable", L"");
  if (library.application) keys.Write(key, L"AppID", TextOf(*library.application));
  if (library.localServer != nullptr) keys.Write(key + L"\\LocalServer32", CommandOf(library.localServer));
  if (offered.isControl) WriteControl(keys, offered, key);

  for (const wchar_t* const name : {offered.programName, offered.generalProgramName}) {
    keys.Write(name, offered.description);
    keys.Write(std::wstring(name) + L"\\CLSID", identifier);
  }
  keys.Write(std::wstring(offered.generalProgramName) + L"\\CurVer", offered.programName);
}

void WriteClasses(HKEY hive, const ComLibrary& library) {
  const ClassKeys keys(hive);
  for (const ComClass& offered : library.classes) WriteClass(keys, library, offered);
  if (!library.application) return;
  const std::wstring application = L"AppID\\" + TextOf(*library.application);
  keys.Write(application, library.applicationName);
  // Without a value the system's own surrogate process holds the classes.
  keys.Write(application, L"DllSurrogate", L"");
}

LSTATUS DeleteClasses(HKEY hive, const ComLibrary& library) {
  const ClassKeys keys(hive);
  LSTATUS failure = ERROR_SUCCESS;
  const auto remove = [&](const std::wstring& key) {
    const LSTATUS status = keys.Delete(key);
    if (status != ERROR_SUCCESS) failure = status;
  };
  for (const ComClass& offered : library.classes) {
    remove(L"CLSID\\" + TextOf(offered.identifier));
    remove(offered.programName);
    remove(offered.generalProgramName);
  }
  if (library.application) remove(L"AppID\\" + TextOf(*library.application));
  return failure;
}

using RegisterTypes = HRESULT(STDAPICALLTYPE*)(ITypeLib*, OLECHAR*, OLECHAR*);

void RegisterTypeLibraryBy(RegisterTypes call) {
  ComPtr<ITypeLib> types;
  std::wstring path = OwnModulePath();
  HRESULT result = LoadOwnTypeLibrary(types.Put());
  if (SUCCEEDED(result)) result = call(types.get(), path.data(), nullptr);
  if (FAILED(result)) throw RegistrationFailure{result};
}

void RegisterIn(HKEY hive, const ComLibrary& library) {
  try {
    WriteClasses(hive, library);
    RegisterTypeLibraryBy(hive == HKEY_CURRENT_USER ? RegisterTypeLibForUser : RegisterTypeLib);
  } catch (...) {
    DeleteClasses(hive, library);
    throw;
  }
}

constexpr SYSKIND kOwnSystem = sizeof(void*) == 8 ? SYS_WIN64 : SYS_WIN32;

}  // namespace

HRESULT RegisterServer(const ComLibrary& library) noexcept {
  try {
    try {
      RegisterIn(HKEY_LOCAL_MACHINE, library);
    } catch (const RegistrationFailure&) {
      RegisterIn(HKEY_CURRENT_USER, library);
    }
    return S_OK;
  } catch (const RegistrationFailure& failure) {
    return failure.result;
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

// A user who may not change the machine's part has taken away all that is his own.
HRESULT UnregisterServer(const ComLibrary& library) noexcept {
  try {
    const auto [types, major, minor] = std::tuple(library.typeLibrary, library.majorVersion, library.minorVersion);
    UnRegisterTypeLibForUser(types, major, minor, LOCALE_NEUTRAL, kOwnSystem);
    UnRegisterTypeLib(types, major, minor, LOCALE_NEUTRAL, kOwnSystem);
    const LSTATUS ofUser = DeleteClasses(HKEY_CURRENT_USER, library);
    const LSTATUS ofMachine = DeleteClasses(HKEY_LOCAL_MACHINE, library);
    const LSTATUS failure = ofMachine == ERROR_ACCESS_DENIED ? ofUser : ofMachine;
    return failure == ERROR_SUCCESS ? S_OK : HRESULT_FROM_WIN32(static_cast<unsigned long>(failure));
  } catch (...) {
    return E_OUTOFMEMORY;
  }
}

}  // namespace quorvel::windows
