// The properties and methods that hosts of this control have always had.
#include "com/ControlMembers.h"

#include "com/Answer.h"
#include "com/ByReference.h"
#include "com/ListRows.h"
#include "platform/windows/ComValues.h"

namespace quorvel::windows {

HRESULT ControlMembers::get_ListItems(IListItems** value) noexcept {
  return Answer([&] {
    *Given(value) = nullptr;
    *value = MakeListItems(viewer_).Detach();
  });
}

HRESULT ControlMembers::get_SelectedItem(IListItem** value) noexcept {
  return Answer([&] {
    *Given(value) = nullptr;
    const auto row = control().controls().lvMotherList.SelectedItem();
    if (row) *value = MakeListItem(viewer_, *row).Detach();
  });
}

HRESULT ControlMembers::get_p_Connect(LONG* value) noexcept {
  return Answer([&] { *Given(value) = control().p_Connect(); });
}

HRESULT ControlMembers::put_p_Connect(LONG value) noexcept {
  return Answer([&] { control().p_Connect(value); });
}

HRESULT ControlMembers::get_p_ProcessId(LONG* value) noexcept {
  return Answer([&] { *Given(value) = control().p_ProcessId(); });
}

HRESULT ControlMembers::put_p_ProcessId(LONG value) noexcept {
  return Answer([&] {
    control().p_ProcessId(value);
    changed_ = true;
  });
}

HRESULT ControlMembers::get_p_FromType(::tlFromType* value) noexcept {
  return Answer([&] { *Given(value) = static_cast<::tlFromType>(control().p_FromType()); });
}

HRESULT ControlMembers::put_p_FromType(::tlFromType value) noexcept {
  return Answer([&] {
    control().p_FromType(static_cast<quorvel::tlFromType>(value));
    changed_ = true;
  });
}

HRESULT ControlMembers::put_p_TabStripVisible(VARIANT_BOOL value) noexcept {
  return Answer([&] { control().p_TabStripVisible(value != VARIANT_FALSE); });
}

HRESULT ControlMembers::get_p_IdAppLog(LONG* value) noexcept {
  return Answer([&] { *Given(value) = control().p_IdAppLog(); });
}

HRESULT ControlMembers::put_p_IdAppLog(LONG value) noexcept {
  return Answer([&] {
    control().p_IdAppLog(value);
    changed_ = true;
  });
}

HRESULT ControlMembers::get_p_Key(BSTR* value) noexcept {
  return Answer([&] { *Given(value) = Bstr(control().p_Key()).Detach(); });
}

HRESULT ControlMembers::put_p_Key(BSTR value) noexcept {
  return Answer([&] {
    control().p_Key(TextOf(value));
    changed_ = true;
  });
}

HRESULT ControlMembers::get_p_blnShowUserInfo(VARIANT_BOOL* value) noexcept {
  return Answer([&] { *Given(value) = ToVariantBool(ucProcessLog::p_blnShowUserInfo()); });
}

HRESULT ControlMembers::put_p_blnShowUserInfo(VARIANT_BOOL value) noexcept {
  return Answer([&] { ucProcessLog::p_blnShowUserInfo(value != VARIANT_FALSE); });
}

HRESULT ControlMembers::get_p_blnShowProcessAlarm(VARIANT_BOOL* value) noexcept {
  return Answer([&] { *Given(value) = ToVariantBool(ucProcessLog::p_blnShowProcessAlarm()); });
}

HRESULT ControlMembers::put_p_blnShowProcessAlarm(VARIANT_BOOL value) noexcept {
  return Answer([&] { ucProcessLog::p_blnShowProcessAlarm(value != VARIANT_FALSE); });
}

HRESULT ControlMembers::get_p_blnShowAlarms(VARIANT_BOOL* value) noexcept {
  return Answer([&] { *Given(value) = ToVariantBool(ucProcessLog::p_blnShowAlarms()); });
}

HRESULT ControlMembers::put_p_blnShowAlarms(VARIANT_BOOL value) noexcept {
  return Answer([&] { ucProcessLog::p_blnShowAlarms(value != VARIANT_FALSE); });
}

HRESULT ControlMembers::get_p_ListCount(VARIANT* value) noexcept {
  return Answer([&] {
    VariantInit(Given(value));
    value->lVal = control().p_ListCount();
    value->vt = VT_I4;
  });
}

HRESULT ControlMembers::put_p_strHelpFile(BSTR value) noexcept {
  return Answer([&] { ucProcessLog::p_strHelpFile(TextOf(value)); });
}

HRESULT ControlMembers::put_p_ServerName(BSTR value) noexcept {
  return Answer([&] { control().p_ServerName(TextOf(value)); });
}

HRESULT ControlMembers::put_p_ConsoleLoginUserName(BSTR value) noexcept {
  return Answer([&] { control().p_ConsoleLoginUserName(TextOf(value)); });
}

HRESULT ControlMembers::put_p_ConsoleLoginUserRight(LONG value) noexcept {
  return Answer([&] { control().p_ConsoleLoginUserRight(value); });
}

HRESULT ControlMembers::InitStateListByTab() noexcept {
  return Answer([&] { control().InitStateListByTab(); });
}

HRESULT ControlMembers::ControlsVisible(LONG stateCode) noexcept {
  return Answer([&] { control().ControlsVisible(stateCode); });
}

HRESULT ControlMembers::m_Copy() noexcept {
  return Answer([&] { control().m_Copy(); });
}

HRESULT ControlMembers::m_GetDetail() noexcept {
  return Answer([&] { control().m_GetDetail(); });
}

HRESULT ControlMembers::m_GetLogAll(VARIANT* state) noexcept {
  return Answer([&] {
    auto filter = static_cast<StateFilter>(ByReference(state).ToInt32());
    control().m_GetLogAll(filter);
  });
}

HRESULT ControlMembers::Build(Builder builder, VARIANT* refresh) noexcept {
  return Answer([&] {
    const ByReference argument(refresh);
    (control().*builder)(!argument.absent() && argument.ToBool());
  });
}

HRESULT ControlMembers::m_GetLogByAlarms(VARIANT* refresh) noexcept {
  return Build(&ucProcessLog::m_GetLogByAlarms, refresh);
}

HRESULT ControlMembers::m_GetLogByCommunication(VARIANT* refresh) noexcept {
  return Build(&ucProcessLog::m_GetLogByCommunication, refresh);
}

HRESULT ControlMembers::m_GetLogByBackup(VARIANT* refresh) noexcept {
  return Build(&ucProcessLog::m_GetLogByBackup, refresh);
}

HRESULT ControlMembers::m_GetLogByImports(VARIANT* view, VARIANT* importId, VARIANT* passed) noexcept {
  return Answer([&] {
    std::int32_t viewNumber = ByReference(view).ToInt32();
    std::int32_t importNumber = ByReference(importId).ToInt32();
    std::int32_t passedNumber = ByReference(passed).ToInt32();
    control().m_GetLogByImports(viewNumber, importNumber, passedNumber);
  });
}

HRESULT ControlMembers::m_GetLogByProcess(VARIANT* refresh) noexcept {
  return Build(&ucProcessLog::m_GetLogByProcess, refresh);
}

HRESULT ControlMembers::m_GetLogByUser(VARIANT* refresh) noexcept {
  return Build(&ucProcessLog::m_GetLogByUser, refresh);
}

HRESULT ControlMembers::m_GetMenuState(VARIANT* menuVisible, VARIANT* openEnabled, VARIANT* copyNoteBookEnabled,
                                       VARIANT* openJoinFileVisible, VARIANT* executionReportEnabled,
                                       VARIANT* selectAllEnabled, VARIANT* stopExecutionEnabled,
                                       VARIANT* acquittedAlarmEnabled, VARIANT* activatedAlarmEnabled,
                                       VARIANT* gotoProcessEnabled, VARIANT* tvExpandAllEnabled,
                                       VARIANT* tvCollapseAllEnabled, VARIANT* openJoinFileEnabled) noexcept {
  return Answer([&] {
    const ByReference flags[] = {ByReference(menuVisible),
                                 ByReference(openEnabled),
                                 ByReference(copyNoteBookEnabled),
                                 ByReference(openJoinFileVisible),
                                 ByReference(executionReportEnabled),
                                 ByReference(selectAllEnabled),
                                 ByReference(stopExecutionEnabled),
                                 ByReference(acquittedAlarmEnabled),
                                 ByReference(activatedAlarmEnabled),
                                 ByReference(gotoProcessEnabled),
                                 ByReference(tvExpandAllEnabled),
                                 ByReference(tvCollapseAllEnabled),
                                 ByReference(openJoinFileEnabled)};
    bool b[13];
    control().m_GetMenuState(b[0], b[1], b[2], b[3], b[4], b[5], b[6], b[7], b[8], b[9], b[10], b[11], b[12]);
    for (std::size_t i = 0; i < std::size(flags); ++i) flags[i].Write(Variant(b[i]));
  });
}

HRESULT ControlMembers::m_MenuCall(VARIANT* command) noexcept {
  return Answer([&] {
    std::int32_t code = ByReference(command).ToInt32();
    control().m_MenuCall(code);
  });
}

HRESULT ControlMembers::m_Open() noexcept {
  return Answer([&] { control().m_Open(); });
}

HRESULT ControlMembers::m_SelectAll() noexcept {
  return Answer([&] { control().m_SelectAll(); });
}

HRESULT ControlMembers::SizeControls(VARIANT* treeWidth) noexcept {
  return Answer([&] {
    const ByReference argument(treeWidth);
    if (argument.absent()) return control().SizeControls();
    float width = argument.ToSingle();
    const float before = width;
    control().SizeControls(width);
    if (width != before) argument.Write(Variant(static_cast<std::int32_t>(width)));
  });
}

HRESULT ControlMembers::tvMotherList_ExpandCommunications(BSTR node) noexcept {
  return Answer([&] { control().tvMotherList_ExpandCommunications(NodeOf(node)); });
}

}  // namespace quorvel::windows
