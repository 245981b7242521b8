// A component that cannot be made, fails, vanishes or answers wrongly: a clear error, and the next call works.

// Before the headers of the system, whose macros rename functions of platforms.
#include "support/RecordingPlatform.h"

#include <gmock/gmock.h>

#include <functional>
#include <string>
#include <vector>

#include "control/ucProcessLog.h"
#include "datasource/ProcessLog.h"
#include "hub_com/ComInstallation.h"
#include "hub_com/FaultyComponent.h"
#include "platform/windows/ComError.h"
#include "platform/windows/LateBound.h"

namespace quorvel::test {
namespace {

using datasource::ProcessLog;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using windows::Bstr;
using windows::Variant;

Error Caught(const std::function<void()>& action) {
  try {
    action();
  } catch (const Error& error) {
    return error;
  }
  return {0, "", "nothing was raised"};
}

class FaultTest : public testing::Test {
 protected:
  void Ask(ProcessLog& source) {
    std::int32_t status = -1;
    source.GetProcessLogs(at.Connection(), kEarly, kLate, 0, -1, -1, -1, 0, 0, status);
  }
  // What a query raises when `member` does this, once the next one was seen to work.
  Error Raised(std::string_view member, Fault fault) {
    const auto source = at.Create<ProcessLog>();
    faults.instead.emplace(member, std::move(fault));
    Error raised = Caught([&] { Ask(*source); });
    EXPECT_EQ(source->lngCount(), 0);
    faults.instead.clear();
    Ask(*source);
    EXPECT_EQ(source->lngCount(), 11);
    return raised;
  }

