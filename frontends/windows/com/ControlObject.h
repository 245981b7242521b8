// The object that hosts hold: the published members, and what OLE asks of a control.
#pragma once

#include <ocidl.h>
#include <oleidl.h>
#include <windows.h>

#include <memory>
#include <vector>

#include "com/ControlMembers.h"
#include "com/ControlWindow.h"
#include "com/EventPoint.h"
#include "com/Postponed.h"
#include "platform/windows/ComObject.h"
#include "platform/windows/ComPtr.h"
#include "platform/windows/ErrorSupport.h"

namespace quorvel::windows {

// Keeps its state whatever becomes of its window: a host activates it, deactivates it and activates it again.
class ControlObject final : public ComObject<ControlMembers, ErrorSupport<_ucProcessLog>, IOleObject, IOleInPlaceObject,
                                             IOleInPlaceActiveObject, IOleControl, IViewObject2, IPersistStreamInit,
                                             IPersistPropertyBag, IProvideClassInfo2, IConnectionPointContainer> {
 public:
  ControlObject();
  ControlObject(const ControlObject&) = delete;
  ControlObject& operator=(const ControlObject&) = delete;
  // What ComClass wants.
  static HRESULT Create(REFIID interfaceWanted, void** object) noexcept;
  // What the control says of itself (OLEMISC).
  static constexpr DWORD kMiscellaneousStatus = OLEMISC_RECOMPOSEONRESIZE | OLEMISC_CANTLINKINSIDE | OLEMISC_INSIDEOUT |
                                                OLEMISC_ACTIVATEWHENVISIBLE | OLEMISC_SETCLIENTSITEFIRST;

  // IOleObject.
  STDMETHODIMP SetClientSite(IOleClientSite* site) noexcept override;
  STDMETHODIMP GetClientSite(IOleClientSite** site) noexcept override;
  STDMETHODIMP SetHostNames(LPCOLESTR application, LPCOLESTR document) noexcept override;
  STDMETHODIMP Close(DWORD save) noexcept override;
  STDMETHODIMP SetMoniker(DWORD which, IMoniker* moniker) noexcept override;
  STDMETHODIMP GetMoniker(DWORD assign, DWORD which, IMoniker** moniker) noexcept override;
  STDMETHODIMP InitFromData(IDataObject* data, BOOL creation, DWORD reserved) noexcept override;
  STDMETHODIMP GetClipboardData(DWORD reserved, IDataObject** data) noexcept override;
  STDMETHODIMP DoVerb(LONG verb, MSG* message, IOleClientSite* site, LONG reserved, HWND parent,
                      LPCRECT place) noexcept override;
  STDMETHODIMP EnumVerbs(IEnumOLEVERB** verbs) noexcept override;
  STDMETHODIMP Update() noexcept override;
  STDMETHODIMP IsUpToDate() noexcept override;
  STDMETHODIMP GetUserClassID(CLSID* identifier) noexcept override;
  STDMETHODIMP GetUserType(DWORD form, LPOLESTR* name) noexcept override;
  STDMETHODIMP SetExtent(DWORD aspect, SIZEL* extent) noexcept override;
  STDMETHODIMP GetExtent(DWORD aspect, SIZEL* extent) noexcept override;
  STDMETHODIMP Advise(IAdviseSink* sink, DWORD* connection) noexcept override;
  STDMETHODIMP Unadvise(DWORD connection) noexcept override;
  STDMETHODIMP EnumAdvise(IEnumSTATDATA** sinks) noexcept override;
  STDMETHODIMP GetMiscStatus(DWORD aspect, DWORD* status) noexcept override;
  STDMETHODIMP SetColorScheme(LOGPALETTE* palette) noexcept override;

  // IOleWindow, IOleInPlaceObject and IOleInPlaceActiveObject.
  STDMETHODIMP GetWindow(HWND* window) noexcept override;
  STDMETHODIMP ContextSensitiveHelp(BOOL enter) noexcept override;
  STDMETHODIMP InPlaceDeactivate() noexcept override;
  STDMETHODIMP UIDeactivate() noexcept override;
  STDMETHODIMP SetObjectRects(LPCRECT place, LPCRECT clip) noexcept override;
  STDMETHODIMP ReactivateAndUndo() noexcept override;
  STDMETHODIMP TranslateAccelerator(MSG* message) noexcept override;
  STDMETHODIMP OnFrameWindowActivate(BOOL active) noexcept override;
  STDMETHODIMP OnDocWindowActivate(BOOL active) noexcept override;
  STDMETHODIMP ResizeBorder(LPCRECT border, IOleInPlaceUIWindow* window, BOOL frame) noexcept override;
  STDMETHODIMP EnableModeless(BOOL enable) noexcept override;

  // IOleControl.
  STDMETHODIMP GetControlInfo(CONTROLINFO* info) noexcept override;
  STDMETHODIMP OnMnemonic(MSG* message) noexcept override;
  STDMETHODIMP OnAmbientPropertyChange(DISPID property) noexcept override;
  STDMETHODIMP FreezeEvents(BOOL freeze) noexcept override;

  // IViewObject2.
  STDMETHODIMP Draw(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* target, HDC targetDevice, HDC canvas,
                    LPCRECTL place, LPCRECTL metafilePlace, BOOL(STDMETHODCALLTYPE* goOn)(ULONG_PTR),
                    ULONG_PTR argument) noexcept override;
  STDMETHODIMP GetColorSet(DWORD aspect, LONG index, void* aspectInfo, DVTARGETDEVICE* target, HDC targetDevice,
                           LOGPALETTE** colours) noexcept override;
  STDMETHODIMP Freeze(DWORD aspect, LONG index, void* aspectInfo, DWORD* freeze) noexcept override;
  STDMETHODIMP Unfreeze(DWORD freeze) noexcept override;
  STDMETHODIMP SetAdvise(DWORD aspects, DWORD how, IAdviseSink* sink) noexcept override;
  STDMETHODIMP GetAdvise(DWORD* aspects, DWORD* how, IAdviseSink** sink) noexcept override;
  STDMETHODIMP GetExtent(DWORD aspect, LONG index, DVTARGETDEVICE* target, SIZEL* extent) noexcept override;

  // IPersist, IPersistStreamInit and IPersistPropertyBag.
  STDMETHODIMP GetClassID(CLSID* identifier) noexcept override;
  STDMETHODIMP InitNew() noexcept override;
  STDMETHODIMP IsDirty() noexcept override;
  STDMETHODIMP Load(IStream* stream) noexcept override;
  STDMETHODIMP Save(IStream* stream, BOOL clearDirty) noexcept override;
  STDMETHODIMP GetSizeMax(ULARGE_INTEGER* size) noexcept override;
  STDMETHODIMP Load(IPropertyBag* bag, IErrorLog* log) noexcept override;
  STDMETHODIMP Save(IPropertyBag* bag, BOOL clearDirty, BOOL allProperties) noexcept override;

  // IProvideClassInfo2.
  STDMETHODIMP GetClassInfo(ITypeInfo** info) noexcept override;
  STDMETHODIMP GetGUID(DWORD kind, GUID* identifier) noexcept override;

  // IConnectionPointContainer.
  STDMETHODIMP EnumConnectionPoints(IEnumConnectionPoints** points) noexcept override;
  STDMETHODIMP FindConnectionPoint(REFIID events, IConnectionPoint** point) noexcept override;

 protected:
  void* FindBase(REFIID wanted) noexcept override;
  void End() noexcept override;

 private:
  // What a host keeps of the control between its runs.
  struct Kept {
    SIZEL extent;
    std::int32_t fromType;
    std::int32_t processId;
    std::int32_t idAppLog;
    std::string key;
  };

  ~ControlObject() override;

  Kept ToKeep();
  void TakeOver(const Kept& kept);

  HRESULT Activate(IOleClientSite* site, bool withUserInterface, const MSG* message);
  void MakeWindow(IOleInPlaceSite& site);
  // `message`: the key by which the user came, where it is one.
  void ActivateUserInterface(const MSG* message, bool takeFocus);
  void Show(bool shown);
  void EndWindow();
  // Takes leave of host and sinks.
  void Leave() noexcept;
  // Once no code of the control is being run any more: lets windows go that have ended, and the object itself where its
  // last reference was released.
  void Settle();
  void TellFocus(bool got);
  // Where nothing draws the control, its layout follows the place that the host keeps for it.
  void LayOutForExtent();

  SIZEL extent_;
  ComPtr<IOleClientSite> site_;
  ComPtr<IOleInPlaceSite> placeSite_;  // while it is active
  ComPtr<IOleInPlaceFrame> frame_;
  ComPtr<IOleInPlaceUIWindow> document_;
  bool hasUserInterface_ = false;
  ComPtr<IOleAdviseHolder> advised_;
  ComPtr<IAdviseSink> viewSink_;
  DWORD viewSinkAspects_ = 0;
  DWORD viewSinkHow_ = 0;
  EventPoint events_;
  std::unique_ptr<ControlWindow> window_;
  std::vector<std::unique_ptr<ControlWindow>> left_;  // without windows, whose code may still run
  bool ending_ = false;
  Postponed postponed_;
};

}  // namespace quorvel::windows
