// What OLE asks of every object, active or not.
#include "com/ControlObject.h"

#include <olectl.h>

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "com/Answer.h"
#include "com/Snapshot.h"
#include "platform/windows/WideText.h"

namespace quorvel::windows {
namespace {

constexpr wchar_t kUserType[] = L"History viewer";

// Ten times a hundredth of a millimetre make 0.254 inches.
constexpr LONG kHimetricPerInch = 2540;
constexpr LONG kTwipsPerInch = 1440;
// The size of a new control: what a form of 1000 by 600 pixels holds.
constexpr SIZEL kFirstExtent = {15000 * kHimetricPerInch / kTwipsPerInch, 9000 * kHimetricPerInch / kTwipsPerInch};

// A connection point as an enumerator gives it away.
struct GivenPoint {
  ComPtr<IConnectionPoint> point;
  IConnectionPoint* Give() const { return ComPtr<IConnectionPoint>(point).Detach(); }
};

}  // namespace

HRESULT ControlObject::Create(REFIID interfaceWanted, void** object) noexcept {
  return Answering(__uuidof(_ucProcessLog),
                   [&] { return MakeObject<ControlObject>()->QueryInterface(interfaceWanted, object); });
}

ControlObject::ControlObject() : extent_(kFirstExtent), events_(*this, viewer_->platform.calls()) {
  control().Subscribe(events_);
}

ControlObject::~ControlObject() {
  control().Unsubscribe(events_);
}

void* ControlObject::FindBase(REFIID wanted) noexcept {
  if (IsEqualGUID(wanted, IID_IOleWindow)) return static_cast<IOleWindow*>(static_cast<IOleInPlaceObject*>(this));
  if (IsEqualGUID(wanted, IID_IViewObject)) return static_cast<IViewObject*>(this);
  if (IsEqualGUID(wanted, IID_IPersist)) return static_cast<IPersist*>(static_cast<IPersistStreamInit*>(this));
  if (IsEqualGUID(wanted, IID_IProvideClassInfo)) return static_cast<IProvideClassInfo*>(this);
  return nullptr;
}

void ControlObject::Leave() noexcept {
  InPlaceDeactivate();
  events_.DisconnectAll();
  viewer_->platform.SetHost(nullptr);
  site_ = nullptr;
}

void ControlObject::End() noexcept {
  Leave();
  if (!viewer_->Busy()) {
    delete this;
    return;
  }
  ending_ = true;
  postponed_.Call([this] { Settle(); });
}

void ControlObject::Settle() {
  if (viewer_->Busy()) return postponed_.Call([this] { Settle(); });
  left_.clear();
  if (ending_) delete this;
}

HRESULT ControlObject::SetClientSite(IOleClientSite* site) noexcept {
  return Answering(__uuidof(IOleObject), [&] {
    site_ = ComPtr<IOleClientSite>(site);
    ComPtr<IDispatch> host;
    if (const auto controlSite = site_.As<IOleControlSite>()) controlSite->GetExtendedControl(host.Put());
    viewer_->platform.SetHost(std::move(host));
  });
}

HRESULT ControlObject::GetClientSite(IOleClientSite** site) noexcept {
  if (site == nullptr) return E_POINTER;
  *site = ComPtr<IOleClientSite>(site_).Detach();
  return S_OK;
}

HRESULT ControlObject::SetHostNames(LPCOLESTR /*application*/, LPCOLESTR /*document*/) noexcept {
  return S_OK;
}

HRESULT ControlObject::Close(DWORD save) noexcept {
  // OLECLOSE_PROMPTSAVE asks the user of a document; a control's host decides itself.
  if (save != OLECLOSE_NOSAVE && changed_ && site_) site_->SaveObject();
  InPlaceDeactivate();
  if (advised_) advised_->SendOnClose();
  return S_OK;
}

HRESULT ControlObject::SetMoniker(DWORD /*which*/, IMoniker* /*moniker*/) noexcept {
  return E_NOTIMPL;
}

HRESULT ControlObject::GetMoniker(DWORD /*assign*/, DWORD /*which*/, IMoniker** moniker) noexcept {
  if (moniker == nullptr) return E_POINTER;
  *moniker = nullptr;
  return E_NOTIMPL;
}

HRESULT ControlObject::InitFromData(IDataObject* /*data*/, BOOL /*creation*/, DWORD /*reserved*/) noexcept {
  return E_NOTIMPL;
}

HRESULT ControlObject::GetClipboardData(DWORD /*reserved*/, IDataObject** data) noexcept {
  if (data == nullptr) return E_POINTER;
  *data = nullptr;
  return E_NOTIMPL;
}

HRESULT ControlObject::EnumVerbs(IEnumOLEVERB** verbs) noexcept {
  if (verbs == nullptr) return E_POINTER;
  *verbs = nullptr;
  return OLEOBJ_E_NOVERBS;
}

HRESULT ControlObject::Update() noexcept {
  return S_OK;
}

HRESULT ControlObject::IsUpToDate() noexcept {
  return S_OK;
}

HRESULT ControlObject::GetUserClassID(CLSID* identifier) noexcept {
  return GetClassID(identifier);
}

HRESULT ControlObject::GetUserType(DWORD /*form*/, LPOLESTR* name) noexcept {
  if (name == nullptr) return E_POINTER;
  *name = static_cast<LPOLESTR>(CoTaskMemAlloc(sizeof(kUserType)));
  if (*name == nullptr) return E_OUTOFMEMORY;
  std::copy(std::begin(kUserType), std::end(kUserType), *name);
  return S_OK;
}

HRESULT ControlObject::SetExtent(DWORD aspect, SIZEL* extent) noexcept {
  if (extent == nullptr) return E_POINTER;
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  if (extent->cx < 0 || extent->cy < 0) return E_INVALIDARG;
  return Answering(__uuidof(IOleObject), [&] {
    extent_ = *extent;
    changed_ = true;
    LayOutForExtent();
  });
}

void ControlObject::LayOutForExtent() {
  if (window_) return;
  control().UserControl_Resize(MulDiv(extent_.cx, kTwipsPerInch, kHimetricPerInch),
                               MulDiv(extent_.cy, kTwipsPerInch, kHimetricPerInch));
}

HRESULT ControlObject::GetExtent(DWORD aspect, SIZEL* extent) noexcept {
  if (extent == nullptr) return E_POINTER;
  if (aspect != DVASPECT_CONTENT) return DV_E_DVASPECT;
  *extent = extent_;
  return S_OK;
}

HRESULT ControlObject::Advise(IAdviseSink* sink, DWORD* connection) noexcept {
  if (connection == nullptr) return E_POINTER;
  *connection = 0;
  if (!advised_) {
    const HRESULT result = CreateOleAdviseHolder(advised_.Put());
    if (FAILED(result)) return result;
  }
  return advised_->Advise(sink, connection);
}

HRESULT ControlObject::Unadvise(DWORD connection) noexcept {
  return advised_ ? advised_->Unadvise(connection) : OLE_E_NOCONNECTION;
}

HRESULT ControlObject::EnumAdvise(IEnumSTATDATA** sinks) noexcept {
  if (sinks == nullptr) return E_POINTER;
  *sinks = nullptr;
  return advised_ ? advised_->EnumAdvise(sinks) : S_OK;
}

HRESULT ControlObject::GetMiscStatus(DWORD /*aspect*/, DWORD* status) noexcept {
  if (status == nullptr) return E_POINTER;
  *status = kMiscellaneousStatus;
  return S_OK;
}

HRESULT ControlObject::SetColorScheme(LOGPALETTE* /*palette*/) noexcept {
  return S_OK;
}

// Enter is no key for a host's default button. Access keys are answered where the focus is, see TranslateAccelerator.
HRESULT ControlObject::GetControlInfo(CONTROLINFO* info) noexcept {
  if (info == nullptr) return E_POINTER;
  *info = {.cb = sizeof(*info), .hAccel = nullptr, .cAccel = 0, .dwFlags = CTRLINFO_EATS_RETURN};
  return S_OK;
}

HRESULT ControlObject::OnMnemonic(MSG* /*message*/) noexcept {
  return S_OK;
}

HRESULT ControlObject::OnAmbientPropertyChange(DISPID /*property*/) noexcept {
  return S_OK;
}

HRESULT ControlObject::FreezeEvents(BOOL freeze) noexcept {
  events_.Freeze(freeze != FALSE);
  return S_OK;
}

HRESULT ControlObject::GetClassInfo(ITypeInfo** info) noexcept {
  return info == nullptr ? E_POINTER : LoadOwnTypeInfo(__uuidof(::ucProcessLog), info);
}

HRESULT ControlObject::GetGUID(DWORD kind, GUID* identifier) noexcept {
  if (identifier == nullptr) return E_POINTER;
  *identifier = GUID{};
  if (kind != GUIDKIND_DEFAULT_SOURCE_DISP_IID) return E_INVALIDARG;
  *identifier = __uuidof(__ucProcessLog);
  return S_OK;
}

HRESULT ControlObject::EnumConnectionPoints(IEnumConnectionPoints** points) noexcept {
  if (points == nullptr) return E_POINTER;
  *points = nullptr;
  return Answering(__uuidof(IConnectionPointContainer), [&] {
    std::vector<GivenPoint> all{GivenPoint{ComPtr<IConnectionPoint>(&events_)}};
    *points = MakeObject<Snapshot<IEnumConnectionPoints, IConnectionPoint*, GivenPoint>>(std::move(all)).Detach();
  });
}

HRESULT ControlObject::FindConnectionPoint(REFIID events, IConnectionPoint** point) noexcept {
  if (point == nullptr) return E_POINTER;
  *point = nullptr;
  if (!IsEqualGUID(events, __uuidof(__ucProcessLog))) return CONNECT_E_NOCONNECTION;
  *point = ComPtr<IConnectionPoint>(&events_).Detach();
  return S_OK;
}

}  // namespace quorvel::windows
