// The published properties and methods of the control.
#pragma once

#include <memory>
#include <string_view>

#include "Quorvel.h"
#include "com/Viewer.h"
#include "platform/windows/ComError.h"
#include "platform/windows/TypeDispatch.h"

namespace quorvel::windows {

// Work from the creation on, with a window and without one. Each converts its arguments, calls the control and leaves
// error information for what that raises.
class ControlMembers : public Dispatched<_ucProcessLog> {
 public:
  STDMETHODIMP get_ListItems(IListItems** value) noexcept override;
  STDMETHODIMP get_SelectedItem(IListItem** value) noexcept override;
  STDMETHODIMP get_p_Connect(LONG* value) noexcept override;
  STDMETHODIMP put_p_Connect(LONG value) noexcept override;
  STDMETHODIMP get_p_ProcessId(LONG* value) noexcept override;
  STDMETHODIMP put_p_ProcessId(LONG value) noexcept override;
  STDMETHODIMP get_p_FromType(::tlFromType* value) noexcept override;
  STDMETHODIMP put_p_FromType(::tlFromType value) noexcept override;
  STDMETHODIMP put_p_TabStripVisible(VARIANT_BOOL value) noexcept override;
  STDMETHODIMP get_p_IdAppLog(LONG* value) noexcept override;
  STDMETHODIMP put_p_IdAppLog(LONG value) noexcept override;
  STDMETHODIMP get_p_Key(BSTR* value) noexcept override;
  STDMETHODIMP put_p_Key(BSTR value) noexcept override;
  STDMETHODIMP get_p_blnShowUserInfo(VARIANT_BOOL* value) noexcept override;
  STDMETHODIMP put_p_blnShowUserInfo(VARIANT_BOOL value) noexcept override;
  STDMETHODIMP get_p_blnShowProcessAlarm(VARIANT_BOOL* value) noexcept override;
  STDMETHODIMP put_p_blnShowProcessAlarm(VARIANT_BOOL value) noexcept override;
  STDMETHODIMP get_p_blnShowAlarms(VARIANT_BOOL* value) noexcept override;
  STDMETHODIMP put_p_blnShowAlarms(VARIANT_BOOL value) noexcept override;
  STDMETHODIMP get_p_ListCount(VARIANT* value) noexcept override;
  STDMETHODIMP put_p_strHelpFile(BSTR value) noexcept override;
  STDMETHODIMP put_p_ServerName(BSTR value) noexcept override;
  STDMETHODIMP put_p_ConsoleLoginUserName(BSTR value) noexcept override;
  STDMETHODIMP put_p_ConsoleLoginUserRight(LONG value) noexcept override;

  STDMETHODIMP InitStateListByTab() noexcept override;
  STDMETHODIMP ControlsVisible(LONG stateCode) noexcept override;
  STDMETHODIMP m_Copy() noexcept override;
  STDMETHODIMP m_GetDetail() noexcept override;
  STDMETHODIMP m_GetLogAll(VARIANT* state) noexcept override;
  STDMETHODIMP m_GetLogByAlarms(VARIANT* refresh) noexcept override;
  STDMETHODIMP m_GetLogByCommunication(VARIANT* refresh) noexcept override;
  STDMETHODIMP m_GetLogByBackup(VARIANT* refresh) noexcept override;
  STDMETHODIMP m_GetLogByImports(VARIANT* view, VARIANT* importId, VARIANT* passed) noexcept override;
  STDMETHODIMP m_GetLogByProcess(VARIANT* refresh) noexcept override;
  STDMETHODIMP m_GetLogByUser(VARIANT* refresh) noexcept override;
  STDMETHODIMP m_GetMenuState(VARIANT* menuVisible, VARIANT* openEnabled, VARIANT* copyNoteBookEnabled,
                              VARIANT* openJoinFileVisible, VARIANT* executionReportEnabled, VARIANT* selectAllEnabled,
                              VARIANT* stopExecutionEnabled, VARIANT* acquittedAlarmEnabled,
                              VARIANT* activatedAlarmEnabled, VARIANT* gotoProcessEnabled, VARIANT* tvExpandAllEnabled,
                              VARIANT* tvCollapseAllEnabled, VARIANT* openJoinFileEnabled) noexcept override;
  STDMETHODIMP m_MenuCall(VARIANT* command) noexcept override;
  STDMETHODIMP m_Open() noexcept override;
  STDMETHODIMP m_SelectAll() noexcept override;
  STDMETHODIMP SizeControls(VARIANT* treeWidth) noexcept override;
  STDMETHODIMP tvMotherList_ExpandCommunications(BSTR node) noexcept override;

  STDMETHODIMP OpenHistory(BSTR url, LONG* connect) noexcept override;
  STDMETHODIMP CloseHistory(LONG connect) noexcept override;
  STDMETHODIMP RefreshView() noexcept override;
  STDMETHODIMP SelectTab(BSTR caption) noexcept override;
  STDMETHODIMP NodeKeys(VARIANT parent, VARIANT* keys) noexcept override;
  STDMETHODIMP NodeText(BSTR key, BSTR* text) noexcept override;
  STDMETHODIMP ExpandNode(BSTR key) noexcept override;
  STDMETHODIMP CollapseNode(BSTR key) noexcept override;
  STDMETHODIMP ClickNode(BSTR key) noexcept override;
  STDMETHODIMP SelectRow(VARIANT indexOrKey) noexcept override;
  STDMETHODIMP ColumnCaption(LONG column, BSTR* caption) noexcept override;

 protected:
  ControlMembers() = default;
  ~ControlMembers() = default;

  ucProcessLog& control() { return viewer_->control; }

  std::shared_ptr<Viewer> viewer_ = std::make_shared<Viewer>();
  bool changed_ = false;  // since it was saved

 private:
  using Builder = void (ucProcessLog::*)(bool);

  template <class Body>
  static HRESULT Answer(Body&& body) noexcept {
    return Answering(__uuidof(_ucProcessLog), std::forward<Body>(body));
  }
  HRESULT Build(Builder builder, VARIANT* refresh) noexcept;
  // What a user would do at a node. Errors of the gesture are shown, as a user sees them. Error 35601 for a key without
  // a node, 5 while the viewer is at work.
  HRESULT AtNode(std::string_view label, BSTR key, void (ucProcessLog::*gesture)(widgets::NodeId)) noexcept;
  // Error 35601 when there is none.
  widgets::NodeId NodeOf(BSTR key);
  void RequireIdle();
};

}  // namespace quorvel::windows
