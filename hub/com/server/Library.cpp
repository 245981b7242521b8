// What clRecordHub.dll exports.
#include "hub_com/server/Classes.h"
#include "hub_com/server/Serving.h"

using namespace quorvel;

STDAPI DllGetClassObject(REFCLSID classWanted, REFIID interfaceWanted, void** object) {
  return windows::GetClassObject(hub_com::Library(), classWanted, interfaceWanted, object);
}

STDAPI DllCanUnloadNow() {
  return windows::CanUnloadNow();
}

STDAPI DllRegisterServer() {
  return windows::RegisterServer(hub_com::Library());
}

STDAPI DllUnregisterServer() {
  return windows::UnregisterServer(hub_com::Library());
}

// Offers the classes to other processes until nobody uses them any more. The exit code of the calling process.
extern "C" int ServeRecordHub() {
  return hub_com::Serve(hub_com::Library());
}
