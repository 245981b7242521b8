// The published members: their arguments in each form in which clients pass them, and their errors.
#include <gtest/gtest.h>

#include "com/RecentHistory.h"
#include "com/StrictHost.h"

namespace quorvel::test {
namespace {

Variant ByReferenceTo(VARTYPE type, void* value) {
  Variant made;
  made.raw().vt = static_cast<VARTYPE>(VT_BYREF | type);
  made.raw().byref = value;
  return made;
}

class MembersTest : public testing::Test {
 protected:
  Called Call(const wchar_t* name, std::vector<Variant> arguments = {}) {
    return CallByName(*control.get(), name, std::move(arguments));
  }
  void Show() {
    Open(*control.get(), history.url());
    ASSERT_EQ(control->put_p_FromType(tlOneProcess), S_OK);
    ASSERT_EQ(Call(L"m_GetLogAll", {Variant(0)}).result, S_OK);
  }

  RecentHistory history;
  ComPtr<_ucProcessLog> control = NewControl();
};

TEST_F(MembersTest, AnArgumentComesBackInTheTypeThatTheCallerHas) {
  std::int32_t number = 800;
  float single = 800;
  std::int16_t small = 800;
  double real = 800;
  Variant own(std::int32_t{800});
  Bstr text(L"800");
  BSTR raw = text.Detach();
  EXPECT_EQ(Call(L"SizeControls", {ByReferenceTo(VT_I4, &number)}).result, S_OK);
  EXPECT_EQ(Call(L"SizeControls", {ByReferenceTo(VT_R4, &single)}).result, S_OK);
  EXPECT_EQ(Call(L"SizeControls", {ByReferenceTo(VT_I2, &small)}).result, S_OK);
  EXPECT_EQ(Call(L"SizeControls", {ByReferenceTo(VT_R8, &real)}).result, S_OK);
  EXPECT_EQ(Call(L"SizeControls", {ByReferenceTo(VT_BSTR, &raw)}).result, S_OK);
  EXPECT_EQ(Call(L"SizeControls", {ByReferenceTo(VT_VARIANT, &own.raw())}).result, S_OK);
  EXPECT_EQ(number, 1500);
  EXPECT_EQ(single, 1500);
  EXPECT_EQ(small, 1500);
  EXPECT_EQ(real, 1500);
  EXPECT_EQ(own.ToInt32(), 1500);
  *text.Put() = raw;
  EXPECT_EQ(text.View(), L"1500");
  own = Variant(std::int32_t{900});
  EXPECT_EQ(control->SizeControls(&own.raw()), S_OK);
  EXPECT_EQ(own.ToInt32(), 1500);
  EXPECT_EQ(Call(L"SizeControls").result, S_OK);
  number = 5000;
  EXPECT_EQ(Call(L"SizeControls", {ByReferenceTo(VT_I4, &number)}).result, S_OK);
  EXPECT_EQ(number, 5000);
}

TEST_F(MembersTest, TheMenuStateIsAlwaysFalse) {
  VARIANT_BOOL flags[12];
  std::vector<Variant> arguments;
  for (VARIANT_BOOL& flag : flags) {
    flag = VARIANT_TRUE;
    arguments.push_back(ByReferenceTo(VT_BOOL, &flag));
  }
  Variant last(true);
  arguments.push_back(ByReferenceTo(VT_VARIANT, &last.raw()));
  EXPECT_EQ(Call(L"m_GetMenuState", arguments).result, S_OK);
  for (const VARIANT_BOOL flag : flags) EXPECT_EQ(flag, VARIANT_FALSE);
  EXPECT_EQ(last.type(), VT_BOOL);
  EXPECT_FALSE(last.ToBool());
  arguments.pop_back();
  EXPECT_EQ(Call(L"m_GetMenuState", arguments).result, DISP_E_BADPARAMCOUNT);
}

TEST_F(MembersTest, PropertiesKeepWhatTheyAreGivenAndFlagsAreForAll) {
  EXPECT_EQ(CallByName(*control.get(), L"p_Key", {Variant(std::string_view("Größe"))}, DISPATCH_PROPERTYPUT).result,
            S_OK);
  EXPECT_EQ(Call(L"p_Key").value.ToText(), "Größe");
  EXPECT_EQ(Call(L"p_Connect").value.ToInt32(), -1);
  EXPECT_EQ(Call(L"p_ListCount").value.type(), VT_I4);
  EXPECT_EQ(CallByName(*control.get(), L"p_ServerName", {Variant(std::string_view("s"))}, DISPATCH_PROPERTYPUT).result,
            S_OK);
  EXPECT_EQ(CallByName(*control.get(), L"p_ServerName", {}, DISPATCH_PROPERTYGET).result, DISP_E_MEMBERNOTFOUND);
  const auto another = NewControl();
  ASSERT_EQ(another->put_p_blnShowAlarms(VARIANT_TRUE), S_OK);
  EXPECT_TRUE(Call(L"p_blnShowAlarms").value.ToBool());
  ASSERT_EQ(another->put_p_blnShowAlarms(VARIANT_FALSE), S_OK);
  ASSERT_EQ(control->put_p_TabStripVisible(VARIANT_TRUE), S_OK);
  EXPECT_EQ(Call(L"SelectTab", {Variant(std::string_view("Connections"))}).result, ErrorOf(35601));
}

TEST_F(MembersTest, WrongArgumentsAreErrorsWithTheirText) {
  const wchar_t* const byReference[] = {L"m_GetLogAll", L"m_GetLogByProcess", L"m_GetLogByUser", L"m_MenuCall",
                                        L"SizeControls"};
  ComPtr<IDispatch> object = control.As<IDispatch>();
  for (const wchar_t* const name : byReference) {
    for (const Variant& wrong : {Variant(std::string_view("no number")), Variant(object)}) {
      const Called called = Call(name, {wrong});
      EXPECT_TRUE(called.result == ErrorOf(13) || called.result == ErrorOf(438)) << std::hex << called.result;
      EXPECT_NE(called.description, "");
    }
  }
  EXPECT_EQ(Call(L"m_MenuCall", {Variant(std::string_view("99999999999"))}).result, ErrorOf(6));
  EXPECT_EQ(Call(L"ExpandNode", {Variant(std::string_view("no key"))}).result, ErrorOf(35601));
  EXPECT_EQ(Call(L"tvMotherList_ExpandCommunications", {Variant(std::string_view(""))}).result, ErrorOf(35601));
  EXPECT_EQ(Call(L"SelectRow", {Variant(1)}).result, ErrorOf(9));
  EXPECT_EQ(Call(L"OpenHistory", {Variant(std::string_view("nonsense"))}).result, ErrorOf(5));
  EXPECT_EQ(Call(L"OpenHistory", {Variant(std::string_view("sqlite:no such file"))}).result, ErrorOf(53));
  EXPECT_EQ(Call(L"CloseHistory", {Variant(12345)}).result, ErrorOf(5));
  EXPECT_EQ(Call(L"nothing").result, DISP_E_UNKNOWNNAME);
}

// Each member with null for each pointer that it takes, by its own description.
TEST_F(MembersTest, NullPointersAreErrorsWithTheirText) {
  ComPtr<ITypeInfo> dispatch;
  ComPtr<ITypeInfo> type;
  HREFTYPE reference = 0;
  ASSERT_EQ(control->GetTypeInfo(0, 0, dispatch.Put()), S_OK);
  ASSERT_EQ(dispatch->GetRefTypeOfImplType(static_cast<UINT>(-1), &reference), S_OK);
  ASSERT_EQ(dispatch->GetRefTypeInfo(reference, type.Put()), S_OK);
  int members = 0;
  for (UINT i = 0;; ++i) {
    FUNCDESC* function = nullptr;
    if (FAILED(type->GetFuncDesc(i, &function))) break;
    VARTYPE types[16]{};
    VARIANT nothing[16]{};
    VARIANT* arguments[16]{};
    bool takesPointer = false;
    for (SHORT p = 0; p < function->cParams; ++p) {
      const VARTYPE kind = function->lprgelemdescParam[p].tdesc.vt;
      takesPointer = takesPointer || kind == VT_PTR;
      types[p] = kind == VT_VARIANT ? VT_VARIANT : sizeof(void*) == 8 ? VT_I8 : VT_I4;
      arguments[p] = &nothing[p];
    }
    if (takesPointer && function->oVft >= static_cast<SHORT>(7 * sizeof(void*))) {
      ++members;
      Variant result;
      SetErrorInfo(0, nullptr);
      ASSERT_EQ(DispCallFunc(control.get(), static_cast<ULONG_PTR>(function->oVft), CC_STDCALL, VT_ERROR,
                             static_cast<UINT>(function->cParams), types, arguments, result.Put()),
                S_OK);
      // The key of a node may be an empty text: there is no such node.
      EXPECT_TRUE(result.raw().scode == E_POINTER || result.raw().scode == ErrorOf(35601) ||
                  result.raw().scode == ErrorOf(5))
          << "member " << function->memid << " gives " << std::hex << result.raw().scode;
      EXPECT_NE(TakeLeftError().description, "") << "member " << function->memid;
    }
    type->ReleaseFuncDesc(function);
  }
  EXPECT_GT(members, 20);
}

void ExpectErrorOfBuilders(_ucProcessLog& control) {
  const wchar_t* const builders[] = {L"m_GetLogByAlarms", L"m_GetLogByCommunication", L"m_GetLogByBackup",
                                     L"m_GetLogByProcess", L"m_GetLogByUser"};
  for (const wchar_t* const name : builders) {
    const Called called = CallByName(control, name);
    EXPECT_EQ(called.result, ErrorOf(5));
    EXPECT_TRUE(called.description.ends_with("is not open")) << called.description;
  }
  Variant number(std::int32_t{1});
  EXPECT_EQ(control.m_GetLogByImports(&number.raw(), &number.raw(), &number.raw()), ErrorOf(5));
  EXPECT_EQ(control.m_GetLogAll(&number.raw()), ErrorOf(5));
  EXPECT_EQ(control.m_GetDetail(), ErrorOf(5));
  const LeftError left = TakeLeftError();
  EXPECT_TRUE(left.source.starts_with("Quorvel: ucProcessLog.m_GetDetail\r\n\t")) << left.source;
}

// A connection that is not open, or not any more, is told to the caller, who can go on.
TEST_F(MembersTest, ErrorsOfTheRecordSourcesReachTheCaller) {
  ExpectErrorOfBuilders(*control.get());
  const LONG connect = Open(*control.get(), history.url());
  EXPECT_EQ(Call(L"m_GetLogByProcess").result, S_OK);
  ASSERT_EQ(control->CloseHistory(connect), S_OK);
  ExpectErrorOfBuilders(*control.get());
  Show();
  EXPECT_EQ(RootKeys(*control.get()).size(), 3U);
}

// Before a host places it, while it is closed, and once it has left its host.
TEST_F(MembersTest, WorksWithoutAWindowBeforeAndAfter) {
  const auto host = StrictHost::Make();
  const auto object = control.As<IOleObject>();
  const auto look = [&] {
    Show();
    EXPECT_EQ(Call(L"SelectTab", {Variant(std::string_view("Connections"))}).result, S_OK);
    EXPECT_FALSE(RootKeys(*control.get()).empty());
    EXPECT_EQ(
        Call(L"tvMotherList_ExpandCommunications", {Variant(std::string_view(RootKeys(*control.get())[0]))}).result,
        S_OK);
    EXPECT_EQ(Call(L"SelectTab", {Variant(std::string_view("Processes"))}).result, S_OK);
    EXPECT_EQ(Call(L"ClickNode", {Variant(std::string_view(RootKeys(*control.get())[0]))}).result, S_OK);
    EXPECT_EQ(Call(L"ExpandNode", {Variant(std::string_view(RootKeys(*control.get())[0]))}).result, S_OK);
    EXPECT_EQ(Call(L"CollapseNode", {Variant(std::string_view(RootKeys(*control.get())[0]))}).result, S_OK);
    for (const wchar_t* const name :
         {L"m_SelectAll", L"m_Copy", L"InitStateListByTab", L"RefreshView", L"SizeControls"}) {
      EXPECT_EQ(Call(name).result, S_OK);
    }
    EXPECT_EQ(Call(L"ControlsVisible", {Variant(3)}).result, S_OK);
    EXPECT_EQ(Call(L"m_MenuCall", {Variant(25)}).result, S_OK);
    EXPECT_EQ(control->put_p_IdAppLog(kBackupOld), S_OK);
    EXPECT_EQ(control->m_GetDetail(), S_OK);
    EXPECT_EQ(Call(L"p_ListCount").value.ToInt32(), 1);
    EXPECT_EQ(control->put_p_IdAppLog(0), S_OK);
    EXPECT_EQ(Call(L"m_GetLogByUser").result, S_OK);
  };
  look();
  ASSERT_EQ(object->SetClientSite(host.get()), S_OK);
  look();
  ASSERT_EQ(object->DoVerb(OLEIVERB_UIACTIVATE, nullptr, host.get(), 0, host->window(), nullptr), S_OK);
  look();
  ASSERT_EQ(object->Close(OLECLOSE_NOSAVE), S_OK);
  look();
  ASSERT_EQ(object->SetClientSite(nullptr), S_OK);
  look();
}

}  // namespace
}  // namespace quorvel::test
