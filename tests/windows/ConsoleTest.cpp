// The native console: what becomes of histories that open and of those that do not, menus, status bar, picture.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>
#include <ole2.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <sstream>
#include <string>

#include "console_windows/HistorySession.h"
#include "console_windows/Picture.h"
#include "control/Menus.h"
#include "platform/windows/LateBound.h"
#include "platform/windows/WideText.h"
#include "support/SmallHistory.h"
#include "support/TemporaryFolder.h"
#include "windows/ListPane.h"

namespace quorvel::console {
namespace {

using testing::HasSubstr;
using testing::StartsWith;
using testing::internal::CaptureStderr;
using testing::internal::GetCapturedStderr;
using windows::FromWide;
using windows::LateBound;

struct OleGuard {
  OleGuard() { OleInitialize(nullptr); }
  ~OleGuard() { OleUninitialize(); }
};

class WindowsConsoleTest : public testing::Test {
 protected:
  WindowsConsoleTest() { window.Open({900, 600}); }

  ucProcessLog& control() { return session.viewer().control(); }
  std::string Title() {
    wchar_t text[256] = L"";
    return FromWide({text, static_cast<std::size_t>(GetWindowTextW(window.window(), text, 256))});
  }
  // As a control on the form reads it.
  std::string Panel(std::int32_t number) {
    return LateBound(window.statusBar().HostObject())
        .Object(L"PARENT")
        .Object(L"stStatusBar")
        .Object(L"Panels")
        .Object(L"Item", {windows::Variant(number)})
        .Get(L"Text")
        .ToText();
  }
  // False, and what is said about it.
  std::string Refusal(const std::string& url) {
    CaptureStderr();
    EXPECT_FALSE(session.OpenHistory(url));
    return GetCapturedStderr();
  }
  // The captions of a menu of the menu bar, and whether each can be chosen.
  std::map<std::string, bool> MenuAt(int position) {
    const HMENU menu = GetSubMenu(GetMenu(window.window()), position);
    SendMessageW(window.window(), WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(menu), position);
    std::map<std::string, bool> entries;
    for (UINT i = 0; i < static_cast<UINT>(GetMenuItemCount(menu)); ++i) {
      wchar_t text[256] = L"";
      if (GetMenuStringW(menu, i, text, 256, MF_BYPOSITION) == 0) continue;
      entries[FromWide(text)] = (GetMenuState(menu, i, MF_BYPOSITION) & MF_GRAYED) == 0;
    }
    return entries;
  }

  OleGuard ole;
  test::SmallHistory history;
  test::TemporaryFolder folder;
  ConsoleWindow window;
  HistorySession session{window, tlFromType::tlOneProcess, -1, Audience::kTerminal};
};

TEST_F(WindowsConsoleTest, StaysUsableWhateverItIsAskedToOpen) {
  EXPECT_THAT(Refusal("sqlite:/no/such.db"), HasSubstr("/no/such.db"));
  ASSERT_TRUE(session.OpenHistory(history.url()));
  const std::size_t nodes = control().controls().tvMotherList.Count();
  EXPECT_GT(nodes, 0U);
  EXPECT_THAT(Panel(1), HasSubstr("element"));
  EXPECT_THAT(Title(), StartsWith(history.file().filename().string()));
  Refusal("sqlite:/no/such.db");
  EXPECT_EQ(control().controls().tvMotherList.Count(), nodes) << "the history before is still shown";
  CaptureStderr();
  EXPECT_FALSE(session.ChooseTab("No such tab"));
  EXPECT_THAT(GetCapturedStderr(), HasSubstr("No such tab"));
  EXPECT_TRUE(session.ChooseTab("Alarms"));
  session.OpenAs(tlFromType::tlAllAlarms);
  EXPECT_THAT(control().controls().fraList.text(), StartsWith("Alarms"));
  session.OpenAs(tlFromType::tlAllProcess);
  EXPECT_EQ(control().controls().sstProcessLog.currentCaption(), "Processes") << "the only view of such a host";
}

TEST_F(WindowsConsoleTest, MenusFollowTheViewer) {
  constexpr int kLog = 1;
  ASSERT_TRUE(session.OpenHistory(history.url()));
  EXPECT_FALSE(MenuAt(kLog).at("&Open detail")) << "no row is selected";
  EXPECT_FALSE(MenuAt(kLog).contains("Open &attachment"));
  ListView_SetItemState(session.viewer().list().window(), 0, LVIS_SELECTED | LVIS_FOCUSED,
                        LVIS_SELECTED | LVIS_FOCUSED);
  EXPECT_TRUE(MenuAt(kLog).at("&Open detail"));
  constexpr UINT kFirstCommand = 0x200;
  SendMessageW(window.window(), WM_COMMAND, kFirstCommand + static_cast<UINT>(MenuCommand::kCopy), 0);
  EXPECT_NE(IsClipboardFormatAvailable(CF_UNICODETEXT), FALSE);
  ASSERT_TRUE(session.ChooseTab("System"));
  EXPECT_TRUE(MenuAt(kLog).contains("Open &attachment"));
}

TEST_F(WindowsConsoleTest, TellsOfALongRequestUntilItEnds) {
  window.reading().Show({"GetAlarms", {}});
  EXPECT_EQ(Panel(3), "") << "nobody waits yet";
  constexpr DWORD kLong = 310;
  for (const DWORD begin = GetTickCount(); GetTickCount() - begin < kLong;) window.reading().Show({"GetAlarms", {}});
  EXPECT_EQ(Panel(3), "Reading alarms...");
  MSG message{};
  while (PeekMessageW(&message, window.window(), 0, 0, PM_REMOVE) != FALSE) DispatchMessageW(&message);
  EXPECT_EQ(Panel(3), "");
}

TEST_F(WindowsConsoleTest, WritesPictureAndReport) {
  ASSERT_TRUE(session.OpenHistory(history.url()));
  const std::filesystem::path picture = folder.path() / u8"Größe.png";
  WritePicture(window.window(), picture);
  std::ifstream in(picture, std::ios::binary);
  std::string head(4, '\0');
  in.read(head.data(), 4);
  EXPECT_EQ(head, "\x89PNG");
  EXPECT_THROW(WritePicture(window.window(), folder.path() / "no" / "x.png"), Error);
  const std::filesystem::path report = folder.path() / u8"Größe.html";
  ASSERT_TRUE(session.WriteReportOf("LPROC|11|0|100", report));
  std::stringstream text;
  text << std::ifstream(report).rdbuf();
  EXPECT_THAT(text.str(), HasSubstr("Deploy"));
  CaptureStderr();
  EXPECT_FALSE(session.WriteReportOf("LPROC|11|0|100", folder.path() / "no" / "x.html"));
  EXPECT_THAT(GetCapturedStderr(), HasSubstr("x.html"));
}

}  // namespace
}  // namespace quorvel::console
