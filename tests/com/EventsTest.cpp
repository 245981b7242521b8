// What a host hears, whatever its sinks do.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <ocidl.h>
#include <olectl.h>

#include <functional>
#include <stdexcept>

#include "com/Component.h"
#include "com/RecentHistory.h"
#include "platform/windows/ComObject.h"

namespace quorvel::test {
namespace {

using testing::ElementsAre;

// Notes each event as its number and text, then does what the test wants.
class Sink final : public windows::ComObject<IDispatch> {
 public:
  STDMETHODIMP GetTypeInfoCount(UINT*) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetTypeInfo(UINT, LCID, ITypeInfo**) noexcept override { return E_NOTIMPL; }
  STDMETHODIMP GetIDsOfNames(REFIID, OLECHAR**, UINT, LCID, DISPID*) noexcept override { return E_NOTIMPL; }
  // Not noexcept: sinks of others throw too.
  STDMETHODIMP Invoke(DISPID event, REFIID, LCID, WORD, DISPPARAMS* arguments, VARIANT*, EXCEPINFO*, UINT*) override {
    heard.push_back(std::to_string(event));
    if (arguments->cArgs == 1) heard.back() += " " + windows::TextOf(arguments->rgvarg[0].bstrVal);
    if (then) then();
    return E_FAIL;
  }

  std::vector<std::string> heard;
  std::function<void()> then;
};

class EventsTest : public testing::Test {
 protected:
  EventsTest() {
    Open(*control.get(), history.url());
    EXPECT_EQ(control->put_p_FromType(tlOneProcess), S_OK);
    Variant all(0);
    EXPECT_EQ(control->m_GetLogAll(&all.raw()), S_OK);
    EXPECT_EQ(control.As<IConnectionPointContainer>()->FindConnectionPoint(__uuidof(__ucProcessLog), point.Put()),
              S_OK);
  }

  struct Connected {
    ComPtr<Sink> sink = ComPtr<Sink>::Adopt(new Sink());
    DWORD cookie = 0;
  };
  Connected Connect() {
    Connected made;
    EXPECT_EQ(point->Advise(made.sink.get(), &made.cookie), S_OK);
    return made;
  }

  // Raises MajMenu.
  void SelectRun() { ASSERT_EQ(control->ClickNode(Bstr(RootKeys(*control.get()).at(1)).get()), S_OK); }

  RecentHistory history;
  ComPtr<_ucProcessLog> control = NewControl();
  ComPtr<IConnectionPoint> point;
};

TEST_F(EventsTest, CarryWhatTheyTell) {
  const Connected host = Connect();
  ASSERT_EQ(control->ClickNode(Bstr(RootKeys(*control.get()).at(1)).get()), S_OK);
  host.sink->heard.clear();
  ASSERT_EQ(control->SelectRow(Variant(std::int32_t{1}).raw()), S_OK);
  EXPECT_THAT(host.sink->heard, ElementsAre("1"));
  Variant report(std::int32_t{14});
  Variant context(std::int32_t{22});
  EXPECT_EQ(control->m_MenuCall(&report.raw()), S_OK);
  EXPECT_EQ(control->m_MenuCall(&context.raw()), S_OK);
  ComPtr<IListItem> row;
  Bstr key;
  ASSERT_EQ(control->get_SelectedItem(row.Put()), S_OK);
  ASSERT_EQ(row->get_Key(key.Put()), S_OK);
  EXPECT_THAT(host.sink->heard, ElementsAre("1", "3 LPROC|10|0|102", "6 " + key.Text()));
  EXPECT_EQ(point->Unadvise(host.cookie), S_OK);
  EXPECT_EQ(point->Unadvise(host.cookie), CONNECT_E_NOCONNECTION);
}

TEST_F(EventsTest, ReachEachSinkWhateverTheOthersDo) {
  Connected throwing = Connect();
  Connected leaving = Connect();
  Connected last = Connect();
  throwing.sink->then = [] { throw std::runtime_error("a sink"); };
  leaving.sink->then = [&] {
    point->Unadvise(leaving.cookie);
    point->Unadvise(throwing.cookie);
  };
  SelectRun();
  const std::size_t heardOnce = leaving.sink->heard.size();
  EXPECT_EQ(heardOnce, 1U);
  EXPECT_EQ(throwing.sink->heard.size(), 1U);
  EXPECT_FALSE(last.sink->heard.empty());
  const std::size_t before = last.sink->heard.size();
  ASSERT_EQ(control->SelectRow(Variant(std::int32_t{2}).raw()), S_OK);
  EXPECT_EQ(leaving.sink->heard.size(), 1U);
  EXPECT_GT(last.sink->heard.size(), before);
}

TEST_F(EventsTest, AreLostWhileTheHostFreezesThem) {
  const Connected host = Connect();
  const auto frozen = control.As<IOleControl>();
  EXPECT_EQ(frozen->FreezeEvents(TRUE), S_OK);
  EXPECT_EQ(frozen->FreezeEvents(TRUE), S_OK);
  EXPECT_EQ(frozen->FreezeEvents(FALSE), S_OK);
  SelectRun();
  EXPECT_THAT(host.sink->heard, ElementsAre());
  EXPECT_EQ(frozen->FreezeEvents(FALSE), S_OK);
  EXPECT_EQ(frozen->FreezeEvents(FALSE), S_OK);
  ASSERT_EQ(control->SelectRow(Variant(std::int32_t{2}).raw()), S_OK);
  EXPECT_THAT(host.sink->heard, ElementsAre("1"));
}

TEST_F(EventsTest, ThePointSaysWhoListens) {
  IID events{};
  ComPtr<IConnectionPointContainer> container;
  EXPECT_EQ(point->GetConnectionInterface(&events), S_OK);
  EXPECT_TRUE(IsEqualGUID(events, __uuidof(__ucProcessLog)));
  EXPECT_EQ(point->GetConnectionPointContainer(container.Put()), S_OK);
  EXPECT_EQ(container.As<IUnknown>().get(), control.As<IUnknown>().get());
  ComPtr<IConnectionPoint> none;
  EXPECT_EQ(container->FindConnectionPoint(IID_IDispatch, none.Put()), CONNECT_E_NOCONNECTION);
  ComPtr<IEnumConnectionPoints> points;
  ASSERT_EQ(container->EnumConnectionPoints(points.Put()), S_OK);
  ComPtr<IConnectionPoint> first;
  ULONG given = 0;
  EXPECT_EQ(points->Next(1, first.Put(), &given), S_OK);
  EXPECT_EQ(first.get(), point.get());
  EXPECT_EQ(points->Next(1, none.Put(), &given), S_FALSE);

  const Connected one = Connect();
  const Connected two = Connect();
  ComPtr<IEnumConnections> connections;
  ASSERT_EQ(point->EnumConnections(connections.Put()), S_OK);
  CONNECTDATA found[3]{};
  EXPECT_EQ(connections->Next(3, found, &given), S_FALSE);
  ASSERT_EQ(given, 2U);
  EXPECT_EQ(found[0].dwCookie, one.cookie);
  EXPECT_EQ(found[1].dwCookie, two.cookie);
  for (ULONG i = 0; i < given; ++i) found[i].pUnk->Release();
  EXPECT_EQ(point->Advise(nullptr, nullptr), E_POINTER);
}

}  // namespace
}  // namespace quorvel::test
