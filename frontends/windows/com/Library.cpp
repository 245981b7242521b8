// What the library exports.
#include <windows.h>
// Behind it, identifiers that a header declares are made here.
#include <initguid.h>

#include "Quorvel.h"
#include "com/ControlObject.h"
#include "platform/windows/ComServer.h"

namespace {

namespace com = quorvel::windows;

constexpr int kToolboxPicture = 101;  // in Quorvel.rc

const com::ComLibrary& Library() {
  static const com::ComClass kClasses[] = {{
      .identifier = __uuidof(ucProcessLog),
      .programName = L"Quorvel.ucProcessLog.1",
      .generalProgramName = L"Quorvel.ucProcessLog",
      .description = L"Quorvel history viewer",
      .create = com::ControlObject::Create,
      .isControl = true,
      .miscellaneousStatus = com::ControlObject::kMiscellaneousStatus,
      .toolboxPicture = kToolboxPicture,
  }};
  static const com::ComLibrary kLibrary{LIBID_Quorvel, 1, 0, kClasses};
  return kLibrary;
}

}  // namespace

STDAPI DllGetClassObject(REFCLSID classWanted, REFIID interfaceWanted, void** object) {
  return com::GetClassObject(Library(), classWanted, interfaceWanted, object);
}

STDAPI DllCanUnloadNow() {
  return com::CanUnloadNow();
}

STDAPI DllRegisterServer() {
  return com::RegisterServer(Library());
}

STDAPI DllUnregisterServer() {
  return com::UnregisterServer(Library());
}
