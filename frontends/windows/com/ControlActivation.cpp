// The control in the window of its host: activation and its end, focus, keys.
#include "com/ControlObject.h"
#include "windows/Guard.h"

namespace quorvel::windows {
namespace {

constexpr wchar_t kNameInHost[] = L"History viewer";

// The keys that are held, as hosts count them.
DWORD KeysHeld() {
  DWORD held = 0;
  if (GetKeyState(VK_SHIFT) < 0) held |= 1;
  if (GetKeyState(VK_CONTROL) < 0) held |= 2;
  if (GetKeyState(VK_MENU) < 0) held |= 4;
  return held;
}

}  // namespace

HRESULT ControlObject::DoVerb(LONG verb, MSG* message, IOleClientSite* site, LONG /*reserved*/, HWND /*parent*/,
                              LPCRECT /*place*/) noexcept {
  return Answering(__uuidof(IOleObject), [&] {
    switch (verb) {
      case OLEIVERB_PRIMARY:
      case OLEIVERB_UIACTIVATE:
        return Activate(site, true, message);
      case OLEIVERB_SHOW:
      case OLEIVERB_INPLACEACTIVATE:
        return Activate(site, false, message);
      case OLEIVERB_HIDE:
        UIDeactivate();
        if (window_) ShowWindow(window_->window(), SW_HIDE);
        return S_OK;
      default:
        return verb > 0 ? OLEOBJ_S_INVALIDVERB : E_NOTIMPL;
    }
  });
}

HRESULT ControlObject::Activate(IOleClientSite* site, bool withUserInterface, const MSG* message) {
  if (!site_ && site == nullptr) return E_UNEXPECTED;
  const ComPtr<IOleClientSite> host = site_ ? site_ : ComPtr<IOleClientSite>(site);
  if (!placeSite_) {
    const auto place = host.As<IOleInPlaceSite>();
    if (!place || place->CanInPlaceActivate() != S_OK) return OLE_E_NOT_INPLACEACTIVE;
    Check(place->OnInPlaceActivate(), "The host does not let the viewer be active");
    placeSite_ = place;
    try {
      MakeWindow(*place.get());
    } catch (...) {
      InPlaceDeactivate();
      throw;
    }
  }
  if (window_) ShowWindow(window_->window(), SW_SHOWNA);
  if (withUserInterface) ActivateUserInterface(message, true);
  host->ShowObject();
  return S_OK;
}

void ControlObject::MakeWindow(IOleInPlaceSite& site) {
  if (viewer_->Busy()) throw Error(SystemError::kInvalidCall, "The viewer is at work");
  left_.clear();
  HWND parent = nullptr;
  Check(site.GetWindow(&parent), "The host has no window for the viewer");
  RECT place{};
  RECT clip{};
  OLEINPLACEFRAMEINFO info{};
  info.cb = sizeof(info);
  Check(site.GetWindowContext(frame_.Put(), document_.Put(), &place, &clip, &info),
        "The host has no place for the viewer");
  const auto used = [this] {
    // What the host does meanwhile may end the window that tells this.
    const HostedPlatform::Outside outside(viewer_->platform.calls());
    Guarded([this] { ActivateUserInterface(nullptr, false); });
  };
  window_ = std::make_unique<ControlWindow>(control(), parent, used);
  viewer_->platform.SetOwner(parent);
  window_->Place(place, clip);
}

void ControlObject::ActivateUserInterface(const MSG* message, bool takeFocus) {
  if (!placeSite_ || !window_) return;
  if (!hasUserInterface_) {
    hasUserInterface_ = true;
    const HRESULT allowed = placeSite_->OnUIActivate();
    if (FAILED(allowed)) {
      hasUserInterface_ = false;
      return;
    }
    // In each of these calls the host may take the user interface back, or all of the control.
    const ComPtr<IOleInPlaceUIWindow> holders[] = {ComPtr<IOleInPlaceUIWindow>(frame_.get()), document_};
    for (const auto& holder : holders) {
      if (!holder || !hasUserInterface_) continue;
      holder->SetActiveObject(this, kNameInHost);
      if (hasUserInterface_) holder->SetBorderSpace(nullptr);
    }
    if (hasUserInterface_) TellFocus(true);
  }
  if (!takeFocus || !window_ || window_->HasFocus()) return;
  const bool byTab = message != nullptr && message->message == WM_KEYDOWN && message->wParam == VK_TAB;
  window_->viewer().FocusFirst(byTab && GetKeyState(VK_SHIFT) < 0);
}

void ControlObject::TellFocus(bool got) {
  if (const auto controlSite = site_.As<IOleControlSite>()) controlSite->OnFocus(got ? TRUE : FALSE);
}

HRESULT ControlObject::UIDeactivate() noexcept {
  if (!hasUserInterface_) return S_OK;
  hasUserInterface_ = false;
  if (frame_) frame_->SetActiveObject(nullptr, nullptr);
  if (document_) document_->SetActiveObject(nullptr, nullptr);
  if (placeSite_) placeSite_->OnUIDeactivate(FALSE);
  Guarded([this] { TellFocus(false); });
  return S_OK;
}

HRESULT ControlObject::InPlaceDeactivate() noexcept {
  if (!placeSite_) return S_OK;
  UIDeactivate();
  const ComPtr<IOleInPlaceSite> place = std::move(placeSite_);
  Guarded([this] { EndWindow(); });
  frame_ = nullptr;
  document_ = nullptr;
  if (place) place->OnInPlaceDeactivate();
  return S_OK;
}

// The native window ends at once, as the host expects. What draws it may be what called the host.
void ControlObject::EndWindow() {
  viewer_->platform.SetOwner(nullptr);
  if (!window_) return;
  if (window_->window() != nullptr) DestroyWindow(window_->window());
  left_.push_back(std::move(window_));
  Settle();
}

HRESULT ControlObject::GetWindow(HWND* window) noexcept {
  if (window == nullptr) return E_POINTER;
  *window = window_ ? window_->window() : nullptr;
  return *window != nullptr ? S_OK : E_FAIL;
}

HRESULT ControlObject::ContextSensitiveHelp(BOOL /*enter*/) noexcept {
  return E_NOTIMPL;
}

HRESULT ControlObject::SetObjectRects(LPCRECT place, LPCRECT clip) noexcept {
  if (place == nullptr) return E_POINTER;
  if (!window_) return E_UNEXPECTED;
  Guarded([&] { window_->Place(*place, clip != nullptr ? *clip : *place); });
  return S_OK;
}

HRESULT ControlObject::ReactivateAndUndo() noexcept {
  return INPLACE_E_NOTUNDOABLE;
}

// The keys that the viewer has no use for are the host's: among them the Tab key out of the last field. What moves
// within a field never comes to hosts, which would go to another control by the arrows, or press a button by Enter.
HRESULT ControlObject::TranslateAccelerator(MSG* message) noexcept {
  if (message == nullptr) return E_POINTER;
  return Answering(__uuidof(IOleInPlaceActiveObject), [&] {
    if (window_ && (window_->viewer().TakeKey(*message) || window_->GiveToField(*message))) return S_OK;
    const auto controlSite = site_.As<IOleControlSite>();
    if (!controlSite) return S_FALSE;
    return controlSite->TranslateAccelerator(message, KeysHeld()) == S_OK ? S_OK : S_FALSE;
  });
}

HRESULT ControlObject::OnFrameWindowActivate(BOOL /*active*/) noexcept {
  return S_OK;
}

HRESULT ControlObject::OnDocWindowActivate(BOOL /*active*/) noexcept {
  return S_OK;
}

HRESULT ControlObject::ResizeBorder(LPCRECT /*border*/, IOleInPlaceUIWindow* /*window*/, BOOL /*frame*/) noexcept {
  return S_OK;
}

HRESULT ControlObject::EnableModeless(BOOL /*enable*/) noexcept {
  return S_OK;
}

}  // namespace quorvel::windows
