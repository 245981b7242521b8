// The port to Windows: clipboard, dates, files, message boxes, Escape, the host's status bar, the account library.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "console_windows/NamedMembers.h"
#include "platform/Error.h"
#include "platform/windows/WideText.h"
#include "windows/Handles.h"
#include "windows/WindowsPlatform.h"

namespace quorvel::windows {
namespace {

using console::NamedMembers;
using testing::ElementsAre;
using testing::HasSubstr;

// The number of what `body` raises; 0 when it raises nothing.
template <class Body>
std::int32_t NumberRaised(Body body) {
  try {
    body();
  } catch (const Error& error) {
    return error.number();
  }
  return 0;
}

UniqueWindow MakeWindow(HWND owner = nullptr) {
  return UniqueWindow(
      CreateWindowExW(0, L"STATIC", L"Owner", WS_POPUP | WS_VISIBLE, 0, 0, 200, 100, owner, nullptr, nullptr, nullptr));
}

class PlatformTest : public testing::Test {
 protected:
  PlatformTest() { CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED); }
  ~PlatformTest() override { CoUninitialize(); }

  WindowsPlatform platform;
};

// Nothing when there is no text on the clipboard.
std::optional<std::string> ClipboardText() {
  if (OpenClipboard(nullptr) == FALSE) return "the clipboard is in use";
  std::optional<std::string> text;
  if (const HANDLE memory = GetClipboardData(CF_UNICODETEXT)) {
    text = FromWide(static_cast<const wchar_t*>(GlobalLock(memory)));
    GlobalUnlock(memory);
  }
  CloseClipboard();
  return text;
}

TEST_F(PlatformTest, ClipboardHoldsTheTextOfAnyLanguage) {
  const std::string text = "Größe\tשלום\t\U0001F600\r\n";
  platform.SetClipboardText(text);
  EXPECT_EQ(ClipboardText(), text);
  const UniqueWindow window = MakeWindow();
  platform.SetOwner(window.get());
  platform.SetClipboardText("");
  EXPECT_EQ(ClipboardText(), "");
  platform.ClearClipboard();
  EXPECT_EQ(ClipboardText(), std::nullopt);
}

TEST_F(PlatformTest, ClipboardThatAnotherHoldsIsAnError) {
  const HANDLE held = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  const HANDLE tried = CreateEventW(nullptr, TRUE, FALSE, nullptr);
  std::thread holder([&] {
    const UniqueWindow window = MakeWindow();
    OpenClipboard(window.get());
    SetEvent(held);
    WaitForSingleObject(tried, INFINITE);
    CloseClipboard();
  });
  WaitForSingleObject(held, INFINITE);
  EXPECT_EQ(NumberRaised([&] { platform.SetClipboardText("x"); }), 70);
  SetEvent(tried);
  holder.join();
  CloseHandle(held);
  CloseHandle(tried);
}

TEST_F(PlatformTest, DateTextIsReadBack) {
  for (const DateValue date : {46346.96188657407, 46346.0, 1.5, -1.25, -657434.0, 2958465.999988426}) {
    const std::string text = platform.FormatDate(date, DateFormat::kGeneralDate);
    const auto read = platform.ParseDate(text);
    ASSERT_TRUE(read) << text;
    EXPECT_EQ(CivilFromDate(*read), CivilFromDate(date)) << text;
    EXPECT_EQ(platform.ParseDate(platform.FormatDate(date, DateFormat::kShortDate)), DatePart(date));
  }
  const std::string midnight = platform.FormatDate(46346, DateFormat::kGeneralDate);
  EXPECT_EQ(midnight, platform.FormatDate(46346, DateFormat::kShortDate)) << "no time of day is shown";
  EXPECT_THAT(platform.FormatDate(46346.5, DateFormat::kGeneralDate), HasSubstr(midnight));
  constexpr DateValue kInfinite = std::numeric_limits<double>::infinity();
  for (const DateValue date : {std::numeric_limits<double>::quiet_NaN(), kInfinite, -kInfinite, 3e6, -7e5, 1e300}) {
    EXPECT_EQ(platform.FormatDate(date, DateFormat::kGeneralDate), "") << date;
  }
  EXPECT_EQ(platform.ParseDate(""), std::nullopt);
  EXPECT_EQ(platform.ParseDate("Größe"), std::nullopt);
}

TEST_F(PlatformTest, FilesOfTheTemporaryFolderHaveAnyName) {
  const std::filesystem::path folder = platform.TemporaryFolder();
  EXPECT_TRUE(std::filesystem::is_directory(folder));
  EXPECT_EQ(folder / "x", std::filesystem::temp_directory_path() / "x");
  const std::filesystem::path file = folder / u8"-Größe שלום 1.quorvel_unknown";
  std::ofstream(file) << "x";
  EXPECT_TRUE(platform.FileExists(file));
  EXPECT_EQ(NumberRaised([&] { platform.OpenFile(file); }), 5) << "no program is known for it";
  const std::filesystem::path renamed = folder / u8"Größe שלום 2.quorvel_unknown";
  platform.RenameFile(file, renamed);
  EXPECT_FALSE(platform.FileExists(file));
  platform.DeleteFile(renamed);
  EXPECT_EQ(NumberRaised([&] { platform.DeleteFile(renamed); }), 53);
  EXPECT_EQ(NumberRaised([&] { platform.OpenFile(renamed); }), 53);
  EXPECT_EQ(NumberRaised([&] { platform.OpenFileWith(renamed); }), 53);
}

// What was seen of a message box, and the answer that it got.
struct SeenBox {
  std::wstring title;
  std::wstring text;
  HWND owner = nullptr;
  bool hourglass = false;
};
SeenBox seen;

std::wstring TextOfWindow(HWND window) {
  std::wstring text(512, L'\0');
  text.resize(static_cast<std::size_t>(GetWindowTextW(window, text.data(), 512)));
  return text;
}

LRESULT CALLBACK AnswerBox(int code, WPARAM wParam, LPARAM lParam) {
  const auto box = reinterpret_cast<HWND>(wParam);
  wchar_t name[16] = L"";
  if (code == HCBT_ACTIVATE && GetClassNameW(box, name, 16) != 0 && std::wstring(name) == L"#32770") {
    constexpr int kTextOfBox = 0xFFFF;
    seen = {TextOfWindow(box), TextOfWindow(GetDlgItem(box, kTextOfBox)), GetWindow(box, GW_OWNER), KeepHourglass()};
    PostMessageW(box, WM_COMMAND, IDOK, 0);
  }
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

SeenBox ShownBy(WindowsPlatform& platform) {
  seen = {};
  const HHOOK hook = SetWindowsHookExW(WH_CBT, AnswerBox, nullptr, GetCurrentThreadId());
  platform.ShowMessage("Größe: 5 & more\r\nשלום", "Fehler – Größe");
  UnhookWindowsHookEx(hook);
  return seen;
}

TEST_F(PlatformTest, MessagesStandOverWhatIsOpenWithoutHourglass) {
  const UniqueWindow top = MakeWindow();
  const UniqueWindow child(
      CreateWindowExW(0, L"STATIC", L"", WS_CHILD | WS_VISIBLE, 0, 0, 9, 9, top.get(), nullptr, nullptr, nullptr));
  platform.SetOwner(child.get());
  platform.SetMousePointer(MousePointer::kHourglass);
  EXPECT_TRUE(KeepHourglass());
  const SeenBox box = ShownBy(platform);
  EXPECT_EQ(box.title, L"Fehler – Größe");
  EXPECT_EQ(box.text, L"Größe: 5 & more\r\nשלום");
  EXPECT_EQ(box.owner, top.get());
  EXPECT_FALSE(box.hourglass);
  EXPECT_TRUE(KeepHourglass()) << "the work goes on";
  platform.SetMousePointer(MousePointer::kDefault);
  EXPECT_FALSE(KeepHourglass());

  const UniqueWindow dialog = MakeWindow(top.get());
  SetActiveWindow(dialog.get());
  EXPECT_EQ(ShownBy(platform).owner, dialog.get());
  {
    WindowsPlatform goes;
    goes.SetMousePointer(MousePointer::kHourglass);
  }
  EXPECT_FALSE(KeepHourglass()) << "the pointer does not stay behind";
}

std::vector<UINT> WaitingFor(HWND window) {
  std::vector<UINT> waiting;
  MSG message{};
  while (PeekMessageW(&message, window, WM_CLOSE, WM_CLOSE, PM_REMOVE) != FALSE) waiting.push_back(message.message);
  while (PeekMessageW(&message, window, WM_KEYFIRST, WM_MOUSELAST, PM_REMOVE) != FALSE) {
    waiting.push_back(message.message);
  }
  return waiting;
}

TEST_F(PlatformTest, EscapeCountsAndOtherInputWaits) {
  const UniqueWindow window = MakeWindow();
  PostMessageW(window.get(), WM_LBUTTONDOWN, 0, 0);
  PostMessageW(window.get(), WM_KEYDOWN, 'A', 0);
  PostMessageW(window.get(), WM_CLOSE, 0, 0);
  EXPECT_FALSE(platform.IsEscapePressed());
  PostMessageW(window.get(), WM_KEYDOWN, VK_ESCAPE, 0);
  EXPECT_TRUE(platform.IsEscapePressed());
  EXPECT_FALSE(platform.IsEscapePressed()) << "it is told once";
  EXPECT_THAT(WaitingFor(window.get()), ElementsAre(WM_CLOSE, WM_LBUTTONDOWN));
  constexpr int kExitCode = 7;
  PostQuitMessage(kExitCode);
  EXPECT_FALSE(platform.IsEscapePressed());
  MSG message{};
  while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE && message.message != WM_QUIT) {
  }
  EXPECT_EQ(message.message, UINT{WM_QUIT}) << "the end of the program waits too";
  EXPECT_EQ(message.wParam, WPARAM{kExitCode});
}

// An object with one member, which holds this object.
ComPtr<IDispatch> Holder(const wchar_t* name, const ComPtr<IDispatch>& held) {
  return NamedMembers::Make({{name, [held](std::int32_t) { return Variant(held); }, {}}});
}

TEST_F(PlatformTest, StatusTextReachesTheFirstPanelOrIsAnError) {
  std::string shown;
  const auto panel = NamedMembers::Make({{L"Text", [&](std::int32_t) { return Variant(std::string_view(shown)); },
                                          [&](const Variant& value) { shown = value.ToText(); }}});
  const auto panels = NamedMembers::Make({{L"Item",
                                           [&](std::int32_t index) {
                                             if (index != 1) throw Error(SystemError::kIndexOutOfRange, "no panel");
                                             return Variant(panel);
                                           },
                                           {}}});
  platform.SetHost(Holder(L"Parent", Holder(L"stStatusBar", Holder(L"Panels", panels))));
  platform.SetHostStatusText("12 Größen");
  EXPECT_EQ(shown, "12 Größen");

  const ComPtr<IDispatch> nothing;
  for (const ComPtr<IDispatch>& host :
       {nothing, Holder(L"Other", panels), Holder(L"Parent", nothing), Holder(L"Parent", panels),
        Holder(L"Parent", Holder(L"stStatusBar", Holder(L"Panels", panel))),
        Holder(L"Parent", Holder(L"stStatusBar", Holder(L"Panels", Holder(L"Item", nothing)))),
        Holder(L"Parent", Holder(L"stStatusBar", Holder(L"Panels", Holder(L"Item", panels))))}) {
    platform.SetHost(host);
    EXPECT_EQ(NumberRaised([&] { platform.SetHostStatusText("lost"); }), 438);
  }
  EXPECT_EQ(shown, "12 Größen");
}

class AccountTest : public testing::Test {
 protected:
  AccountTest() {
    std::wstring program(MAX_PATH, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), MAX_PATH));
    folder = std::filesystem::path(program).parent_path();
  }

  std::filesystem::path folder;
  WindowsPlatform platform;
};

