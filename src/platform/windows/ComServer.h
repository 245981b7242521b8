// What every library of COM classes consists of: its classes, how many of its objects live, its class factories, and
// what it writes into the registry.
#pragma once

#include <unknwn.h>
#include <windows.h>

#include <optional>
#include <span>
#include <string>

namespace quorvel::windows {

// A class that a library offers. Texts must live as long as the library.
struct ComClass {
  GUID identifier;
  const wchar_t* programName;         // "Quorvel.ucProcessLog.1"
  const wchar_t* generalProgramName;  // the same without its version
  const wchar_t* description;
  // A new object that is asked for this interface; what QueryInterface answers. Must not raise.
  HRESULT (*create)(REFIID interfaceWanted, void** object) noexcept;
  // A control that hosts can place on a form, with what it says of itself (OLEMISC) and the number of its picture for
  // toolboxes among the library's resources.
  bool isControl = false;
  DWORD miscellaneousStatus = 0;
  int toolboxPicture = 0;
};

struct ComLibrary {
  GUID typeLibrary;
  unsigned short majorVersion;
  unsigned short minorVersion;
  std::span<const ComClass> classes;
  // The application under which a surrogate process can hold the classes; nothing = they live in their callers alone.
  std::optional<GUID> application = {};
  const wchar_t* applicationName = L"";
  // The program beside the library that holds the classes in a process of its own; nullptr = there is none.
  const wchar_t* localServer = nullptr;
};

// Each object of the library, and each lock that a caller put on it, holds one: the library stays loaded so long.
class LibraryUse {
 public:
  LibraryUse() noexcept;
  ~LibraryUse();
  LibraryUse(const LibraryUse&) = delete;
  LibraryUse& operator=(const LibraryUse&) = delete;
};

// How many there are.
long LibraryUses() noexcept;

// The library that this code is linked into, and its file.
HINSTANCE OwnModule() noexcept;
std::wstring OwnModulePath();

// What the four functions that a library exports do. None of them raises.
HRESULT GetClassObject(const ComLibrary& library, REFCLSID classWanted, REFIID interfaceWanted, void** object) noexcept;
// S_OK when nothing of the library is in use, else S_FALSE.
HRESULT CanUnloadNow() noexcept;
// For all users of the machine; for the present one alone where the system refuses that. A failure leaves nothing
// behind.
HRESULT RegisterServer(const ComLibrary& library) noexcept;
// Takes away what is registered for the machine and for the present user; nothing there is no failure.
HRESULT UnregisterServer(const ComLibrary& library) noexcept;

}  // namespace quorvel::windows
