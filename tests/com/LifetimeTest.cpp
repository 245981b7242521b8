// References: what keeps the control, and that nothing is left of it when the last one goes.
#include <gtest/gtest.h>

#include <functional>

#include "com/RecentHistory.h"
#include "com/StrictHost.h"
#include "console_windows/NamedMembers.h"

namespace quorvel::test {
namespace {

HRESULT CanUnload() {
  return AskLibrary("DllCanUnloadNow");
}

TEST(LifetimeTest, TheLastReleaseEndsItAndTheLibraryCanGo) {
  ASSERT_EQ(CanUnload(), S_OK);
  {
    PlacedControl placed;
    EXPECT_EQ(CanUnload(), S_FALSE);
    ASSERT_EQ(placed.Do(OLEIVERB_UIACTIVATE), S_OK);
    ASSERT_EQ(placed.object->Close(OLECLOSE_NOSAVE), S_OK);
    ASSERT_EQ(placed.object->SetClientSite(nullptr), S_OK);
    placed.object = nullptr;
    placed.inPlace = nullptr;
    EXPECT_EQ(placed.control.Detach()->Release(), 0U);
    EXPECT_EQ(CanUnload(), S_OK);
    placed.control = NewControl();
    placed.object = placed.control.As<IOleObject>();
  }
  EXPECT_EQ(CanUnload(), S_OK);
}

// A host that forgets to say goodbye.
TEST(LifetimeTest, AnActiveControlLeavesItsHostByItself) {
  const auto host = StrictHost::Make();
  auto control = NewControl();
  {
    const auto object = control.As<IOleObject>();
    ASSERT_EQ(object->SetClientSite(host.get()), S_OK);
    ASSERT_EQ(object->DoVerb(OLEIVERB_UIACTIVATE, nullptr, host.get(), 0, host->window(), nullptr), S_OK);
    host->Calls();
  }
  EXPECT_EQ(control.Detach()->Release(), 0U);
  EXPECT_EQ(host->Calls(), "NotActive OnUIDeactivate LostFocus OnInPlaceDeactivate");
  EXPECT_EQ(CanUnload(), S_OK);
}

TEST(LifetimeTest, EveryInterfaceIsOneOfTheSameObject) {
  const auto control = NewControl();
  const auto identity = control.As<IUnknown>();
  const IID identifiers[] = {__uuidof(_ucProcessLog),
                             IID_IDispatch,
                             IID_IOleObject,
                             IID_IOleWindow,
                             IID_IOleInPlaceObject,
                             IID_IOleInPlaceActiveObject,
                             IID_IOleControl,
                             IID_IViewObject,
                             IID_IViewObject2,
                             IID_IPersist,
                             IID_IPersistStreamInit,
                             IID_IPersistPropertyBag,
                             IID_IProvideClassInfo,
                             IID_IProvideClassInfo2,
                             IID_IConnectionPointContainer,
                             IID_ISupportErrorInfo};
  for (const IID& identifier : identifiers) {
    ComPtr<IUnknown> found;
    ASSERT_EQ(control->QueryInterface(identifier, found.PutVoid()), S_OK);
    EXPECT_EQ(found.As<IUnknown>().get(), identity.get());
    EXPECT_EQ(found.As<_ucProcessLog>().get(), control.get());
  }
  void* none = &none;
  EXPECT_EQ(control->QueryInterface(IID_IStorage, &none), E_NOINTERFACE);
  EXPECT_EQ(none, nullptr);
  EXPECT_EQ(control.As<ISupportErrorInfo>()->InterfaceSupportsErrorInfo(__uuidof(_ucProcessLog)), S_OK);
  EXPECT_EQ(control.As<ISupportErrorInfo>()->InterfaceSupportsErrorInfo(IID_IOleObject), S_FALSE);
}

TEST(LifetimeTest, SaysWhichClassItIs) {
  const auto control = NewControl();
  ComPtr<ITypeInfo> info;
  ASSERT_EQ(control.As<IProvideClassInfo2>()->GetClassInfo(info.Put()), S_OK);
  TYPEATTR* attributes = nullptr;
  ASSERT_EQ(info->GetTypeAttr(&attributes), S_OK);
  CLSID identifier{};
  EXPECT_EQ(control.As<IPersist>(IID_IPersist)->GetClassID(&identifier), S_OK);
  EXPECT_TRUE(IsEqualGUID(attributes->guid, identifier));
  info->ReleaseTypeAttr(attributes);
  GUID events{};
  EXPECT_EQ(control.As<IProvideClassInfo2>()->GetGUID(GUIDKIND_DEFAULT_SOURCE_DISP_IID, &events), S_OK);
  EXPECT_TRUE(IsEqualGUID(events, __uuidof(__ucProcessLog)));
  DWORD status = 0;
  EXPECT_EQ(control.As<IOleObject>()->GetMiscStatus(DVASPECT_CONTENT, &status), S_OK);
  EXPECT_NE(status & OLEMISC_SETCLIENTSITEFIRST, 0U);
}

class RowsTest : public testing::Test {
 protected:
  RowsTest() {
    Open(*control.get(), history.url());
    EXPECT_EQ(control->put_p_FromType(tlOneProcess), S_OK);
    Variant all(0);
    EXPECT_EQ(control->m_GetLogAll(&all.raw()), S_OK);
    ClickRoot(2);
    EXPECT_EQ(control->get_ListItems(rows.Put()), S_OK);
  }
  void ClickRoot(std::size_t root) {
    EXPECT_EQ(control->ClickNode(Bstr(RootKeys(*control.get()).at(root)).get()), S_OK);
  }
  ComPtr<IListItem> Row(std::int32_t index) {
    ComPtr<IListItem> row;
    EXPECT_EQ(rows->get_Item(Variant(index).raw(), row.Put()), S_OK);
    return row;
  }
  static std::string KeyOf(IListItem& row) {
    Bstr key;
    EXPECT_EQ(row.get_Key(key.Put()), S_OK);
    return key.Text();
  }

