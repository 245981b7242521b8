// quorvel_console_windows: the example host.
#include <windows.h>

#include <shellapi.h>

#include <string>
#include <vector>

#include "console_windows/Console.h"
#include "platform/windows/WideText.h"

int WINAPI wWinMain(HINSTANCE /*program*/, HINSTANCE /*previous*/, LPWSTR /*commandLine*/, int /*show*/) {
  int count = 0;
  wchar_t** const wide = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::string> arguments;
  arguments.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) arguments.push_back(quorvel::windows::FromWide(wide[i]));
  LocalFree(wide);
  return quorvel::console::RunConsole(arguments);
}
