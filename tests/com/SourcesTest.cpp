// Which component a control reads from.
#include <gmock/gmock.h>

#include "com/Component.h"
#include "com/RecentHistory.h"
#include "hub_com/ComHub.h"
#include "hub_com/RegisteredHub.h"

namespace quorvel::test {
namespace {

using testing::HasSubstr;
using testing::SizeIs;

HRESULT ShowProcesses(_ucProcessLog& control, LONG connection) {
  EXPECT_EQ(control.put_p_Connect(connection), S_OK);
  EXPECT_EQ(control.put_p_FromType(tlOneProcess), S_OK);
  Variant all(0);
  return control.m_GetLogAll(&all.raw());
}

TEST(SourcesTest, TheConnectionTellsWhichComponentIsRead) {
  const RegisteredHub registered;
  const RecentHistory history;
  // One that differs, so that it cannot be taken for the other.
  RecentHistory ofComponent;
  ofComponent.Sql("DELETE FROM process_run WHERE process_id = 11");
  hub_com::ComHub component;
  const LONG connection = component.OpenConnection(ofComponent.url());

  const auto control = NewControl();
  LONG opened = 0;
  ASSERT_EQ(control->OpenHistory(Bstr(history.url()).get(), &opened), S_OK);
  ASSERT_EQ(ShowProcesses(*control.get(), opened), S_OK);
  const auto other = NewControl();
  ASSERT_EQ(ShowProcesses(*other.get(), connection), S_OK);
  EXPECT_THAT(RootKeys(*control.get()), SizeIs(3));
  EXPECT_THAT(RootKeys(*other.get()), SizeIs(2));
}

TEST(SourcesTest, WithoutAComponentOnlyItsOwnHistoriesCanBeRead) {
  const auto control = NewControl();
  TakeLeftError();
  EXPECT_EQ(ShowProcesses(*control.get(), 77), ErrorOf(5));
  EXPECT_EQ(TakeLeftError().description, "Connection 77 is not open");
  const auto remote = NewControl();
  EXPECT_EQ(remote->put_p_ServerName(Bstr(L"LAB").get()), S_OK);
  EXPECT_EQ(ShowProcesses(*remote.get(), 77), ErrorOf(429)) << "a server has components of its own";
  EXPECT_THAT(TakeLeftError().description, HasSubstr("on server \"LAB\""));
}

}  // namespace
}  // namespace quorvel::test