  Faults faults;
  ComInstallation at{MakeFaultyActivator(hub_com::MakeSystemActivator(CLSCTX_INPROC_SERVER), faults)};
};

TEST_F(FaultTest, CreationThatFailsNamesClassAndServer) {
  constexpr HRESULT kFailures[] = {REGDB_E_CLASSNOTREG, E_ACCESSDENIED, CO_E_SERVER_EXEC_FAILURE,
                                   RPC_E_TIMEOUT,       E_NOINTERFACE,  HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE)};
  for (const HRESULT failure : kFailures) {
    faults.creation = failure;
    const Error raised = Caught([&] { datasource::CreateRecordSource<ProcessLog>(at.Factory(), "SRV9"); });
    EXPECT_EQ(raised.number(), 429);
    EXPECT_THAT(raised.description(), AllOf(HasSubstr("\"clRecordHub.ProcessLog\""), HasSubstr("\"SRV9\""),
                                            HasSubstr(windows::DescriptionOf(failure))));
  }
  EXPECT_EQ(faults.created.back(), "clRecordHub.ProcessLog on SRV9");
  faults.creation = S_OK;
  EXPECT_EQ(Caught([&] { at.Factory().Create("clRecordHub.Other", "SRV9"); }).number(), 429);
}

TEST(SystemActivatorTest, GivesNothingForWhatIsNotThere) {
  windows::ComPtr<IDispatch> object;
  const auto activator = hub_com::MakeSystemActivator();
  EXPECT_EQ(windows::NumberOf(activator->Create("clRecordHub.Other", "", IID_IDispatch, object)), 429);
  EXPECT_EQ(activator->Create("clRecordHub.Current", "", ComInstallation::kLabels, object), E_NOINTERFACE);
  EXPECT_FALSE(object);
}

TEST_F(FaultTest, ErrorsOfTheComponentKeepNumberSourceAndDescription) {
  const Error told = Raised("GetProcessLogs", [](VARIANT*, EXCEPINFO* exception) {
    exception->scode = kConcurrentUpdate;
    exception->bstrSource = Bstr(std::string_view("Hub of Zoé")).Detach();
    exception->bstrDescription = Bstr(std::string_view("table locked")).Detach();
    return DISP_E_EXCEPTION;
  });
  EXPECT_EQ(told.number(), kConcurrentUpdate);
  EXPECT_EQ(told.source(), "Hub of Zoé");
  EXPECT_EQ(told.description(), "table locked");

  const Error left = Raised("lngCount", [](VARIANT*, EXCEPINFO*) {
    return windows::TellError(Error(57, "disk", "unreadable"), ComInstallation::kLabels);
  });
  EXPECT_EQ(left.number(), 57);
  EXPECT_EQ(left.source(), "disk");
  EXPECT_EQ(left.description(), "unreadable");

  const Error silent = Raised("GetProcessLogs", [](VARIANT*, EXCEPINFO*) { return E_OUTOFMEMORY; });
  EXPECT_EQ(silent.number(), 7);
  EXPECT_THAT(silent.description(), HasSubstr("clRecordHub.ProcessLog.GetProcessLogs"));
}

// An array of a shape that a test asks for, with empty values.
Fault Gives(VARTYPE type, std::vector<SAFEARRAYBOUND> bounds) {
  return [type, bounds](VARIANT* result, EXCEPINFO*) mutable {
    result->vt = static_cast<VARTYPE>(VT_ARRAY | type);
    result->parray = bounds.empty() ? nullptr : SafeArrayCreate(type, static_cast<UINT>(bounds.size()), bounds.data());
    return S_OK;
  };
}

TEST_F(FaultTest, ArraysOfAnotherTypeOrShapeAreErrorsThatNameTheColumn) {
  const struct {
    const char* column;
    Fault gives;
    std::int32_t number;
    const char* problem;
  } cases[] = {
      {"lngUserId", Gives(VT_I4, {{10, 0}}), 9, "holds 10 of 11 rows"},
      {"dtStartDate", Gives(VT_DATE, {{12, 0}}), 9, "holds 12 of 11 rows"},
      {"bExecuted", Gives(VT_BOOL, {{11, 1}}), 9, "begins at 1"},
      {"strProcessName", Gives(VT_BSTR, {{11, 0}, {2, 0}}), 9, "2 dimensions"},
      {"strProcessName", Gives(VT_BSTR, {}), 9, "has no array"},
      {"lngUserId", Gives(VT_R8, {{11, 0}}), 13, "wrong type, 5"},
      {"dtStartDate", Gives(VT_BSTR, {{11, 0}}), 13, "wrong type, 8"},
      {"strProcessName", Gives(VT_I4, {{11, 0}}), 13, "wrong type, 3"},
      {"bResultOk", [](VARIANT*, EXCEPINFO*) { return S_OK; }, 13, "wrong type, 0"},
      {"bResultOk", [](VARIANT* result, EXCEPINFO*) { return VariantCopy(result, &Variant(4).raw()); }, 13, "type, 3"},
  };
  for (const auto& [column, gives, number, problem] : cases) {
    const Error raised = Raised(column, gives);
    EXPECT_EQ(raised.number(), number) << column;
    EXPECT_THAT(
        raised.description(),
        AllOf(HasSubstr(std::string("clRecordHub.ProcessLog.GetProcessLogs: column ") + column), HasSubstr(problem)));
  }
}

TEST_F(FaultTest, MembersThatAreMissingAreNamed) {
  const Error raised = Caught([&] { windows::LateBound(at.Labels()).Call(L"GetProcessLogs"); });
  EXPECT_EQ(raised.number(), 438);
  EXPECT_THAT(raised.description(), HasSubstr("GetProcessLogs"));
}

TEST_F(FaultTest, NamesAreAskedForOncePerClass) {
  for (int object = 0; object < 2; ++object) {
    const auto source = at.Create<ProcessLog>();
    Ask(*source);
    Ask(*source);
    source->CloseProcessLogs(at.Connection());
  }
  for (const char* const name :
       {"GetProcessLogs", "lngCount", "lngUserId", "bExecuted", "PackedTexts", "CloseProcessLogs"}) {
    EXPECT_EQ(faults.asked[name], 1) << name;
  }
  EXPECT_EQ(faults.asked.count("strCompany"), 0U) << "a column that the query does not promise";
}

TEST_F(FaultTest, AnObjectThatIsLostIsMadeAnewByTheNextQuery) {
  const auto source = at.Create<ProcessLog>();
  const std::size_t before = faults.created.size();
  faults.instead.emplace("lngUserId", [](VARIANT*, EXCEPINFO*) { return RPC_E_DISCONNECTED; });
  EXPECT_EQ(Caught([&] { Ask(*source); }).number(), RPC_E_DISCONNECTED);
  source->CloseProcessLogs(at.Connection());
  EXPECT_EQ(faults.created.size(), before) << "nothing is made to be released";
  faults.instead.clear();
  Ask(*source);
  EXPECT_EQ(source->lngCount(), 11);
  EXPECT_EQ(faults.created.size(), before + 1);
}

TEST_F(FaultTest, TheControlStaysUsable) {
  RecordingPlatform platform;
  ucProcessLog control(platform, at.Factory());
  control.p_Connect(at.Connection());
  control.p_FromType(tlFromType::tlAllProcess);
  faults.instead.emplace("strProcessName", Gives(VT_BSTR, {{1, 1}}));
  control.cmdRefresh_Click();
  ASSERT_EQ(platform.messages.size(), 1U);
  EXPECT_THAT(platform.messages[0], HasSubstr("column strProcessName"));
  faults.instead.clear();
  control.cmdRefresh_Click();
  EXPECT_EQ(platform.messages.size(), 1U);
  EXPECT_NE(control.controls().tvMotherList.Find("LPROC|11"), widgets::NodeId::kNone);
}

}  // namespace
}  // namespace quorvel::test