  RecentHistory history;
  ComPtr<_ucProcessLog> control = NewControl();
  ComPtr<IListItems> rows;
};

TEST_F(RowsTest, ARowOutlivesTheControlButNotItsList) {
  const auto row = Row(2);
  const std::string key = KeyOf(*row.get());
  ClickRoot(0);
  wchar_t old[] = L"old";
  BSTR text = old;
  EXPECT_EQ(row->get_Text(&text), ErrorOf(35601));
  EXPECT_EQ(text, nullptr) << "a caller would free it";
  EXPECT_EQ(TakeLeftError().description, "The list does not have this row any more");
  ClickRoot(2);
  EXPECT_EQ(KeyOf(*row.get()), key);
  const std::string kept = KeyOf(*Row(1).get());
  const auto first = Row(1);
  EXPECT_EQ(control.Detach()->Release(), 0U);
  EXPECT_EQ(KeyOf(*first.get()), kept);
}

TEST_F(RowsTest, AreFoundByPlaceAndByKey) {
  ComPtr<IListItem> found;
  const std::string key = KeyOf(*Row(2).get());
  ASSERT_EQ(rows->get_Item(Variant(std::string_view(key)).raw(), found.Put()), S_OK);
  LONG index = 0;
  EXPECT_EQ(found->get_Index(&index), S_OK);
  EXPECT_EQ(index, 2);
  LONG count = 0;
  EXPECT_EQ(rows->get_Count(&count), S_OK);
  for (const std::int32_t wrong : {0, -1, static_cast<std::int32_t>(count) + 1}) {
    EXPECT_EQ(rows->get_Item(Variant(wrong).raw(), found.Put()), ErrorOf(9));
  }
  EXPECT_EQ(rows->get_Item(Variant(std::string_view("none")).raw(), found.Put()), ErrorOf(35601));
  Bstr cell;
  EXPECT_EQ(Row(1)->get_SubItems(0, cell.Put()), ErrorOf(9));
  EXPECT_EQ(Row(1)->get_SubItems(99, cell.Put()), ErrorOf(9));
}

TEST_F(RowsTest, AWalkEndsWhereTheListDoes) {
  ComPtr<IUnknown> unknown;
  ASSERT_EQ(rows->get__NewEnum(unknown.Put()), S_OK);
  const auto walk = unknown.As<IEnumVARIANT>();
  LONG count = 0;
  rows->get_Count(&count);
  ASSERT_GE(count, 3);
  Variant found[2];
  VARIANT raw[2]{};
  ULONG given = 0;
  EXPECT_EQ(walk->Next(2, raw, &given), S_OK);
  for (VARIANT& value : raw) VariantClear(&value);
  ComPtr<IEnumVARIANT> copy;
  EXPECT_EQ(walk->Clone(copy.Put()), S_OK);
  EXPECT_EQ(walk->Skip(static_cast<ULONG>(count)), S_FALSE);
  EXPECT_EQ(walk->Next(1, raw, nullptr), S_FALSE);
  EXPECT_EQ(copy->Next(1, raw, nullptr), S_OK);
  VariantClear(raw);
  ClickRoot(0);
  EXPECT_EQ(copy->Next(1, raw, &given), S_FALSE);
  EXPECT_EQ(given, 0U);
}

// Lets the control go while it is raising an event: the code that raised it goes on.
TEST(LifetimeTest, AHostMayLetItGoFromAnEvent) {
  const RecentHistory history;
  const auto host = StrictHost::Make();
  _ucProcessLog* control = NewControl().Detach();
  Open(*control, history.url());
  EXPECT_EQ(control->put_p_FromType(tlOneProcess), S_OK);
  Variant all(0);
  EXPECT_EQ(control->m_GetLogAll(&all.raw()), S_OK);
  const std::string root = RootKeys(*control).at(1);
  HWND inside = nullptr;
  {
    ComPtr<IOleObject> object;
    ComPtr<IOleInPlaceObject> inPlace;
    ComPtr<IConnectionPointContainer> container;
    control->QueryInterface(IID_IOleObject, object.PutVoid());
    control->QueryInterface(IID_IOleInPlaceObject, inPlace.PutVoid());
    control->QueryInterface(IID_IConnectionPointContainer, container.PutVoid());
    object->SetClientSite(host.get());
    ASSERT_EQ(object->DoVerb(OLEIVERB_SHOW, nullptr, host.get(), 0, host->window(), nullptr), S_OK);
    inPlace->GetWindow(&inside);
    ComPtr<IConnectionPoint> point;
    ASSERT_EQ(container->FindConnectionPoint(__uuidof(__ucProcessLog), point.Put()), S_OK);
    // Any event at all: its name is not asked for.
    class Goodbye final : public windows::ComObject<IDispatch> {
     public:
      explicit Goodbye(_ucProcessLog*& held) : control_(held) {}
      STDMETHODIMP GetTypeInfoCount(UINT*) noexcept override { return E_NOTIMPL; }
      STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
      STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR**, UINT, LCID, DISPID*) noexcept override { return E_NOTIMPL; }
      STDMETHODIMP Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) noexcept override {
        auto* const last = std::exchange(control_, nullptr);
        if (last != nullptr) {
          EXPECT_EQ(last->Release(), 0U);
        }
        return S_OK;
      }

     private:
      _ucProcessLog*& control_;
    };
    const auto sink = ComPtr<Goodbye>::Adopt(new Goodbye(control));
    DWORD cookie = 0;
    ASSERT_EQ(point->Advise(sink.get(), &cookie), S_OK);
  }
  EXPECT_EQ(control->ClickNode(Bstr(root).get()), S_OK);
  EXPECT_EQ(control, nullptr);
  EXPECT_FALSE(IsWindow(inside));
  EXPECT_EQ(CanUnload(), S_FALSE) << "it went while its code was being run";
  EXPECT_TRUE(PumpUntil([] { return CanUnload() == S_OK; }));
}

}  // namespace
}  // namespace quorvel::test
