#include "windows/ShellOpen.h"

#include <shellapi.h>

#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>

#include "platform/Error.h"
#include "platform/windows/ComError.h"
#include "platform/windows/WideText.h"

namespace quorvel::windows {
namespace {

[[noreturn]] void RaiseFor(const std::filesystem::path& file, DWORD error) {
  const bool missing = error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
  throw Error(missing ? SystemError::kFileNotFound : SystemError::kInvalidCall,
              FromWide(file.wstring()) + ": " + DescriptionOf(HRESULT_FROM_WIN32(error)));
}

// As a whole path, so that no name is taken for a switch, an address or a program of the search path.
std::filesystem::path Existing(const std::filesystem::path& file) {
  std::error_code code;
  std::filesystem::path whole = std::filesystem::absolute(file, code);
  if (code || !std::filesystem::exists(whole, code)) RaiseFor(file, ERROR_FILE_NOT_FOUND);
  return whole.make_preferred();
}

struct HandleClose {
  void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using UniqueHandle = std::unique_ptr<std::remove_pointer_t<HANDLE>, HandleClose>;

// As the program that comes with the system, not one of that name in another folder.
std::wstring SystemProgram(const wchar_t* name) {
  std::wstring folder(MAX_PATH, L'\0');
  folder.resize(GetSystemDirectoryW(folder.data(), MAX_PATH));
  return folder + L"\\" + name;
}

}  // namespace

void OpenInShell(HWND owner, const std::filesystem::path& file) {
  constexpr std::intptr_t kLastError = 32;  // greater results mean success
  const std::filesystem::path whole = Existing(file);
  const std::wstring folder = whole.parent_path().wstring();
  const HINSTANCE answer = ShellExecuteW(owner, L"open", whole.c_str(), nullptr, folder.c_str(), SW_SHOWNORMAL);
  const auto result = reinterpret_cast<std::intptr_t>(answer);
  if (result > kLastError) return;
  RaiseFor(file, result == SE_ERR_NOASSOC ? ERROR_NO_ASSOCIATION : GetLastError());
}

void OpenWithChosenProgram(const std::filesystem::path& file) {
  // The rest of the line is the name, blanks and all: in quotation marks it would be another one.
  std::wstring command = L"rundll32.exe shell32.dll,OpenAs_RunDLL " + Existing(file).wstring();
  STARTUPINFOW start{};
  start.cb = sizeof(start);
  PROCESS_INFORMATION process{};
  if (CreateProcessW(SystemProgram(L"rundll32.exe").c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                     nullptr, &start, &process) == FALSE) {
    RaiseFor(file, GetLastError());
  }
  const UniqueHandle closesThread(process.hThread);
  const UniqueHandle closesProcess(process.hProcess);
}

}  // namespace quorvel::windows
