// A host that knows what a control may ask, and in which order it did.
#pragma once

#include <ocidl.h>
#include <oleidl.h>
#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "com/Component.h"
#include "platform/windows/ComObject.h"

namespace quorvel::test {

// A window with a control on it. Each call of the control is noted; one that no control has reason for fails the test.
class StrictHost final
    : public windows::ComObject<IOleClientSite, IOleInPlaceSite, IOleControlSite, IOleInPlaceFrame, IPropertyBag> {
 public:
  static ComPtr<StrictHost> Make();

  HWND window() const { return window_; }
  // The calls since the last look, in words parted by blanks.
  std::string Calls();
  // What stands in the status bar that the host's form has.
  const std::string& status() const { return status_; }
  // What it keeps of the control.
  std::vector<std::pair<std::wstring, Variant>> kept;
  bool letsActivate = true;
  std::function<void()> whenActive;  // before it says that it knows
  RECT place{10, 20, 910, 620};
  RECT clip{0, 0, 1000, 700};

  // IOleClientSite.
  STDMETHODIMP SaveObject() noexcept override;
  STDMETHODIMP GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) noexcept override;
  STDMETHODIMP GetContainer(IOleContainer** container) noexcept override;
  STDMETHODIMP ShowObject() noexcept override;
  STDMETHODIMP OnShowWindow(BOOL show) noexcept override;
  STDMETHODIMP RequestNewObjectLayout() noexcept override;

  // IOleWindow.
  STDMETHODIMP GetWindow(HWND* window) noexcept override;
  STDMETHODIMP ContextSensitiveHelp(BOOL enter) noexcept override;

  // IOleInPlaceSite.
  STDMETHODIMP CanInPlaceActivate() noexcept override;
  STDMETHODIMP OnInPlaceActivate() noexcept override;
  STDMETHODIMP OnUIActivate() noexcept override;
  STDMETHODIMP GetWindowContext(IOleInPlaceFrame** frame, IOleInPlaceUIWindow** document, LPRECT placeOfControl,
                                LPRECT clipOfControl, LPOLEINPLACEFRAMEINFO info) noexcept override;
  STDMETHODIMP Scroll(SIZE extent) noexcept override;
  STDMETHODIMP OnUIDeactivate(BOOL undoable) noexcept override;
  STDMETHODIMP OnInPlaceDeactivate() noexcept override;
  STDMETHODIMP DiscardUndoState() noexcept override;
  STDMETHODIMP DeactivateAndUndo() noexcept override;
  STDMETHODIMP OnPosRectChange(LPCRECT rect) noexcept override;

  // IOleControlSite.
  STDMETHODIMP OnControlInfoChanged() noexcept override;
  STDMETHODIMP LockInPlaceActive(BOOL lock) noexcept override;
  STDMETHODIMP GetExtendedControl(IDispatch** extended) noexcept override;
  STDMETHODIMP TransformCoords(POINTL* pixels, POINTF* ofContainer, DWORD flags) noexcept override;
  STDMETHODIMP TranslateAccelerator(MSG* message, DWORD modifiers) noexcept override;
  STDMETHODIMP OnFocus(BOOL got) noexcept override;
  STDMETHODIMP ShowPropertyFrame() noexcept override;

  // IOleInPlaceFrame.
  STDMETHODIMP GetBorder(LPRECT border) noexcept override;
  STDMETHODIMP RequestBorderSpace(LPCBORDERWIDTHS widths) noexcept override;
  STDMETHODIMP SetBorderSpace(LPCBORDERWIDTHS widths) noexcept override;
  STDMETHODIMP SetActiveObject(IOleInPlaceActiveObject* object, LPCOLESTR name) noexcept override;
  STDMETHODIMP InsertMenus(HMENU menu, LPOLEMENUGROUPWIDTHS widths) noexcept override;
  STDMETHODIMP SetMenu(HMENU menu, HOLEMENU shared, HWND object) noexcept override;
  STDMETHODIMP RemoveMenus(HMENU menu) noexcept override;
  STDMETHODIMP SetStatusText(LPCOLESTR text) noexcept override;
  STDMETHODIMP EnableModeless(BOOL enable) noexcept override;
  STDMETHODIMP TranslateAccelerator(MSG* message, WORD id) noexcept override;

  // IPropertyBag.
  STDMETHODIMP Read(LPCOLESTR name, VARIANT* value, IErrorLog* log) noexcept override;
  STDMETHODIMP Write(LPCOLESTR name, VARIANT* value) noexcept override;

 protected:
  void* FindBase(REFIID wanted) noexcept override;

 private:
  StrictHost();
  ~StrictHost() override;

  HRESULT Note(const char* call, HRESULT answer = S_OK);
  HRESULT Unexpected(const char* call);

  HWND window_;
  std::string calls_;
  std::string status_;
};

// The control placed on a host, without being active yet; taken off it at the end.
class PlacedControl {
 public:
  PlacedControl();
  ~PlacedControl();
  PlacedControl(const PlacedControl&) = delete;
  PlacedControl& operator=(const PlacedControl&) = delete;

  HRESULT Do(LONG verb, MSG* message = nullptr);
  // The control's own window; null while it is not active.
  HWND Window();
  // The first window of that class below it.
  HWND Find(const wchar_t* windowClass);

  ComPtr<StrictHost> host = StrictHost::Make();
  ComPtr<_ucProcessLog> control = NewControl();
  ComPtr<IOleObject> object = control.As<IOleObject>();
  ComPtr<IOleInPlaceObject> inPlace = control.As<IOleInPlaceObject>();
};

}  // namespace quorvel::test
