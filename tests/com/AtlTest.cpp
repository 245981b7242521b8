// The control in the window class that the system has for controls.
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include "com/Component.h"
#include "com/RecentHistory.h"

namespace quorvel::test {
namespace {

TEST(AtlTest, TheSystemsOwnHostShowsIt) {
  const HMODULE atl = LoadLibraryW(L"atl.dll");
  ASSERT_NE(atl, nullptr);
  using Initialize = BOOL(STDAPICALLTYPE*)();
  using GetControl = HRESULT(STDAPICALLTYPE*)(HWND, IUnknown**);
  const auto initialize = reinterpret_cast<Initialize>(reinterpret_cast<void*>(GetProcAddress(atl, "AtlAxWinInit")));
  const auto getControl = reinterpret_cast<GetControl>(reinterpret_cast<void*>(GetProcAddress(atl, "AtlAxGetControl")));
  ASSERT_TRUE(initialize());
  const ManifestHolds manifest;
  const RecentHistory history;
  // The window's caption names the class.
  const HWND window = CreateWindowExW(0, L"AtlAxWin", L"Quorvel.ucProcessLog.1", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0,
                                      900, 600, nullptr, nullptr, GetModuleHandleW(nullptr), nullptr);
  ASSERT_NE(window, nullptr);
  ComPtr<IUnknown> hosted;
  ASSERT_EQ(getControl(window, hosted.Put()), S_OK);
  const auto control = hosted.As<_ucProcessLog>();
  ASSERT_TRUE(control);
  hosted = nullptr;
  Open(*control.get(), history.url());
  ASSERT_EQ(control->put_p_FromType(tlOneProcess), S_OK);
  Variant all(0);
  ASSERT_EQ(control->m_GetLogAll(&all.raw()), S_OK);
  HWND inside = nullptr;
  ASSERT_EQ(control.As<IOleInPlaceObject>()->GetWindow(&inside), S_OK);
  EXPECT_TRUE(IsChild(window, inside));
  EXPECT_TRUE(IsWindowVisible(inside));
  SetWindowPos(window, nullptr, 0, 0, 700, 500, SWP_NOZORDER);
  RECT host{};
  RECT place{};
  GetClientRect(window, &host);
  GetClientRect(inside, &place);
  EXPECT_EQ(place.right, host.right);
  EXPECT_EQ(place.bottom, host.bottom);
  DestroyWindow(window);
  EXPECT_FALSE(IsWindow(inside));
  EXPECT_EQ(RootKeys(*control.get()).size(), 3U);
}

}  // namespace
}  // namespace quorvel::test
