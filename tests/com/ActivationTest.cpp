// The control in a host that looks at each of its calls: activation, focus, keys, places.
#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>

#include <set>

#include "com/RecentHistory.h"
#include "com/StrictHost.h"

namespace quorvel::test {
namespace {

class ActivationTest : public testing::Test {
 protected:
  // The runs of a process in the list.
  void ShowRuns() {
    Open(*placed.control.get(), history.url());
    ASSERT_EQ(placed.control->put_p_FromType(tlOneProcess), S_OK);
    Variant all(0);
    ASSERT_EQ(placed.control->m_GetLogAll(&all.raw()), S_OK) << TakeLeftError().description;
    ASSERT_EQ(placed.control->ClickNode(Bstr(RootKeys(*placed.control.get()).at(1)).get()), S_OK);
  }

  LRESULT RowsShown() { return SendMessageW(placed.Find(WC_LISTVIEWW), LVM_GETITEMCOUNT, 0, 0); }
  LRESULT NodesShown() { return SendMessageW(placed.Find(WC_TREEVIEWW), TVM_GETCOUNT, 0, 0); }

  RecentHistory history;
  PlacedControl placed;
};

TEST_F(ActivationTest, AsksItsHostInOrderAndKeepsItsState) {
  placed.host->Calls();
  EXPECT_EQ(placed.Window(), nullptr);
  ShowRuns();
  EXPECT_EQ(placed.host->Calls(), "");
  EXPECT_NE(placed.host->status(), "");

  EXPECT_EQ(placed.Do(OLEIVERB_INPLACEACTIVATE), S_OK);
  EXPECT_EQ(placed.host->Calls(), "CanInPlaceActivate OnInPlaceActivate ShowObject");
  const HWND window = placed.Window();
  ASSERT_NE(window, nullptr);
  EXPECT_EQ(GetParent(window), placed.host->window());
  EXPECT_EQ(RowsShown(), 2);
  EXPECT_EQ(NodesShown(), 3);
  EXPECT_EQ(placed.Do(OLEIVERB_SHOW), S_OK);
  EXPECT_EQ(placed.Window(), window);

  EXPECT_EQ(placed.inPlace->InPlaceDeactivate(), S_OK);
  EXPECT_EQ(placed.host->Calls(), "ShowObject OnInPlaceDeactivate");
  EXPECT_FALSE(IsWindow(window));
  EXPECT_EQ(placed.control->SelectRow(Variant(2).raw()), S_OK);
  EXPECT_EQ(placed.Do(OLEIVERB_SHOW), S_OK);
  EXPECT_EQ(RowsShown(), 2);
  EXPECT_EQ(SendMessageW(placed.Find(WC_LISTVIEWW), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED), 1);
}

TEST_F(ActivationTest, GivesTheHostItsUserInterfaceAndTakesItBack) {
  placed.host->Calls();
  EXPECT_EQ(placed.Do(OLEIVERB_UIACTIVATE), S_OK);
  EXPECT_EQ(placed.host->Calls(), "CanInPlaceActivate OnInPlaceActivate OnUIActivate Active GotFocus ShowObject");
  EXPECT_TRUE(IsChild(placed.Window(), GetFocus()));
  EXPECT_EQ(placed.Do(OLEIVERB_UIACTIVATE), S_OK);
  EXPECT_EQ(placed.host->Calls(), "ShowObject");

  EXPECT_EQ(placed.inPlace->UIDeactivate(), S_OK);
  EXPECT_EQ(placed.host->Calls(), "NotActive OnUIDeactivate LostFocus");
  EXPECT_EQ(placed.inPlace->UIDeactivate(), S_OK);
  EXPECT_EQ(placed.host->Calls(), "");

  // A click, or the focus that comes from elsewhere.
  SetFocus(placed.host->window());
  SetFocus(placed.Window());
  EXPECT_EQ(placed.host->Calls(), "OnUIActivate Active GotFocus");
  EXPECT_TRUE(IsChild(placed.Window(), GetFocus()));

  EXPECT_EQ(placed.Do(OLEIVERB_HIDE), S_OK);
  EXPECT_EQ(placed.host->Calls(), "NotActive OnUIDeactivate LostFocus");
  EXPECT_FALSE(IsWindowVisible(placed.Window()));
  EXPECT_EQ(placed.object->Close(OLECLOSE_NOSAVE), S_OK);
  EXPECT_EQ(placed.host->Calls(), "OnInPlaceDeactivate");
  EXPECT_EQ(placed.Do(1000), OLEOBJ_S_INVALIDVERB);
  EXPECT_EQ(placed.Do(OLEIVERB_OPEN), E_NOTIMPL);
}

TEST_F(ActivationTest, AHostThatRefusesKeepsAControlThatWorks) {
  placed.host->letsActivate = false;
  placed.host->Calls();
  EXPECT_EQ(placed.Do(OLEIVERB_SHOW), OLE_E_NOT_INPLACEACTIVE);
  EXPECT_EQ(placed.host->Calls(), "CanInPlaceActivate");
  EXPECT_EQ(placed.Window(), nullptr);
  ShowRuns();
}

// From field to field, and out of the last one to what follows on the host's form.
TEST_F(ActivationTest, TabWalksThroughTheFieldsAndOut) {
  ShowRuns();
  ASSERT_EQ(placed.Do(OLEIVERB_UIACTIVATE), S_OK);
  placed.host->Calls();
  const auto active = placed.control.As<IOleInPlaceActiveObject>();
  std::set<HWND> fields;
  MSG message{};
  message.message = WM_KEYDOWN;
  message.wParam = VK_TAB;
  while (fields.insert(GetFocus()).second) {
    message.hwnd = GetFocus();
    ASSERT_EQ(active->TranslateAccelerator(&message), S_OK);
  }
  EXPECT_EQ(placed.host->Calls(), "Tab");
  EXPECT_TRUE(fields.contains(placed.Find(WC_TREEVIEWW)));
  EXPECT_TRUE(fields.contains(placed.Find(WC_LISTVIEWW)));
  EXPECT_GT(fields.size(), 4U);

  // A letter is for the field, unless the host wants it.
  message.wParam = 'X';
  EXPECT_EQ(active->TranslateAccelerator(&message), S_FALSE);
  EXPECT_EQ(placed.host->Calls(), "Key");
}

// A host would go to another control by an arrow, or press a button by Enter.
TEST_F(ActivationTest, KeysThatMoveWithinAFieldAreNotTheHosts) {
  ShowRuns();
  ASSERT_EQ(placed.Do(OLEIVERB_UIACTIVATE), S_OK);
  const auto active = placed.control.As<IOleInPlaceActiveObject>();
  const auto press = [&](HWND field, WPARAM key) {
    SetFocus(field);
    placed.host->Calls();
    MSG message{};
    message.hwnd = field;
    message.message = WM_KEYDOWN;
    message.wParam = key;
    return active->TranslateAccelerator(&message);
  };
  const HWND list = placed.Find(WC_LISTVIEWW);
  EXPECT_EQ(press(list, VK_HOME), S_OK);
  EXPECT_EQ(placed.host->Calls(), "");
  EXPECT_EQ(SendMessageW(list, LVM_GETNEXTITEM, static_cast<WPARAM>(-1), LVNI_SELECTED), 0);
  EXPECT_EQ(press(list, VK_RETURN), S_OK);
  EXPECT_EQ(placed.host->Calls(), "");
  EXPECT_EQ(press(placed.Find(WC_EDITW), VK_RETURN), S_FALSE);
  EXPECT_EQ(placed.host->Calls(), "Key");
}

TEST_F(ActivationTest, AHostMayTakeItsUserInterfaceBackAtOnce) {
  placed.host->whenActive = [&] { placed.inPlace->InPlaceDeactivate(); };
  placed.host->Calls();
  EXPECT_EQ(placed.Do(OLEIVERB_UIACTIVATE), S_OK);
  EXPECT_EQ(placed.host->Calls(),
            "CanInPlaceActivate OnInPlaceActivate OnUIActivate Active NotActive OnUIDeactivate LostFocus "
            "OnInPlaceDeactivate ShowObject");
  EXPECT_EQ(placed.Window(), nullptr);
}

TEST_F(ActivationTest, StandsWhereTheHostPutsItAndShowsWhatIsToBeSeen) {
  ASSERT_EQ(placed.Do(OLEIVERB_SHOW), S_OK);
  const auto inHost = [&](HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, placed.host->window(), reinterpret_cast<POINT*>(&place), 2);
    return std::vector<LONG>{place.left, place.top, place.right, place.bottom};
  };
  EXPECT_EQ(inHost(placed.Window()), (std::vector<LONG>{10, 20, 910, 620}));
  const RECT moved{-100, 30, 500, 430};
  const RECT seen{0, 0, 400, 300};
  EXPECT_EQ(placed.inPlace->SetObjectRects(&moved, &seen), S_OK);
  EXPECT_EQ(inHost(placed.Window()), (std::vector<LONG>{0, 30, 400, 300}));
  EXPECT_EQ(inHost(GetWindow(placed.Window(), GW_CHILD)), (std::vector<LONG>{-100, 30, 500, 430}));
  EXPECT_EQ(placed.inPlace->SetObjectRects(nullptr, &seen), E_POINTER);
}

// How many colours a picture of the control has.
std::size_t ColoursOf(IUnknown& control) {
  const HDC screen = GetDC(nullptr);
  const HDC canvas = CreateCompatibleDC(screen);
  const HBITMAP picture = CreateCompatibleBitmap(screen, 400, 300);
  const HGDIOBJ before = SelectObject(canvas, picture);
  const RECTL whole{0, 0, 400, 300};
  EXPECT_EQ(OleDraw(&control, DVASPECT_CONTENT, canvas, reinterpret_cast<const RECT*>(&whole)), S_OK);
  std::set<COLORREF> colours;
  for (int y = 0; y < 300; ++y) {
    for (int x = 0; x < 400; ++x) colours.insert(GetPixel(canvas, x, y));
  }
  SelectObject(canvas, before);
  DeleteObject(picture);
  DeleteDC(canvas);
  ReleaseDC(nullptr, screen);
  return colours.size();
}

TEST_F(ActivationTest, ShowsAPictureWhereItIsNotActive) {
  EXPECT_GT(ColoursOf(*placed.control.get()), 2U);
  ShowRuns();
  EXPECT_GT(ColoursOf(*placed.control.get()), 2U);
}

}  // namespace
}  // namespace quorvel::test