TEST_F(AccountTest, LibraryNamesTheUserWhereItIsInstalled) {
  const std::filesystem::path installed = folder / "OstranaAccount.dll";
  std::filesystem::remove(installed);
  EXPECT_FALSE(platform.CurrentAccount());
  std::filesystem::copy_file(folder / "account" / "OstranaAccount.dll", installed);
  const std::optional<Account> account = platform.CurrentAccount();
  ASSERT_TRUE(account);
  EXPECT_EQ(account->user, platform.CurrentUser());
  EXPECT_FALSE(account->domain.empty());
  std::filesystem::remove(installed);
}

TEST_F(AccountTest, LibraryWritesNothingPastABuffer) {
  using Call = BOOL(WINAPI*)(char*, DWORD*, char*, DWORD*);
  const UniqueModule library(LoadLibraryW((folder / "account" / "OstranaAccount.dll").c_str()));
  ASSERT_TRUE(library);
  const auto call =
      reinterpret_cast<Call>(reinterpret_cast<void*>(GetProcAddress(library.get(), "GetCurrentUserAndDomain")));
  ASSERT_NE(call, nullptr);
  char user[256] = "";
  char domain[256] = "";
  DWORD userLength = sizeof(user);
  DWORD domainLength = sizeof(domain);
  ASSERT_NE(call(user, &userLength, domain, &domainLength), FALSE);
  EXPECT_EQ(userLength, std::strlen(user));
  EXPECT_EQ(domainLength, std::strlen(domain));

  char shortUser[256];
  std::fill(std::begin(shortUser), std::end(shortUser), '#');
  const DWORD small = userLength;  // no room for the NUL
  DWORD smallLength = small;
  domainLength = sizeof(domain);
  EXPECT_EQ(call(shortUser, &smallLength, domain, &domainLength), FALSE);
  EXPECT_EQ(std::string(shortUser + small, sizeof(shortUser) - small), std::string(sizeof(shortUser) - small, '#'));
  EXPECT_EQ(call(nullptr, &userLength, domain, &domainLength), FALSE);
}

}  // namespace
}  // namespace quorvel::windows
