// Clients that know the type library alone: scripts, which find the control by its registered name, and programs that
// find it by a manifest.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

#include "com/Component.h"
#include "com/ExpectedText.h"
#include "com/RecentHistory.h"
#include "platform/windows/WideText.h"

namespace quorvel::test {
namespace {

using windows::ToWide;

// What a program writes; its exit code in front when that is not 0.
std::string OutputOf(std::wstring command) {
  SECURITY_ATTRIBUTES inherited{sizeof(inherited), nullptr, TRUE};
  HANDLE read = nullptr;
  HANDLE write = nullptr;
  CreatePipe(&read, &write, &inherited, 0);
  SetHandleInformation(read, HANDLE_FLAG_INHERIT, 0);
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdOutput = start.hStdError = write;
  PROCESS_INFORMATION process{};
  const BOOL made = CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, CREATE_NO_WINDOW, nullptr, nullptr,
                                   &start, &process);
  CloseHandle(write);
  std::string text;
  char part[4096];
  for (DWORD count = 0; ReadFile(read, part, sizeof(part), &count, nullptr) != FALSE && count > 0;) {
    text.append(part, count);
  }
  CloseHandle(read);
  if (made == FALSE) return "it cannot be started";
  DWORD code = 0;
  WaitForSingleObject(process.hProcess, INFINITE);
  GetExitCodeProcess(process.hProcess, &code);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  std::erase(text, '\r');
  return code == 0 ? text : "exit code " + std::to_string(code) + "\n" + text;
}

bool IsRegistered(const wchar_t* key) {
  HKEY opened = nullptr;
  const bool there = RegOpenKeyExW(HKEY_CLASSES_ROOT, key, 0, KEY_READ, &opened) == ERROR_SUCCESS;
  if (there) RegCloseKey(opened);
  return there;
}

// The keys by which hosts know that a class is a control.
std::vector<std::wstring> RegisteredKeys() {
  wchar_t identifier[40];
  StringFromGUID2(__uuidof(::ucProcessLog), identifier, 40);
  const std::wstring key = std::wstring(L"CLSID\\") + identifier;
  return {L"Quorvel.ucProcessLog",
          L"Quorvel.ucProcessLog.1\\CLSID",
          key + L"\\InprocServer32",
          key + L"\\Control",
          key + L"\\Implemented Categories\\{40FC6ED4-2438-11CF-A3DB-080036F12502}",
          key + L"\\MiscStatus\\1",
          key + L"\\ToolboxBitmap32",
          key + L"\\TypeLib",
          key + L"\\Version"};
}

std::string Replaced(std::string text, const std::string& what, const std::string& by) {
  for (std::size_t at = 0; (at = text.find(what, at)) != std::string::npos; at += by.size()) {
    text.replace(at, what.size(), by);
  }
  return text;
}

TEST(ScriptTest, AScriptWalksThroughAHistory) {
  const RecentHistory history;
  ASSERT_EQ(AskLibrary("DllRegisterServer"), S_OK);
  for (const std::wstring& key : RegisteredKeys()) EXPECT_TRUE(IsRegistered(key.c_str())) << windows::FromWide(key);
  const std::filesystem::path script = std::filesystem::path(SourceFolder()) / "walk.vbs";
  const std::string text = OutputOf(L"cscript.exe //nologo \"" + ToWide(script.string()) + L"\" \"" +
                                    ToWide(history.file().string()) + L"\"");
  EXPECT_EQ(AskLibrary("DllUnregisterServer"), S_OK);
  EXPECT_EQ(AskLibrary("DllUnregisterServer"), S_OK);
  for (const std::wstring& key : RegisteredKeys()) EXPECT_FALSE(IsRegistered(key.c_str())) << windows::FromWide(key);
  ExpectText("walk", Replaced(text, history.month(), "YEAR/MONTH"));
}

TEST(ScriptTest, AManifestIsEnoughForAProgram) {
  ComPtr<_ucProcessLog> control;
  const CLSID identifier = __uuidof(::ucProcessLog);
  EXPECT_EQ(CoCreateInstance(identifier, nullptr, CLSCTX_INPROC_SERVER, __uuidof(_ucProcessLog), control.PutVoid()),
            REGDB_E_CLASSNOTREG);
  const ManifestHolds manifest;
  CLSID named{};
  EXPECT_EQ(CLSIDFromProgID(L"Quorvel.ucProcessLog.1", &named), S_OK);
  // What a name gives here is an alias of the class's own identifier.
  for (const CLSID& wanted : {identifier, named}) {
    ASSERT_EQ(CoCreateInstance(wanted, nullptr, CLSCTX_INPROC_SERVER, __uuidof(_ucProcessLog), control.PutVoid()),
              S_OK);
    EXPECT_EQ(CallByName(*control.get(), L"p_Connect").value.ToInt32(), -1);
  }
}

}  // namespace
}  // namespace quorvel::test
