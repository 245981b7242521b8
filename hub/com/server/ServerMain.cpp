// clRecordHubServer.exe: a process of its own for the classes of clRecordHub.dll. COM starts it.
#include <windows.h>

extern "C" int ServeRecordHub();

int WINAPI wWinMain(HINSTANCE /*instance*/, HINSTANCE /*previous*/, LPWSTR /*commandLine*/, int /*show*/) {
  return ServeRecordHub();
}
